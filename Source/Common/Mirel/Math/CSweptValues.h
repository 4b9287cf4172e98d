#pragma once

#include "Mirel/Math/IFunction.h"
#include "Mirel/Math/TSweptRing.h"

namespace Mirel::Math
{

/// The history of a number as a function of time: 0 is the newest sample, -2 what was two seconds before it,
/// and between two samples the value runs straight. Where there is no history the function has a default
/// value. Belongs to one thread, the GUI thread as a rule; others evaluate clones.
class CSweptValues : public IFunction
{
public:
    static constexpr const char* classKey = "{852FDB81-5DDA-4440-9598-AF98A8CFBC3D}";

    /// The value where there is no history.
    void SetDefaultValue(float newDefaultValue) { defaultValue = newDefaultValue; }
    float GetDefaultValue() const { return defaultValue; }

    /// The length of the history in seconds, as a note for whoever shows it: how much is kept is the
    /// capacity's business.
    void SetDuration(float seconds) { ring.SetDuration(seconds); }
    float GetDuration() const { return ring.GetDuration(); }

    /// Room for that many samples, raised to a power of two, at least 1 and at most TSweptRing's maxCapacity;
    /// keeps the newest that fit. Allocates.
    void SetCapacity(int samples) { ring.SetCapacity(samples); }
    int GetCapacity() const { return ring.GetCapacity(); }

    int GetPointsCount() const { return ring.GetCount(); }
    float GetPointsPerSecond() const { return ring.GetPointsPerSecond(); }

    /// Forgets all samples; default value, duration and capacity stay.
    void Clear() { ring.Clear(); }

    /// Enters a sample at a time in seconds, in place of the oldest once the ring is full. False, with the
    /// sample dropped, if the time is not later than that of the newest one. Allocates nothing.
    bool Add(float time, float value);

    /// Moves all samples in time, by seconds: the function stays the same. It keeps time stamps small where a
    /// clock runs for hours, which a float cannot count finely.
    void MoveTimes(float seconds) { ring.MoveTimes(seconds); }

    float operator()(float offset) const override;

    const char* GetTypeKey() const override { return classKey; }
    CSweptValues* Clone() const override { return new CSweptValues(*this); }

    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// Forgets all samples and reads; what is missing stays as it is. False, without samples, if the saved
    /// ring is damaged.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

private:
    float defaultValue = 0.0f;
    TSweptRing<float> ring;
};

} // namespace Mirel::Math
