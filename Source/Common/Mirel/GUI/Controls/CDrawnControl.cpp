#include "Mirel/GUI/Controls/CDrawnControl.h"

#include "Mirel/GUI/CWindowBase.h"
#include "Mirel/Graphics/CBaseGraphics.h"

namespace Mirel::GUI
{

class CDrawnControl::CPicture : public Graphics::CBaseGraphics
{
public:
    explicit CPicture(CDrawnControl& control_) : control(control_) {}

    void Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* /*region*/) override
    {
        control.Paint(surface, GetSize());
    }

private:
    CDrawnControl& control;
};

CDrawnControl::CDrawnControl(CLightWidget* parent_, const CPopupLook& look_)
    : CLightWidget(parent_),
      popupLook(look_)
{
    SetGraphics(new CPicture(*this), true);
    SetMouseTarget(this, false);
    SetKeyboardTarget(this, false);
}

CDrawnControl::~CDrawnControl()
{
    SetMouseTarget(nullptr, false);
    SetKeyboardTarget(nullptr, false);
}

void CDrawnControl::Enable(bool enable)
{
    CLightWidget::Enable(enable);
    Invalidate();
}

INativePlatform* CDrawnControl::FindPlatform() const
{
    const CWidget* const rootWidget = GetRootWidget();
    const CWindowBase* const window = rootWidget == nullptr ? nullptr : rootWidget->GetWindow();
    return window == nullptr ? nullptr : &window->GetPlatform();
}

bool CDrawnControl::OnMouseEnter(const COSXMouseEvent& /*event*/)
{
    Invalidate();
    return true;
}

bool CDrawnControl::OnMouseLeave(const COSXMouseEvent& /*event*/)
{
    Invalidate();
    return true;
}

bool CDrawnControl::OnFocusGained()
{
    Invalidate();
    return true;
}

bool CDrawnControl::OnFocusLost()
{
    Invalidate();
    return true;
}

} // namespace Mirel::GUI
