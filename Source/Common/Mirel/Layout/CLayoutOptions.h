#pragma once

#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Layout/EAlign.h"
#include "Mirel/Layout/EAxis.h"

#include <cstdint>

namespace Mirel::Layout
{

/// What a cell asks of the group that holds it. A setter that changes something fires the changed event, to
/// which that group listens. GUI thread only.
class CLayoutOptions
{
public:
    /// The ratio of a cell that takes no share.
    static constexpr float noRatio = -1.0F;

    CLayoutOptions() = default;

    /// Copies the values; the listeners stay with the original.
    CLayoutOptions(const CLayoutOptions& other);
    CLayoutOptions& operator=(const CLayoutOptions&) = delete;
    ~CLayoutOptions() = default;

    Core::IEventProvider& GetChangedEvent() const { return changed; }

    /// Placement in layer stacks, in table cells, and across a column.
    void SetHAlign(EAlign align) { SetAlign(EAxis::Horizontal, align); }
    EAlign GetHAlign() const { return GetAlign(EAxis::Horizontal); }

    /// Placement in layer stacks, in table cells, and across a row.
    void SetVAlign(EAlign align) { SetAlign(EAxis::Vertical, align); }
    EAlign GetVAlign() const { return GetAlign(EAxis::Vertical); }

    /// In pixels from the group's left. The first call, with whatever value, makes the cell stand by its
    /// position instead of by the flow or its alignment, and nothing takes that back. Tables ignore it.
    void SetHPosition(std::int32_t position) { SetPosition(EAxis::Horizontal, position); }
    std::int32_t GetHPosition() const { return GetPosition(EAxis::Horizontal); }
    bool HasHPosition() const { return HasPosition(EAxis::Horizontal); }

    /// The same in pixels from the group's top.
    void SetVPosition(std::int32_t position) { SetPosition(EAxis::Vertical, position); }
    std::int32_t GetVPosition() const { return GetPosition(EAxis::Vertical); }
    bool HasVPosition() const { return HasPosition(EAxis::Vertical); }

    /// Share of the group's width within its margins, 1 for all of it; negative for none.
    void SetWidthRatio(float ratio) { SetRatio(EAxis::Horizontal, ratio); }
    float GetWidthRatio() const { return GetRatio(EAxis::Horizontal); }

    /// Share of the group's height within its margins, in a table of the height of the row.
    void SetHeightRatio(float ratio) { SetRatio(EAxis::Vertical, ratio); }
    float GetHeightRatio() const { return GetRatio(EAxis::Vertical); }

    /// Weight of the cell in the sharing of free pixels along a row or column; 0 takes no part.
    void SetFlex(float newFlex);
    float GetFlex() const { return flex; }

    void SetAlign(EAxis axis, EAlign align);
    EAlign GetAlign(EAxis axis) const { return On(axis).align; }
    void SetPosition(EAxis axis, std::int32_t position);
    std::int32_t GetPosition(EAxis axis) const { return On(axis).position; }
    bool HasPosition(EAxis axis) const { return On(axis).hasPosition; }
    void SetRatio(EAxis axis, float ratio);
    float GetRatio(EAxis axis) const { return On(axis).ratio; }
    bool HasRatio(EAxis axis) const { return On(axis).ratio >= 0.0F; }

private:
    struct CAxisOptions
    {
        EAlign align = EAlign::Center;
        std::int32_t position = 0;
        bool hasPosition = false;
        float ratio = noRatio;
    };

    CAxisOptions& On(EAxis axis) { return axis == EAxis::Horizontal ? horizontal : vertical; }
    const CAxisOptions& On(EAxis axis) const { return axis == EAxis::Horizontal ? horizontal : vertical; }

    void NotifyChanged() const;

    CAxisOptions horizontal;
    CAxisOptions vertical;
    float flex = 0.0F;
    mutable Core::CEventProvider changed;
};

} // namespace Mirel::Layout
