#pragma once

#include "Mirel/Math/TFunctionHolder.h"
#include "Mirel/Math/TSweptRing.h"

namespace Mirel::Math
{

/// The history of a curve as a function of time and x: at time 0 the newest curve, at -2 what it was two
/// seconds before; between two curves the value runs straight from one to the other. Where there is no
/// history a default function has its place. Belongs to one thread, the GUI thread as a rule; others evaluate
/// clones.
class CSweptCurvesFunction : public IBinaryFunction
{
public:
    static constexpr const char* classKey = "{D4E5AB2C-72BD-446e-BC18-BA7745DCA94A}";

    /// The function where there is no history; null, as at first, counts as 0 everywhere. With owned it is
    /// destroyed with this object or on replacement, otherwise it must outlive it.
    void SetDefaultFunction(const IFunction* function, bool owned) { defaultFunction.Set(function, owned); }
    const IFunction* GetDefaultFunction() const { return defaultFunction.Get(); }

    /// The length of the history in seconds, as a note for whoever shows it: how much is kept is the
    /// capacity's business.
    void SetDuration(float seconds) { ring.SetDuration(seconds); }
    float GetDuration() const { return ring.GetDuration(); }

    /// Room for that many curves, raised to a power of two, at least 1 and at most TSweptRing's maxCapacity;
    /// keeps the newest that fit. Allocates.
    void SetCapacity(int curves) { ring.SetCapacity(curves); }
    int GetCapacity() const { return ring.GetCapacity(); }

    int GetPointsCount() const { return ring.GetCount(); }
    float GetPointsPerSecond() const { return ring.GetPointsPerSecond(); }

    /// Forgets all curves; default function, duration and capacity stay.
    void Clear() { ring.Clear(); }

    /// Enters a clone of the curve as it is at a time in seconds, in place of the oldest once the ring is
    /// full. False, with nothing cloned, if the time is not later than that of the newest one.
    bool Add(float time, const IFunction& curve);

    /// Moves all curves in time, by seconds: the function stays the same. It keeps time stamps small where a
    /// clock runs for hours, which a float cannot count finely.
    void MoveTimes(float seconds) { ring.MoveTimes(seconds); }

    float operator()(float offset, float x) const override;

    const char* GetTypeKey() const override { return classKey; }
    CSweptCurvesFunction* Clone() const override { return new CSweptCurvesFunction(*this); }

    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// Forgets all curves and reads; what is missing stays as it is. A curve that could not be created is
    /// replaced by the default function. False, without curves, if the saved ring is damaged.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

private:
    float EvaluateDefault(float x) const;
    float Evaluate(const TFunctionHolder<IFunction>& curve, float x) const;

    TFunctionHolder<IFunction> defaultFunction;
    TSweptRing<TFunctionHolder<IFunction>> ring;
};

} // namespace Mirel::Math
