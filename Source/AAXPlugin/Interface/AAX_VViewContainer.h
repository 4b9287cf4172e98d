#pragma once

#include "AAXPlugin/Interface/IAAXViewContainer.h"
#include "AAXPlugin/Interface/TACFReference.h"

/// The plug-in's handle of the place that its editor fills. One that holds nothing has no view, and gives
/// Failed. GUI thread only.
class AAX_VViewContainer
{
public:
    AAX_VViewContainer() = default;

    /// Asks the host's object for its view container; holds nothing if it is none.
    explicit AAX_VViewContainer(IACFUnknown* host);

    explicit operator bool() const { return static_cast<bool>(container); }

    /// AAXViewType::None unless there is a view.
    std::int32_t GetType() const;
    std::uintptr_t GetView() const;
    std::int32_t SetViewSize(const SAAXViewSize& size);
    std::int32_t HandleParameterRightClick(const char* parameterId);

private:
    TACFReference<IAAXViewContainer> container;
};
