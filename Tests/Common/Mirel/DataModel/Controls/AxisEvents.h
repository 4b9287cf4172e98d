#pragma once

#include "Mirel/DataModel/Controls/CParamViewerConfig.h"
#include "Support/EventCounter.h"

#include <vector>

namespace Tests
{

/// The events of an axis since the last look.
class CAxisEvents
{
public:
    explicit CAxisEvents(const Mirel::DataModel::Controls::CParamViewerConfig& axis)
        : zoom(axis.GetZoomChangedEventProvider()),
          offset(axis.GetOffsetChangedEventProvider()),
          layout(axis.GetLayoutChangedEventProvider())
    {
    }

    /// zoom, offset, layout
    std::vector<int> Take() { return {zoom.Take(), offset.Take(), layout.Take()}; }

private:
    CEventCounter zoom;
    CEventCounter offset;
    CEventCounter layout;
};

} // namespace Tests
