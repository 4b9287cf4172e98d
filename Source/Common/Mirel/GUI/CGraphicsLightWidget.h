#pragma once

#include "Mirel/GUI/CLightWidget.h"

namespace Mirel::GUI
{

/// A light widget that shows whatever graphics it is given. GUI thread only.
class CGraphicsLightWidget : public CLightWidget
{
public:
    /// Graphics that are not owned must outlive the widget, or be replaced before they die.
    CGraphicsLightWidget(CLightWidget* parent_, Graphics::IGraphics* graphics_, bool graphicsOwned)
        : CLightWidget(parent_, graphics_, graphicsOwned)
    {
    }
};

} // namespace Mirel::GUI
