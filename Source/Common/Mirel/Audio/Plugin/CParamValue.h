#pragma once

#include "Mirel/Core/TIValue.h"
#include "Mirel/DataModel/Objects/IConstParamInfo.h"

#include <atomic>

namespace Mirel::Audio::Plugin
{

/// Keeps a value to a range as a parameter does: not below min first, then not above max.
inline float ClampToRange(float value, float min, float max)
{
    const float atLeast = min > value ? min : value;
    return atLeast > max ? max : atLeast;
}

/// Sets a parameter to a value from outside, kept to the range of the description. NaN leaves it alone.
void SetWithinRange(Core::TIValue<float>& param, const DataModel::Objects::IConstParamInfo& info,
                    float value);

/// The plain value of one parameter, which the host's threads and the editor write while the audio thread
/// reads it. Any thread; each access is one relaxed atomic, so that nobody waits and no value is torn.
class CParamValue : public virtual Core::TIValue<float>
{
public:
    /// The default of the description. Its range is copied: a description may change on the GUI thread.
    explicit CParamValue(const DataModel::Objects::IConstParamInfo& info);
    CParamValue(const CParamValue&) = delete;
    CParamValue& operator=(const CParamValue&) = delete;

    float GetValue() const override { return value.load(std::memory_order_relaxed); }

    /// Clamps to the range. NaN leaves the value.
    void SetValue(float newValue) override;

private:
    float min;
    float max;
    std::atomic<float> value;
};

} // namespace Mirel::Audio::Plugin
