#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/Core/CCharString.h"
#include "Mirel/DataModel/Objects/CStringInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

namespace Mirel::DataModel::Objects
{

/// An observable text with its description. GUI thread only.
class CCaptureString : public virtual ICaptureString, public Core::CCapture
{
public:
    CCaptureString() = default;

    /// Copies the description. The text is empty.
    explicit CCaptureString(const IConstStringInfo& info_) : info(info_) {}
    CCaptureString(const CCaptureString&) = delete;
    CCaptureString& operator=(const CCaptureString&) = delete;

    Core::IEventProvider& GetValueChangedEventProvider() const override { return GetChangedEventProvider(); }

    /// Never null; valid until the next change.
    const char* GetValue() const override { return text.GetOrEmpty(); }

    /// Takes a copy and fires on a change; null is the empty text.
    void SetValue(const char* newText) override
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
