#include "Mirel/Graphics/CImage.h"

#include "Mirel/Graphics/CBitmapContext.h"

#include <utility>

namespace Mirel::Graphics
{

CImage::CImage(std::shared_ptr<CBitmapContext> context_, bool hasAlpha_)
    : context(std::move(context_)),
      hasAlpha(hasAlpha_)
{
}

CSize CImage::GetSize() const
{
    return context == nullptr ? CSize() : context->GetScaledSize();
}

std::unique_ptr<const IPixelAccess> CImage::CreatePixelAccess() const
{
    return context == nullptr ? nullptr : context->CreatePixelAccess();
}

} // namespace Mirel::Graphics
