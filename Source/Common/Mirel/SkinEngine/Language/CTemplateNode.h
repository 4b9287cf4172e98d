#pragma once

#include "Mirel/Containers/CNamedAttributes.h"
#include "Mirel/Serialization/DataStreams.h"
#include "Mirel/SkinEngine/Language/IParsedTemplate.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Mirel::SkinEngine
{

class CParsedTemplateNodeInstance;
class CParsedTemplateRootNodeInstance;

/// An element of a recorded tree. Belongs to one thread at a time.
class CTemplateNode : public virtual Serialization::ISerializable
{
public:
    CTemplateNode() = default;
    CTemplateNode(const char* name_, const Containers::CNamedAttributes& attributes_);
    CTemplateNode(const CTemplateNode&) = delete;
    CTemplateNode& operator=(const CTemplateNode&) = delete;
    ~CTemplateNode() override;

    const std::string& GetName() const { return name; }
    const Containers::CNamedAttributes& GetAttributes() const { return attributes; }
    const std::vector<std::unique_ptr<CTemplateNode>>& GetChildren() const { return children; }

    void AddChild(std::unique_ptr<CTemplateNode> child) { children.push_back(std::move(child)); }

    /// The running form of this node; the caller owns it. It refers to the node.
    virtual std::unique_ptr<CParsedTemplateNodeInstance> CreateInstance() const;

    /// False for a tree that is nested deeper than CLimits::maxSavedDepth.
    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// Takes the place of what the node held.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

protected:
    std::string name;
    Containers::CNamedAttributes attributes;

private:
    virtual bool IsContent() const { return false; }
    bool Write(Serialization::IWriteDataStream& stream, int depth) const;
    bool Read(const Serialization::IReadDataStream& stream, int depth);

    std::vector<std::unique_ptr<CTemplateNode>> children;
};

/// Marks the hole, where the content of the use goes.
class CTemplateContentNode : public CTemplateNode
{
public:
    using CTemplateNode::CTemplateNode;

    std::unique_ptr<CParsedTemplateNodeInstance> CreateInstance() const override;

private:
    bool IsContent() const override { return true; }
};

/// A template: its name is the id, its attributes are the parameters with their defaults.
class CTemplateRootNode : public CTemplateNode, public IParsedTemplate
{
public:
    using CTemplateNode::CTemplateNode;

    IParsedTemplateInstance* Instantiate(const Containers::CNamedAttributes& use,
                                         IParserElementHandler& handler) override;

    int GetInstanceCount() const override { return instanceCount; }

    /// A replay that has not emitted anything yet, for a caller that takes its elements one by one.
    std::unique_ptr<CParsedTemplateRootNodeInstance> Begin(const Containers::CNamedAttributes& use) const;

    /// Counts a replay as running while it lives.
    class CRunningCount
    {
    public:
        explicit CRunningCount(CTemplateRootNode& root_) : root(&root_) { ++root->instanceCount; }
        CRunningCount(CRunningCount&& other) noexcept : root(std::exchange(other.root, nullptr)) {}
        CRunningCount& operator=(CRunningCount&&) = delete;
        ~CRunningCount()
        {
            if (root != nullptr)
            {
                --root->instanceCount;
            }
        }

    private:
        CTemplateRootNode* root;
    };

private:
    int instanceCount = 0;
};

} // namespace Mirel::SkinEngine
