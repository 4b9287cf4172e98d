#pragma once

#include "Mirel/Containers/TStringMap.h"
#include "Mirel/CoreUtilities/IMessageLog.h"
#include "Mirel/SkinEngine/Language/CTemplateNode.h"
#include "Mirel/SkinEngine/Language/IParsedTemplatesMap.h"

#include <memory>
#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

/// Records trees of elements. Life of a record: StartTemplate, the elements of its body as they stand in the
/// file, EndTemplate. Belongs to the thread that parses.
class CTemplateParser
{
public:
    class CTemplatesMap : public IParsedTemplatesMap
    {
    public:
        CTemplateRootNode* Find(const char* id) const override;
        CTemplateRootNode* Detach(const char* id) override;
        void Clear() override { templates.clear(); }

        /// False, with the template destroyed, if there is one of that id.
        bool Insert(std::unique_ptr<CTemplateRootNode> root);

    private:
        Containers::TStringMap<std::unique_ptr<CTemplateRootNode>> templates;
    };

    /// The log is not owned. elementName is the element that makes a template ("TEMPLATE"): inside a body it
    /// is recorded with all that it holds. contentName is the element that leaves a hole, empty for none.
    CTemplateParser(CoreUtilities::IMessageLog& log_, const char* elementName_, const char* contentName_);

    /// Opens a template under the mandatory attribute "id", with the others as parameters. False, with an
    /// error in the log, if the id is missing or taken; the body that follows is then dropped.
    bool StartTemplate(const Containers::CNamedAttributes& attributes);
    void EndTemplate();

    void StartElement(const char* name, const Containers::CNamedAttributes& attributes);
    void EndElement(const char* name);

    /// Elements that are open, the template itself included.
    std::size_t GetOpenCount() const { return open.size(); }

    /// Whether an element of the parser's own name is open inside the body.
    bool IsNested() const { return nestedCount > 0; }

    /// Whether the end of this element belongs to the body, rather than to the template itself.
    bool TakesEnd(const char* name) const;

    CTemplatesMap& GetTemplatesMap() { return templates; }
    const CTemplatesMap& GetTemplatesMap() const { return templates; }

    /// Drops all templates, and the one that is being recorded.
    void Clear();

private:
    CoreUtilities::IMessageLog* log;
    std::string elementName;
    std::string contentName;
    CTemplatesMap templates;
    std::vector<CTemplateNode*> open;
    bool contentAdded = false;
    int nestedCount = 0;
};

} // namespace Mirel::SkinEngine
