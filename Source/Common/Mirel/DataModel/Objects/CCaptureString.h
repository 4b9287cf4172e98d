#pragma once

#include "Mirel/DataModel/Objects/CConstCaptureString.h"

namespace Mirel::DataModel::Objects
{

/// An observable text that anyone may set. GUI thread only.
class CCaptureString : public virtual ICaptureString, public CConstCaptureString
{
public:
    using CConstCaptureString::CConstCaptureString;

    /// Takes a copy and fires on a change; null is the empty text.
    void SetValue(const char* newText) override { SetText(newText); }

private:
    using CConstCaptureString::SetText; ///< A derived class that overrides SetValue hears of every change.
};

} // namespace Mirel::DataModel::Objects
