#include "Mirel/GUI/CWidget.h"

#include "Mirel/GUI/CWidgetLayoutCell.h"
#include "Mirel/GUI/CWindowBase.h"

#include <utility>

namespace Mirel::GUI
{

CWidget::CWidget() = default;

CWidget::~CWidget()
{
    // What handles the input may be gone with the derived class.
    SetMouseTarget(nullptr, false);
    SetKeyboardTarget(nullptr, false);
    LeaveTree();
}

bool CWidget::HitTest(CPoint point) const
{
    return CRect(CPoint(), GetSize()).Contains(point);
}

bool CWidget::SetFocus()
{
    CWindowBase* const window = GetWindow();
    return window != nullptr && window->SetFocusWidget(this);
}

bool CWidget::HasFocus() const
{
    const CWindowBase* const window = GetWindow();
    return window != nullptr && window->GetFocusWidget() == this;
}

bool CWidget::CaptureMouse()
{
    CWindowBase* const window = GetWindow();
    return window != nullptr && window->CaptureMouse(*this);
}

void CWidget::ReleaseMouse()
{
    if (CWindowBase* const window = GetWindow(); window != nullptr)
    {
        window->ReleaseMouse(*this);
    }
}

void CWidget::SetCursor(CSharedCursor newCursor)
{
    if (newCursor != cursor)
    {
        cursor = std::move(newCursor);
        if (CWindowBase* const window = GetWindow(); window != nullptr)
        {
            window->OnCursorChanged();
        }
    }
}

CWidgetLayoutCell& CWidget::GetCell()
{
    if (cell == nullptr)
    {
        cell = std::make_unique<CWidgetLayoutCell>(*this);
    }
    return *cell;
}

void CWidget::Draw(const COSXNativeDrawEvent& event)
{
    GetEventsHandler().SendDraw(event);
}

void CWidget::OnResized()
{
    if (cell != nullptr)
    {
        cell->OnWidgetSizeChanged();
    }
}

} // namespace Mirel::GUI
