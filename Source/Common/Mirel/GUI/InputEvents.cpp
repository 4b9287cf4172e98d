#include "Mirel/GUI/InputEvents.h"

#include "Mirel/GUI/PointMath.h"

namespace Mirel::GUI
{

bool CModifierState::IsModifierDown(EModifierKey key) const
{
    switch (key)
    {
    case EModifierKey::Alternate:
        return (modifiers & ModifierFlags::alternate) != 0;
    case EModifierKey::Shift:
        return (modifiers & ModifierFlags::shift) != 0;
    case EModifierKey::Control:
        return (modifiers & ModifierFlags::control) != 0;
    }
    return false;
}

bool CModifierState::IsShortcut() const
{
    return (modifiers & (ModifierFlags::control | ModifierFlags::alternate | ModifierFlags::command)) != 0;
}

CTranslatedMouseEvent::CTranslatedMouseEvent(const COSXMouseEvent& event, CPoint origin)
    : COSXMouseEvent(event)
{
    position = Minus(position, origin);
}

CTranslatedMouseWheelEvent::CTranslatedMouseWheelEvent(const COSXMouseWheelEvent& event, CPoint origin)
    : COSXMouseWheelEvent(event)
{
    position = Minus(position, origin);
}

} // namespace Mirel::GUI
