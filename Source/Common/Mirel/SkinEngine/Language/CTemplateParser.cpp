#include "Mirel/SkinEngine/Language/CTemplateParser.h"

#include "Mirel/SkinEngine/Language/Quoted.h"

#include <utility>

namespace Mirel::SkinEngine
{

using CoreUtilities::CMessageKind;

CTemplateRootNode* CTemplateParser::CTemplatesMap::Find(const char* id) const
{
    const auto entry = templates.find(id);
    return entry == templates.end() ? nullptr : entry->second.get();
}

CTemplateRootNode* CTemplateParser::CTemplatesMap::Detach(const char* id)
{
    const auto entry = templates.find(id);
    if (entry == templates.end())
    {
        return nullptr;
    }
    CTemplateRootNode* root = entry->second.release();
    templates.erase(entry);
    return root;
}

bool CTemplateParser::CTemplatesMap::Insert(std::unique_ptr<CTemplateRootNode> root)
{
    const std::string id = root->GetName();
    return templates.try_emplace(id, std::move(root)).second;
}

CTemplateParser::CTemplateParser(CoreUtilities::IMessageLog& log_, const char* elementName_,
                                 const char* contentName_)
    : log(&log_),
      elementName(elementName_),
      contentName(contentName_)
{
}

bool CTemplateParser::StartTemplate(const Containers::CNamedAttributes& attributes)
{
    constexpr const char* idName = "id";
    open.clear();
    nestedCount = 0;
    contentAdded = false;
    const char* id = attributes.Get(idName);
    if (id == nullptr)
    {
        log->Post(CMessageKind::Error, "id attribute missing in template definition.", 0);
        return false;
    }
    if (templates.Find(id) != nullptr)
    {
        log->Post(CMessageKind::Error, (Quoted(id) + ": template already defined.").c_str(), 0);
        return false;
    }
    Containers::CNamedAttributes parameters = attributes;
    parameters.Remove(idName);
    auto root = std::make_unique<CTemplateRootNode>(id, parameters);
    open.push_back(root.get());
    templates.Insert(std::move(root));
    return true;
}

void CTemplateParser::EndTemplate()
{
    if (!open.empty())
    {
        open.pop_back();
    }
    contentAdded = false;
}

void CTemplateParser::StartElement(const char* name, const Containers::CNamedAttributes& attributes)
{
    if (!elementName.empty() && name == elementName)
    {
        ++nestedCount;
    }
    if (open.empty())
    {
        return;
    }
    std::unique_ptr<CTemplateNode> node;
    if (!contentName.empty() && name == contentName && nestedCount == 0)
    {
        if (contentAdded)
        {
            log->Post(CMessageKind::Warning,
                      (std::string(name) + ": cannot be used multiple times within a TEMPLATE").c_str(), 0);
        }
        else
        {
            node = std::make_unique<CTemplateContentNode>(name, attributes);
            contentAdded = true;
        }
    }
    if (node == nullptr)
    {
        node = std::make_unique<CTemplateNode>(name, attributes);
    }
    CTemplateNode* added = node.get();
    open.back()->AddChild(std::move(node));
    open.push_back(added);
}

void CTemplateParser::EndElement(const char* name)
{
    if (!open.empty())
    {
        open.pop_back();
    }
    if (!elementName.empty() && name == elementName && nestedCount > 0)
    {
        --nestedCount;
    }
}

bool CTemplateParser::TakesEnd(const char* name) const
{
    return open.size() != 1 && (name != elementName || nestedCount > 0);
}

void CTemplateParser::Clear()
{
    open.clear();
    templates.Clear();
    nestedCount = 0;
    contentAdded = false;
}

} // namespace Mirel::SkinEngine
