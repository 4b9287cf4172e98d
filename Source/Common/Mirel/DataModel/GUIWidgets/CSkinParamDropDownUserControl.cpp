#include "Mirel/DataModel/GUIWidgets/CSkinParamDropDownUserControl.h"

#include "Mirel/DataModel/GUIWidgets/CSingleEdit.h"
#include "Mirel/DataModel/GUIWidgets/Limits.h"
#include "Mirel/DataModel/GUIWidgets/ParamStops.h"
#include "Mirel/DataModel/GUIWidgets/WidgetOnScreen.h"
#include "Mirel/DataModel/Objects/ValueToString.h"

#include <utility>

namespace Mirel::DataModel::GUIWidgets
{

/// Lives until the presenter has let go of the menu, which may be after the widget's end.
struct CSkinParamDropDownUserControl::SList
{
    explicit SList(CSkinParamDropDownUserControl* owner_) : owner(owner_) {}

    GUI::CMenu menu;
    CSkinParamDropDownUserControl* owner; ///< Null once that is gone.
};

class CSkinParamDropDownUserControl::CChoose : public Core::ICommand
{
public:
    CChoose(SList& list_, int stop_, int lastStop_) : list(list_), stop(stop_), lastStop(lastStop_) {}

    void Execute() override
    {
        if (list.owner != nullptr)
        {
            list.owner->Choose(stop, lastStop);
        }
    }

private:
    SList& list;
    int stop;
    int lastStop;
};

CSkinParamDropDownUserControl::CSkinParamDropDownUserControl(GUI::CLightWidget& widget_,
                                                             Controls::CParamControl& control_,
                                                             CPushableImageWidgetGraphics& graphics_,
                                                             GUI::IMenuPresenter* presenter_)
    : CPushUserControl(widget_, graphics_),
      control(control_),
      presenter(presenter_),
      keys(control_)
{
    // A parameter without stops has no list and no steps.
    keys.SetPixelRange(0.0F);
}

CSkinParamDropDownUserControl::~CSkinParamDropDownUserControl()
{
    if (const auto open = std::exchange(list, nullptr); open != nullptr)
    {
        open->owner = nullptr;
        presenter->Close();
    }
}

void CSkinParamDropDownUserControl::SetPushed(bool pushed, bool apply)
{
    if (IsOpen())
    {
        if (!pushed && !apply)
        {
            presenter->Close();
        }
    }
    else if (pushed != IsPushed() && !(apply && !pushed && OpenList()))
    {
        GetGraphics().SetPushed(pushed);
    }
}

bool CSkinParamDropDownUserControl::OnMouseEnter(const GUI::COSXMouseEvent& event)
{
    return !IsOpen() && CPushUserControl::OnMouseEnter(event);
}

bool CSkinParamDropDownUserControl::OnMouseLeave(const GUI::COSXMouseEvent& event)
{
    return !IsOpen() && CPushUserControl::OnMouseLeave(event);
}

bool CSkinParamDropDownUserControl::OnMouseWheel(const GUI::COSXMouseWheelEvent& event)
{
    ReadModifiers(event);
    const CSingleEdit edit(control, GetLifeToken());
    control.SetPosition(control.GetPosition() + GetSteps(control, 0.0F, event.deltaY));
    if (edit.IsAlive())
    {
        control.SetFineMode(false);
    }
    return true;
}

bool CSkinParamDropDownUserControl::OnRightDown(const GUI::COSXMouseEvent& /*event*/)
{
    control.NotifyRightClick(true);
    return true;
}

bool CSkinParamDropDownUserControl::OnRightUp(const GUI::COSXMouseEvent& /*event*/)
{
    control.NotifyRightClick(false);
    return true;
}

/// The list takes the mouse when it opens.
void CSkinParamDropDownUserControl::OnCaptureLost()
{
    if (!IsOpen())
    {
        CPushUserControl::OnCaptureLost();
    }
}

bool CSkinParamDropDownUserControl::AcceptsKey(const GUI::COSXKeyEvent& event)
{
    return Pushes(event) || keys.AcceptsKey(event);
}

bool CSkinParamDropDownUserControl::OnKeyDown(const GUI::COSXKeyEvent& event)
{
    return Pushes(event) ? CPushUserControl::OnKeyDown(event) : keys.OnKeyDown(event);
}

void CSkinParamDropDownUserControl::ReadModifiers(const GUI::CModifierState& event)
{
    control.SetFineMode(event.IsModifierDown(GUI::EModifierKey::Shift));
}

bool CSkinParamDropDownUserControl::TakesPress(const GUI::COSXMouseEvent& event)
{
    if (!event.IsModifierDown(GUI::EModifierKey::Alternate))
    {
        return false;
    }
    const CSingleEdit edit(control, GetLifeToken());
    control.SetDefault();
    return true;
}

bool CSkinParamDropDownUserControl::Pushes(const GUI::COSXKeyEvent& event) const
{
    using GUI::ENativeKey;
    const bool isSpace = event.key == ENativeKey::Character && event.character == U' ';
    return CPushUserControl::Pushes(event) || isSpace || event.key == ENativeKey::Up ||
           event.key == ENativeKey::Down;
}

/// True if it did; the choice may already have been made then, and have destroyed this object.
bool CSkinParamDropDownUserControl::OpenList()
{
    const int last = GetLastStop(control);
    const GUI::CWindowBase* const window = GetWindowOf(GetWidget());
    if (presenter == nullptr || window == nullptr || window->GetNativeWindow() == nullptr || last < 1 ||
        last >= CLimits::maxListItems)
    {
        return false;
    }
    const auto opening = std::make_shared<SList>(this);
    const int current = GetStopOf(control.GetPosition(), last);
    for (int stop = 0; stop <= last; ++stop)
    {
        const float value = control.PositionToValue(GetPositionOfStop(stop, last));
        GUI::SMenuItem& item =
            opening->menu.AddItem(Objects::ValueToString(control.GetInfo().GetValueToText(), value),
                                  new CChoose(*opening, stop, last), true);
        item.isChecked = stop == current;
    }
    opening->menu.SetCurrent(current);
    list = opening;
    const auto closed = [opening]
    {
        if (opening->owner != nullptr)
        {
            opening->owner->OnClosed();
        }
    };
    if (presenter->Open(opening->menu, *window->GetNativeWindow(), GetPlaceBelow(GetWidget()), closed))
    {
        return true;
    }
    list = nullptr;
    return false;
}

void CSkinParamDropDownUserControl::Choose(int stop, int lastStop)
{
    const CSingleEdit edit(control, GetLifeToken());
    control.SetPosition(GetPositionOfStop(stop, lastStop));
}

void CSkinParamDropDownUserControl::OnClosed()
{
    list = nullptr;
    GetGraphics().SetPushed(false);
}

} // namespace Mirel::DataModel::GUIWidgets
