#pragma once

#include "Mirel/Core/Geometry.h"

namespace Mirel::Layout
{

/// What a layout cell needs of the widget whose area it is. GUI thread only.
class ILayoutContent
{
public:
    /// Of the widget's graphics.
    virtual Core::CSize GetSize() const = 0;

    /// Resizes the graphics. The widget may keep to limits of its own.
    virtual void SetSize(const Core::CSize& size) = 0;

    /// In the coordinates of the widget around it.
    virtual void Move(const Core::CPoint& position) = 0;

    virtual void Show(bool shown) = 0;

    virtual ~ILayoutContent() = default;
};

} // namespace Mirel::Layout
