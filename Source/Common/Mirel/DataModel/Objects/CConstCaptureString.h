#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/Core/CCharString.h"
#include "Mirel/DataModel/Objects/CStringInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

namespace Mirel::DataModel::Objects
{

/// An observable text that its owner sets and everyone else, who sees the IConstCaptureString, reads. GUI
/// thread only.
class CConstCaptureString : public virtual IConstCaptureString, public Core::CCapture
{
public:
    CConstCaptureString() = default;

    /// Copies the description. The text is empty, whatever the default.
    explicit CConstCaptureString(const IConstStringInfo& info_) : info(info_) {}
    CConstCaptureString(const CConstCaptureString&) = delete;
    CConstCaptureString& operator=(const CConstCaptureString&) = delete;

    Core::IEventProvider& GetValueChangedEventProvider() const override { return GetChangedEventProvider(); }

    /// Never null; valid until the next change.
    const char* GetValue() const override { return text.GetOrEmpty(); }

    /// Takes a copy and fires on a change; null is the empty text.
    void SetText(const char* newText)
    {
        if (text.Assign(newText))
        {
            OnTextStored(text.GetOrEmpty());
            NotifyChanged();
        }
    }

    const CStringInfo& GetInfo() const override { return info; }
    CStringInfo& GetInfo() { return info; }

protected:
    /// Runs between the storing of a new text and its notification.
    virtual void OnTextStored(const char*) {}

private:
    CStringInfo info;
    Core::CCharString text;
};

} // namespace Mirel::DataModel::Objects
