#pragma once

#include "Mirel/DataModel/Controls/CParamControl.h"
#include "Mirel/DataModel/GUIWidgets/CParamKnobKeyboardControl.h"
#include "Mirel/DataModel/GUIWidgets/CPushUserControl.h"
#include "Mirel/GUI/Native/Dialogs/IMenuPresenter.h"

#include <memory>

namespace Mirel::DataModel::GUIWidgets
{

/// Opens a list of a parameter's values below the widget, at the release of a press over it, or of return,
/// space, up or down. The choice of one is a gesture. The wheel and the other keys of a knob step without the
/// list; the alternate key sets the default. The button stays down while the list is open. GUI thread.
class CSkinParamDropDownUserControl : public CPushUserControl
{
public:
    /// None is owned; all must outlive this object. Without a presenter no list opens.
    CSkinParamDropDownUserControl(GUI::CLightWidget& widget_, Controls::CParamControl& control_,
                                  CPushableImageWidgetGraphics& graphics_, GUI::IMenuPresenter* presenter_);
    CSkinParamDropDownUserControl(const CSkinParamDropDownUserControl&) = delete;
    CSkinParamDropDownUserControl& operator=(const CSkinParamDropDownUserControl&) = delete;

    /// An open list closes without a choice.
    ~CSkinParamDropDownUserControl() override;

    bool IsOpen() const { return list != nullptr; }

    /// An up with apply opens the list, and leaves the button down for as long as it is open; one without
    /// closes it.
    void SetPushed(bool pushed, bool apply) override;

    bool OnMouseEnter(const GUI::COSXMouseEvent& event) override;
    bool OnMouseLeave(const GUI::COSXMouseEvent& event) override;
    bool OnMouseWheel(const GUI::COSXMouseWheelEvent& event) override;
    bool OnRightDown(const GUI::COSXMouseEvent& event) override;
    bool OnRightUp(const GUI::COSXMouseEvent& event) override;
    void OnCaptureLost() override;

    bool AcceptsKey(const GUI::COSXKeyEvent& event) override;
    bool OnKeyDown(const GUI::COSXKeyEvent& event) override;

protected:
    void ReadModifiers(const GUI::CModifierState& event) override;
    bool TakesPress(const GUI::COSXMouseEvent& event) override;
    bool Pushes(const GUI::COSXKeyEvent& event) const override;

private:
    struct SList;
    class CChoose;

    bool OpenList();
    void Choose(int stop, int lastStop);
    void OnClosed();

    Controls::CParamControl& control;
    GUI::IMenuPresenter* presenter;
    CParamKnobKeyboardControl keys;
    std::shared_ptr<SList> list; ///< While it is open.
};

} // namespace Mirel::DataModel::GUIWidgets
