#include "Mirel/DataModel/GUIWidgets/CParamKnobKeyboardControl.h"

#include "Mirel/DataModel/GUIWidgets/CSingleEdit.h"
#include "Mirel/GUI/InputEvents.h"

#include <utility>

namespace Mirel::DataModel::GUIWidgets
{

namespace
{

using GUI::ENativeKey;

bool Types(const GUI::COSXKeyEvent& event, char32_t lower, char32_t upper)
{
    return event.key == ENativeKey::Character && (event.character == lower || event.character == upper);
}

} // namespace

CParamKnobKeyboardControl::CParamKnobKeyboardControl(Controls::CParamControl& control_,
                                                     IFineEditOpener* opener_,
                                                     std::function<Core::CPoint()> getPlace_)
    : control(control_),
      opener(opener_),
      getPlace(std::move(getPlace_))
{
}

bool CParamKnobKeyboardControl::AcceptsKey(const GUI::COSXKeyEvent& event)
{
    int steps = 0;
    return event.key == ENativeKey::Escape ||
           (!event.IsShortcut() &&
            (Types(event, U'd', U'D') || Types(event, U'e', U'E') || GetSignedSteps(event, steps)));
}

bool CParamKnobKeyboardControl::OnKeyDown(const GUI::COSXKeyEvent& event)
{
    control.SetFineMode(event.IsModifierDown(GUI::EModifierKey::Shift));
    if (Types(event, U'e', U'E') && opener != nullptr)
    {
        opener->OpenFineEdit(control, getPlace());
        return true;
    }
    int steps = 0;
    const bool toDefault = Types(event, U'd', U'D');
    if (!toDefault && !GetSignedSteps(event, steps))
    {
        return false;
    }
    const CSingleEdit edit(control, life);
    if (toDefault)
    {
        control.SetDefault();
    }
    else
    {
        control.SetPosition(control.GetPosition() + GetSteps(control, GUIWidgets::GetPixelRange(pixelRange),
                                                             static_cast<float>(steps)));
    }
    return true;
}

/// False for a key that does not move the knob.
bool CParamKnobKeyboardControl::GetSignedSteps(const GUI::COSXKeyEvent& event, int& steps) const
{
    const int rising = control.IsReversed() ? -event.count : event.count;
    switch (event.key)
    {
    case ENativeKey::Up:
    case ENativeKey::Right:
        steps = event.count;
        return true;
    case ENativeKey::Down:
    case ENativeKey::Left:
        steps = -event.count;
        return true;
    case ENativeKey::PageUp:
        steps = event.count * pageSize;
        return true;
    case ENativeKey::PageDown:
        steps = -event.count * pageSize;
        return true;
    case ENativeKey::Character:
        steps = event.character == U'+' ? rising : -rising;
        return event.character == U'+' || event.character == U'-';
    default:
        return false;
    }
}

} // namespace Mirel::DataModel::GUIWidgets
