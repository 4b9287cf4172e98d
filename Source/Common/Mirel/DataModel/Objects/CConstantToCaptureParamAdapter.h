#pragma once

#include "Mirel/Core/CCapture.h"
#include "Mirel/Core/IUpdate.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

namespace Mirel::DataModel::Objects
{

/// Presents a number that is an object, as a formula is, as a parameter that can only be read. The value is
/// the one of the last update, not clamped to the description's range. Nobody captures it. GUI thread only.
class CConstantToCaptureParamAdapter : public virtual IConstCaptureParam, public virtual Core::IUpdate
{
public:
    /// Copies the description. The value is 0 until there is a constant.
    explicit CConstantToCaptureParamAdapter(const IConstParamInfo& info_) : info(info_) {}

    /// The constant is not owned unless owned says so; null for none.
    CConstantToCaptureParamAdapter(const IConstParamInfo& info_, const Math::IConstant* constant_,
                                   bool owned);

    CConstantToCaptureParamAdapter(const CConstantToCaptureParamAdapter&) = delete;
    CConstantToCaptureParamAdapter& operator=(const CConstantToCaptureParamAdapter&) = delete;

    /// Takes another constant and updates.
    void SetConstant(const Math::IConstant* newConstant, bool owned);

    /// Evaluates the constant, for when what it depends on has moved; fires the change if the value differs,
    /// and the set in any case.
    void Update() override;

    float GetValue() const override { return value; }
    Core::IEventProvider& GetValueChangedEventProvider() const override
    {
        return capture.GetChangedEventProvider();
    }

    /// Fires on every update, changed or not.
    Core::IEventProvider& GetSetEventProvider() const { return set; }

    const CParamInfo& GetInfo() const override { return info; }
    CParamInfo& GetInfo() { return info; }

    Core::IEventProvider& GetBeginCaptureEventProvider() const override
    {
        return capture.GetBeginCaptureEventProvider();
    }
    Core::IEventProvider& GetEndCaptureEventProvider() const override
    {
        return capture.GetEndCaptureEventProvider();
    }
    bool IsCaptured() const override { return capture.IsCaptured(); }

private:
    float Evaluate() const { return constant ? (*constant)() : 0.0f; }

    CParamInfo info;
    Core::TOwnership<const Math::IConstant> constant;
    float value = 0.0f;
    Core::CCapture capture;
    mutable Core::CEventProvider set; ///< Listening changes nothing of the parameter.
};

} // namespace Mirel::DataModel::Objects
