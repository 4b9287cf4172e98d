#pragma once

#include "Mirel/DataModel/Controls/CBaseParamViewer.h"
#include "Mirel/DataModel/Controls/CEditGesture.h"

namespace Mirel::DataModel::Controls
{

/// A viewer through which a widget also moves its parameter. GUI thread only.
class CParamControl : public CBaseParamViewer
{
public:
    /// The parameter is not owned and must outlive the control. The control begins editable, with the fine
    /// ratio 1.
    explicit CParamControl(Objects::ICaptureParam& param_);

    Core::IEventProvider& GetEditableChangedEventProvider() const
    {
        return edit.GetEditableChangedEventProvider();
    }

    /// The control's own edit gesture, apart from the parameter's capture, which a host may hold as well.
    const Core::IConstCapture& GetEditCapture() const { return edit.GetCapture(); }

    virtual void SetEditable(bool editable) { edit.SetEditable(editable); }
    virtual bool IsEditable() const { return edit.IsEditable(); }

    /// Opens the gesture and captures the parameter. Gestures do not nest.
    virtual void BeginEdit() { edit.Begin(); }

    /// Sets the value at a position, which is clamped to 0 to 1; NaN is ignored, and so is everything while
    /// the control is not editable.
    virtual void SetPosition(float newPosition);

    /// Sets the value itself, past the axis, if editable; NaN is ignored.
    virtual void SetValue(float newValue);

    /// Sets the description's default, if editable.
    virtual void SetDefault();

    virtual void EndEdit() { edit.End(); }

    /// The right button went down, or up, over the widget: for who opens a menu there, as hosts do for
    /// automation. Each call fires the event.
    virtual void NotifyRightClick(bool isDown)
    {
        isRightDown = isDown;
        rightClicked.Notify();
    }
    bool IsRightDown() const { return isRightDown; }
    Core::IEventProvider& GetRightClickEventProvider() const { return rightClicked; }

    /// In fine mode a stepped axis has fineRatio stops for each one that it had. Stays off if the parameter
    /// has no room for so many.
    virtual void SetFineMode(bool newFineMode);
    virtual bool IsFineMode() const { return fineMode; }

    /// Below 1 counts as 1. Widgets also divide their movements by it in fine mode.
    virtual void SetFineRatio(int newFineRatio);
    virtual int GetFineRatio() const { return fineRatio; }

private:
    bool RefineStops();

    Objects::ICaptureParam& param;
    CEditGesture edit;
    mutable Core::CEventProvider rightClicked; ///< Listening changes nothing of the control.
    int fineRatio = 1;
    bool fineMode = false;
    bool isRightDown = false;
};

} // namespace Mirel::DataModel::Controls
