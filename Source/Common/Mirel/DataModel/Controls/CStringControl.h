#pragma once

#include "Mirel/DataModel/Controls/CBaseStringViewer.h"
#include "Mirel/DataModel/Controls/CEditGesture.h"

namespace Mirel::DataModel::Controls
{

/// A string viewer that also takes a text. GUI thread only.
class CStringControl : public CBaseStringViewer
{
public:
    /// The string is not owned and must outlive the control. The control begins editable.
    explicit CStringControl(Objects::ICaptureString& string_)
        : CBaseStringViewer(string_),
          string(string_),
          edit(string_)
    {
    }

    Core::IEventProvider& GetEditableChangedEventProvider() const
    {
        return edit.GetEditableChangedEventProvider();
    }

    const Core::IConstCapture& GetEditCapture() const { return edit.GetCapture(); }

    virtual void SetEditable(bool editable) { edit.SetEditable(editable); }
    virtual bool IsEditable() const { return edit.IsEditable(); }
    virtual void BeginEdit() { edit.Begin(); }

    /// False, and nothing changes, while the control is not editable. Null is the empty text.
    virtual bool SetText(const char* newText)
    {
        if (!IsEditable())
        {
            return false;
        }
        string.SetValue(newText);
        return true;
    }

    /// Sets the description's default text, if editable.
    virtual void SetDefault() { SetText(GetInfo().GetDefault()); }

    virtual void EndEdit() { edit.End(); }

private:
    Objects::ICaptureString& string;
    CEditGesture edit;
};

} // namespace Mirel::DataModel::Controls
