#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

namespace Mirel::DataModel::Objects
{

/// An observable number with its description. GUI thread only.
class CCaptureParam : public virtual ICaptureParam, public Core::CCapture
{
public:
    /// Copies the description. The value is 0, whatever the range.
    CCaptureParam() = default;
    explicit CCaptureParam(const IConstParamInfo& info_) : info(info_) {}
    CCaptureParam(const CCaptureParam&) = delete;
    CCaptureParam& operator=(const CCaptureParam&) = delete;

    Core::IEventProvider& GetValueChangedEventProvider() const override { return GetChangedEventProvider(); }
    float GetValue() const override { return value; }
    const CParamInfo& GetInfo() const override { return info; }
    CParamInfo& GetInfo() { return info; }

    /// Clamps to the range of the description, stores on a change, and fires the change and then the set. NaN
    /// is no change.
    void SetValue(float newValue) override;

    /// Fires on every SetValue, changed or not.
    Core::IEventProvider& GetSetEventProvider() const { return set; }

private:
    CParamInfo info;
    float value = 0.0f;
    mutable Core::CEventProvider set; ///< Listening changes nothing of the parameter.
};

} // namespace Mirel::DataModel::Objects
