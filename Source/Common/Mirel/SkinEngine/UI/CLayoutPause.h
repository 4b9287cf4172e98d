#pragma once

#include "Mirel/Layout/CBaseGroupLayoutCell.h"
#include "Mirel/SkinEngine/Model/CSkinCollectionContext.h"

#include <memory>
#include <utility>

namespace Mirel::SkinEngine
{

/// Keeps a group from being laid out for every item of a collection that comes or goes: it is laid out once,
/// when the change of the counts is over. GUI thread only.
class CLayoutPause : private CSkinCollectionContext::IEndListener
{
public:
    /// The group may be null; it must outlive the pause.
    CLayoutPause(std::shared_ptr<CSkinCollectionContext> context_, Layout::CBaseGroupLayoutCell* group_)
        : context(std::move(context_)),
          group(group_)
    {
    }
    ~CLayoutPause() override
    {
        context->Forget(*this);
        End();
    }

    /// Nothing outside of a change, and for a group that is not laid out of itself anyway.
    void Begin()
    {
        if (!isOn && group != nullptr && context->IsChanging() && group->GetAutoUpdate())
        {
            isOn = true;
            group->SetAutoUpdate(false);
            context->CallAtEnd(*this);
        }
    }

private:
    void OnChangesEnded() override { End(); }

    void End()
    {
        if (std::exchange(isOn, false))
        {
            group->SetAutoUpdate(true);
        }
    }

    std::shared_ptr<CSkinCollectionContext> context;
    Layout::CBaseGroupLayoutCell* group;
    bool isOn = false;
};

} // namespace Mirel::SkinEngine
