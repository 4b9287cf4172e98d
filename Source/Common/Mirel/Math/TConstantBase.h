#pragma once

#include "Mirel/Serialization/DataStreams.h"

namespace Mirel::Math
{

/// The common part of the functions that give one number wherever they are evaluated: the number, saved under
/// the key "value".
template <class I>
class TConstantBase : public I
{
public:
    explicit TConstantBase(float value_) : value(value_) {}

    float GetValue() const { return value; }

    /// Not for an object that others may be evaluating at the time.
    void SetValue(float newValue) { value = newValue; }

    bool Serialize(Serialization::IWriteDataStream& stream) const override
    {
        return stream.Write("value", value);
    }

    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        return stream.Read("value", value);
    }

    bool UpdateClone(I& older) const override
    {
        TConstantBase* const clone = I::AsClassOf(*this, older);
        if (clone == nullptr)
        {
            return false;
        }
        clone->value = value;
        return true;
    }

private:
    float value;
};

} // namespace Mirel::Math
