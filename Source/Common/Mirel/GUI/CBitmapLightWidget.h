#pragma once

#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/Graphics/CImageGraphics.h"

#include <memory>

namespace Mirel::GUI
{

/// A light widget that shows an image: once, repeated or stretched. Its size is at first that of the image.
/// GUI thread only.
class CBitmapLightWidget : public CLightWidget
{
public:
    using ETileMode = Graphics::CImageGraphics::ETileMode;

    CBitmapLightWidget(CLightWidget* parent_, std::unique_ptr<Graphics::CImageElement> element,
                       ETileMode mode = ETileMode::None);

    Graphics::CImageGraphics& GetImageGraphics() const { return *image; }

private:
    CBitmapLightWidget(CLightWidget* parent_, Graphics::CImageGraphics* image_);

    Graphics::CImageGraphics* image; ///< Owned by the base.
};

} // namespace Mirel::GUI
