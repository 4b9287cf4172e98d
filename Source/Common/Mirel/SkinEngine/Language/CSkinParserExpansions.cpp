// How the parser replays templates and repeats: one step at a time, from a list.

#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Limits.h"

#include <utility>

namespace Mirel::SkinEngine
{

using Containers::CNamedAttributes;

void CSkinParser::RunExpansions(std::size_t base)
{
    while (!stopped && expansions.size() > base)
    {
        RunStep();
    }
}

void CSkinParser::RunStep()
{
    using EStep = CParsedTemplateRootNodeInstance::EStep;
    CParsedTemplateRootNodeInstance* instance = expansions.back().instance.get();
    if (instance == nullptr)
    {
        BeginPass();
        return;
    }
    switch (instance->Advance())
    {
    case EStep::Start:
        EmitStart();
        break;
    case EStep::End:
        ProcessEnd(instance->GetElement().GetName().c_str());
        break;
    case EStep::Hole:
        SuspendReplay();
        break;
    case EStep::Finished:
        FinishReplay();
        break;
    }
}

void CSkinParser::EmitStart()
{
    const CParsedTemplateRootNodeInstance& instance = *expansions.back().instance;
    const char* name = instance.GetElement().GetName().c_str();
    CNamedAttributes attributes;
    if (!instance.MakeAttributes(attributes))
    {
        RefuseText(name);
    }
    ProcessStart(name, attributes);
}

void CSkinParser::SuspendReplay()
{
    CExpansion expansion = std::move(expansions.back());
    expansions.pop_back();
    // A template has one hole: what goes on behind it, and a repeat, meet none.
    if (expansion.kind == CExpansion::EKind::Use)
    {
        openUses.push_back(std::move(expansion.instance));
        LeaveElement();
    }
}

void CSkinParser::FinishReplay()
{
    CExpansion& expansion = expansions.back();
    switch (expansion.kind)
    {
    case CExpansion::EKind::Use:
        expansions.pop_back();
        openUses.push_back(nullptr);
        LeaveElement();
        break;
    case CExpansion::EKind::Continuation:
        expansions.pop_back();
        break;
    case CExpansion::EKind::Repeat:
        expansion.instance.reset();
        LeaveElement();
        break;
    }
}

/// The next pass of the repeat on top, or its end.
void CSkinParser::BeginPass()
{
    CExpansion& expansion = expansions.back();
    std::string index;
    if (!expansion.passes.TakeNext(index))
    {
        const bool closesElement = expansion.closesElement;
        expansions.pop_back();
        if (closesElement)
        {
            LeaveElement();
        }
        return;
    }
    if (!Charge(CLimits::elementCharge + CLimits::attributeCharge + index.size()))
    {
        return;
    }
    EnterElement();
    CNamedAttributes parameters;
    parameters.Assign(expansion.passes.GetIndexName(), std::move(index));
    expansion.instance = expansion.body->Begin(parameters);
}

/// At the end tag of a use: what stands behind the hole.
void CSkinParser::ContinueUse()
{
    if (openUses.empty())
    {
        return;
    }
    CExpansion expansion;
    expansion.kind = CExpansion::EKind::Continuation;
    expansion.instance = std::move(openUses.back());
    openUses.pop_back();
    if (expansion.instance != nullptr)
    {
        PushExpansion(std::move(expansion));
    }
}

bool CSkinParser::PushExpansion(CExpansion expansion)
{
    if (expansions.size() >= CLimits::maxExpansionDepth || openUses.size() >= CLimits::maxExpansionDepth)
    {
        return Stop("templates and repeats are nested deeper than " +
                    std::to_string(CLimits::maxExpansionDepth));
    }
    expansions.push_back(std::move(expansion));
    return true;
}

} // namespace Mirel::SkinEngine
