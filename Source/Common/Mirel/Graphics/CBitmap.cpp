#include "Mirel/Graphics/CBitmap.h"

#include "Mirel/Graphics/CBitmapContext.h"
#include "Mirel/Graphics/CBitmapSurface.h"

namespace Mirel::Graphics
{

CSize CBitmap::GetSize() const
{
    const CBitmapContext* context = GetContext();
    return context == nullptr ? CSize() : context->GetScaledSize();
}

int CBitmap::GetDeviceScale() const
{
    const CBitmapContext* context = GetContext();
    return context == nullptr ? 1 : context->GetScale();
}

int CBitmap::GetDepth() const
{
    const CBitmapContext* context = GetContext();
    return context == nullptr ? 0 : context->GetDepth();
}

const std::uint8_t* CBitmap::GetData() const
{
    const CBitmapContext* context = GetContext();
    return context == nullptr ? nullptr : context->GetData();
}

std::uint8_t* CBitmap::GetData()
{
    CBitmapContext* context = GetContext();
    return context == nullptr ? nullptr : context->GetData();
}

std::unique_ptr<CDrawSurface> CBitmap::CreateSurface()
{
    if (auto surface = CreateBitmapSurface())
    {
        return surface;
    }
    return std::make_unique<CDrawSurface>(nullptr);
}

std::unique_ptr<CBitmapSurface> CBitmap::CreateBitmapSurface()
{
    return CBitmapSurface::Create(GetContext());
}

void CBitmap::Clear()
{
    if (CBitmapContext* context = GetContext())
    {
        context->Clear();
    }
}

CSharedImage CBitmap::CreateImage() const
{
    CBitmapContext* context = GetContext();
    if (context == nullptr)
    {
        return std::make_shared<CImage>();
    }
    return std::make_shared<CImage>(context->shared_from_this(), context->GetDepth() == 32);
}

std::unique_ptr<IPixelAccess> CBitmap::CreatePixelAccess()
{
    CBitmapContext* context = GetContext();
    return context == nullptr ? nullptr : context->CreatePixelAccess();
}

void CBitmap::SetSize(CSize size)
{
    const CSize effective = size.IsEmpty() ? CSize() : size;
    if (effective != GetSize())
    {
        Replace(CBitmapContext::CreateScaled(effective, GetDepth(), GetDeviceScale()));
    }
}

} // namespace Mirel::Graphics
