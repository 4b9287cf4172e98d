#pragma once

#include "Mirel/Core/CEventProvider.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <utility>
#include <vector>

namespace Mirel::SkinEngine
{

/// Whether an element of a skin is to be seen. What stands in one that is not is not seen either, whichever
/// widgets and cells there are between. GUI thread only.
class CSkinVisibility
{
public:
    /// The outer one, which may be null, must outlive this one. show is told when the element comes to be
    /// seen or no longer is; empty for one that shows nothing itself.
    CSkinVisibility(CSkinVisibility* outer_, std::function<void(bool)> show_)
        : outer(outer_),
          show(std::move(show_))
    {
        if (outer != nullptr)
        {
            outer->inner.push_back(this);
            shown = outer->shown;
            Tell();
        }
    }
    CSkinVisibility(const CSkinVisibility&) = delete;
    CSkinVisibility& operator=(const CSkinVisibility&) = delete;

    ~CSkinVisibility()
    {
        if (outer != nullptr)
        {
            // The last to come is the first to go.
            const auto place = std::find(outer->inner.rbegin(), outer->inner.rend(), this);
            outer->inner.erase(std::prev(place.base()));
        }
    }

    /// Of the element alone.
    bool IsVisible() const { return visible; }

    void SetVisible(bool newVisible)
    {
        if (visible != newVisible)
        {
            visible = newVisible;
            Update();
            changed.Notify();
        }
    }

    Core::IEventProvider& GetChangedEventProvider() const { return changed; }

private:
    void Update()
    {
        const bool newShown = visible && (outer == nullptr || outer->shown);
        if (shown != newShown)
        {
            shown = newShown;
            Tell();
            for (CSkinVisibility* each : inner)
            {
                each->Update();
            }
        }
    }

    void Tell() const
    {
        if (show != nullptr)
        {
            show(shown);
        }
    }

    CSkinVisibility* outer;
    std::vector<CSkinVisibility*> inner;
    std::function<void(bool)> show;
    bool visible = true;
    bool shown = true; ///< With all around it.
    mutable Core::CEventProvider changed;
};

} // namespace Mirel::SkinEngine
