#include "Mirel/SkinEngine/Language/CTemplateNode.h"

#include "Mirel/Serialization/CItemsBudget.h"
#include "Mirel/Serialization/IndexedKey.h"
#include "Mirel/SkinEngine/Language/NamedAttributesStream.h"
#include "Mirel/SkinEngine/Language/ParsedTemplateInstances.h"
#include "Mirel/SkinEngine/Limits.h"

#include <utility>

namespace Mirel::SkinEngine
{

namespace
{

using namespace Serialization;

constexpr const char* nameKey = "name";
constexpr const char* attributesKey = "attributes";
constexpr const char* childrenCountKey = "childrenCount";
constexpr const char* childKey = "child";
constexpr const char* contentKey = "content";

/// Lets a function write a nested object.
template <class Function>
class TWriter : public ISerialize
{
public:
    explicit TWriter(Function function_) : function(std::move(function_)) {}
    bool Serialize(IWriteDataStream& stream) const override { return function(stream); }

private:
    Function function;
};

template <class Function>
class TReader : public IDeSerialize
{
public:
    explicit TReader(Function function_) : function(std::move(function_)) {}
    bool Deserialize(const IReadDataStream& stream) override { return function(stream); }

private:
    Function function;
};

} // namespace

CTemplateNode::CTemplateNode(const char* name_, const Containers::CNamedAttributes& attributes_)
    : name(name_),
      attributes(attributes_)
{
}

CTemplateNode::~CTemplateNode()
{
    // A recorded body may be nested deeper than a thread's stack bears destructors.
    std::vector<std::unique_ptr<CTemplateNode>> pending = std::move(children);
    while (!pending.empty())
    {
        const std::unique_ptr<CTemplateNode> node = std::move(pending.back());
        pending.pop_back();
        for (auto& child : node->children)
        {
            pending.push_back(std::move(child));
        }
        node->children.clear();
    }
}

std::unique_ptr<CParsedTemplateNodeInstance> CTemplateNode::CreateInstance() const
{
    return std::make_unique<CParsedTemplateNodeInstance>(*this);
}

bool CTemplateNode::Serialize(IWriteDataStream& stream) const
{
    return Write(stream, 1);
}

bool CTemplateNode::Deserialize(const IReadDataStream& stream)
{
    return Read(stream, 1);
}

bool CTemplateNode::Write(IWriteDataStream& stream, int depth) const
{
    if (depth > CLimits::maxSavedDepth)
    {
        return false;
    }
    bool complete = stream.Write(nameKey, name.c_str());
    complete = stream.Write(contentKey, IsContent()) && complete;
    complete = WriteAttributes(stream, attributesKey, attributes) && complete;
    complete = stream.Write(childrenCountKey, static_cast<int>(children.size())) && complete;
    int index = 0;
    for (const auto& child : children)
    {
        const TWriter writer([&child, depth](IWriteDataStream& nested)
                             { return child->Write(nested, depth + 1); });
        complete = stream.Write(IndexedKey(childKey, index++).c_str(), writer) && complete;
    }
    return complete;
}

bool CTemplateNode::Read(const IReadDataStream& stream, int depth)
{
    children.clear();
    int count = 0;
    if (depth > CLimits::maxSavedDepth || !ReadText(stream, nameKey, name) ||
        !ReadAttributes(stream, attributesKey, attributes) || !stream.Read(childrenCountKey, count))
    {
        return false;
    }
    bool complete = true;
    CItemsBudget budget;
    for (int i = 0; i < count; ++i)
    {
        TReader reader(
            [this, depth](const IReadDataStream& nested)
            {
                bool content = false;
                nested.Read(contentKey, content);
                std::unique_ptr<CTemplateNode> child =
                    content ? std::make_unique<CTemplateContentNode>() : std::make_unique<CTemplateNode>();
                const bool read = child->Read(nested, depth + 1);
                children.push_back(std::move(child));
                return read;
            });
        const bool found = stream.Read(IndexedKey(childKey, i).c_str(), static_cast<IDeSerialize&>(reader));
        complete = complete && found;
        if (!budget.Note(found))
        {
            return false;
        }
    }
    return complete;
}

std::unique_ptr<CParsedTemplateNodeInstance> CTemplateContentNode::CreateInstance() const
{
    return std::make_unique<CParsedTemplateContentNodeInstance>(*this);
}

IParsedTemplateInstance* CTemplateRootNode::Instantiate(const Containers::CNamedAttributes& use,
                                                        IParserElementHandler& handler)
{
    auto instance = std::make_unique<CParsedTemplateRootNodeInstance>(*this, use, &handler);
    const CRunningCount running(*this);
    return instance->Continue() ? nullptr : instance.release();
}

std::unique_ptr<CParsedTemplateRootNodeInstance>
CTemplateRootNode::Begin(const Containers::CNamedAttributes& use) const
{
    return std::make_unique<CParsedTemplateRootNodeInstance>(*this, use, nullptr);
}

} // namespace Mirel::SkinEngine
