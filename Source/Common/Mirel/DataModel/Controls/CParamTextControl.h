#pragma once

#include "Mirel/DataModel/Controls/CBaseParamTextViewer.h"
#include "Mirel/DataModel/Controls/CEditGesture.h"

namespace Mirel::DataModel::Controls
{

/// A text viewer that also takes what a user typed. GUI thread only.
class CParamTextControl : public CBaseParamTextViewer
{
public:
    /// The parameter is not owned and must outlive the control. The control begins editable.
    explicit CParamTextControl(Objects::ICaptureParam& param_);

    Core::IEventProvider& GetEditableChangedEventProvider() const
    {
        return edit.GetEditableChangedEventProvider();
    }

    const Core::IConstCapture& GetEditCapture() const { return edit.GetCapture(); }

    virtual void SetEditable(bool editable) { edit.SetEditable(editable); }
    virtual bool IsEditable() const { return edit.IsEditable(); }
    virtual void BeginEdit() { edit.Begin(); }

    /// Sets the value that the text stands for, as TextToValue reads it. False, and nothing changes, for a
    /// text that stands for none or while the control is not editable.
    virtual bool SetText(const char* newText);

    /// Sets the description's default, if editable.
    virtual void SetDefault();

    virtual void EndEdit() { edit.End(); }

private:
    Objects::ICaptureParam& param;
    CEditGesture edit;
};

} // namespace Mirel::DataModel::Controls
