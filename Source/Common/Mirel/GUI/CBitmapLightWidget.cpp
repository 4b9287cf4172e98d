#include "Mirel/GUI/CBitmapLightWidget.h"

#include "Mirel/Graphics/CImageElement.h"

#include <utility>

namespace Mirel::GUI
{

CBitmapLightWidget::CBitmapLightWidget(CLightWidget* parent_,
                                       std::unique_ptr<Graphics::CImageElement> element, ETileMode mode)
    : CBitmapLightWidget(parent_, new Graphics::CImageGraphics(std::move(element), mode))
{
}

CBitmapLightWidget::CBitmapLightWidget(CLightWidget* parent_, Graphics::CImageGraphics* image_)
    : CLightWidget(parent_, image_, true),
      image(image_)
{
}

} // namespace Mirel::GUI
