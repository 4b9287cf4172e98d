#pragma once

#include "Mirel/Audio/Plugin/COutputCaptures.h"
#include "Mirel/Audio/Plugin/TConstOutputTimerProxy.h"
#include "Mirel/DataModel/Objects/CCurveInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

#include <memory>

namespace Mirel::Audio::Plugin
{

/// An output curve; see TConstOutputTimerProxy. The function lives until the next tick.
class CConstOutputCurveTimerProxy
    : public TConstOutputTimerProxy<const Math::IFunction&, DataModel::Objects::IConstCurveInfo,
                                    DataModel::Objects::CCurveInfo, CCurveCapture>
{
public:
    CConstOutputCurveTimerProxy(const CCurveCapture& source,
                                const DataModel::Objects::IConstCurveInfo& curveInfo,
                                System::ITimerProvider& timerProvider)
        : TConstOutputTimerProxy(source, curveInfo, timerProvider)
    {
    }

    /// Until the first publication that of the description.
    const Math::IFunction& GetValue() const override
    {
        return copy == nullptr ? GetInfo().GetDefaultFunction() : *copy;
    }

protected:
    bool TakeOver(const CCurveCapture& source) override { return source.UpdateCopy(copy); }

private:
    std::unique_ptr<Math::IFunction> copy;
};

} // namespace Mirel::Audio::Plugin
