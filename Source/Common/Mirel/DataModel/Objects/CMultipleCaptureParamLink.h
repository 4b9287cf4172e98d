#pragma once

#include "Mirel/DataModel/Objects/CaptureObjects.h"
#include "Mirel/DataModel/Objects/MuxFunction.h"
#include "Mirel/DataModel/TMultipleCaptureObjectLink.h"

#include <optional>

namespace Mirel::DataModel::Objects
{

/// A link from many parameters to many: makes one value of the sources' values and writes it to each target
/// other than the source that changed. GUI thread only.
class CMultipleCaptureParamLink : public TMultipleCaptureObjectLink<IConstCaptureParam, ICaptureParam>
{
public:
    EMuxFunction GetFunction() const { return function; }
    void SetFunction(EMuxFunction newFunction) { Set(function, newFunction); }

    bool IsReverse() const { return reverse; }
    void SetReverse(bool newReverse) { Set(reverse, newReverse); }

    bool IsNormalized() const { return normalized; }

    /// Takes each source as its position in its own range, and the result as the position in each target's.
    void SetNormalized(bool newNormalized) { Set(normalized, newNormalized); }

    /// A source below the minimum or above the maximum triggers nothing, and a target whose own value lies
    /// there is not written. Absent at first.
    std::optional<float> GetTriggerMin() const { return triggerMin; }
    std::optional<float> GetTriggerMax() const { return triggerMax; }
    void SetTriggerMin(std::optional<float> min) { SetTrigger(triggerMin, min); }
    void SetTriggerMax(std::optional<float> max) { SetTrigger(triggerMax, max); }

protected:
    /// With no source in particular, at least one has to pass the trigger test.
    void UpdateFrom(const IConstCaptureParam* changedSource) override;

private:
    template <class V>
    void Set(V& field, V newValue)
    {
        if (field != newValue)
        {
            field = newValue;
            ApplySettings();
        }
    }

    void SetTrigger(std::optional<float>& field, std::optional<float> newValue);
    bool IsTriggeredBy(const IConstCaptureParam* changedSource) const;
    bool PassesTrigger(float value) const;
    float CombineSources();

    EMuxFunction function = EMuxFunction::Mean;
    bool reverse = false;
    bool normalized = false;
    std::optional<float> triggerMin;
    std::optional<float> triggerMax;
    std::vector<float> values; ///< Kept, so that updates do not allocate.
};

} // namespace Mirel::DataModel::Objects
