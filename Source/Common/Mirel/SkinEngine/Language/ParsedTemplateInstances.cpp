#include "Mirel/SkinEngine/Language/ParsedTemplateInstances.h"

#include "Mirel/SkinEngine/Language/CTemplateNode.h"
#include "Mirel/SkinEngine/Language/IParserElementHandler.h"
#include "Mirel/SkinEngine/Language/VariableSubstitution.h"

namespace Mirel::SkinEngine
{

const CTemplateNode* CParsedTemplateNodeInstance::TakeNextChild()
{
    const auto& children = node->GetChildren();
    return nextChild < children.size() ? children[nextChild++].get() : nullptr;
}

CParsedTemplateRootNodeInstance::CParsedTemplateRootNodeInstance(const CTemplateNode& root,
                                                                 const Containers::CNamedAttributes& use,
                                                                 IParserElementHandler* handler_)
    : CParsedTemplateNodeInstance(root),
      parameters(root.GetAttributes()),
      handler(handler_)
{
    use.Visit([this](const std::string& name, const std::string& value) { parameters.Assign(name, value); });
}

CParsedTemplateRootNodeInstance::EStep CParsedTemplateRootNodeInstance::Advance()
{
    if (!open.empty() && open.back()->IsHole())
    {
        open.pop_back();
    }
    CParsedTemplateNodeInstance& parent = open.empty() ? *this : *open.back();
    if (const CTemplateNode* child = parent.TakeNextChild())
    {
        open.push_back(child->CreateInstance());
        element = child;
        return open.back()->IsHole() ? EStep::Hole : EStep::Start;
    }
    if (open.empty())
    {
        return EStep::Finished;
    }
    element = &open.back()->GetNode();
    open.pop_back();
    return EStep::End;
}

bool CParsedTemplateRootNodeInstance::MakeAttributes(Containers::CNamedAttributes& attributes) const
{
    attributes = element->GetAttributes();
    return SubstituteVariables(parameters, attributes);
}

bool CParsedTemplateRootNodeInstance::Continue()
{
    for (EStep step = Advance(); step != EStep::Finished; step = Advance())
    {
        if (step == EStep::Hole)
        {
            return false;
        }
        const char* name = element->GetName().c_str();
        if (handler == nullptr)
        {
            continue;
        }
        if (step == EStep::End)
        {
            handler->EndElement(name);
            continue;
        }
        Containers::CNamedAttributes attributes;
        if (!MakeAttributes(attributes))
        {
            handler->RefuseText(name);
        }
        handler->StartElement(name, attributes);
    }
    return true;
}

} // namespace Mirel::SkinEngine
