#pragma once

#include "Mirel/Math/TNFunctionsAggregate.h"

namespace Mirel::Math
{

/// The common part of the functions whose value is that of all functions of a list, combined from left to
/// right: F(F(f0, f1), f2).
template <class I>
class TNFunctionsCombination : public TNFunctionsAggregate<I>
{
public:
    /// False also if the list is empty or has an empty entry: then there is no value.
    bool Deserialize(const Serialization::IReadDataStream& stream) override
    {
        bool ok = TNFunctionsAggregate<I>::Deserialize(stream) && this->GetCount() > 0;
        for (int i = 0; ok && i < this->GetCount(); ++i)
        {
            ok = this->GetFunction(i) != nullptr;
        }
        return ok;
    }

protected:
    /// Of an empty list: the caller's error.
    template <class Combine, class... Arguments>
    float Fold(Combine combine, Arguments... arguments) const
    {
        float value = (*this->GetFunction(0))(arguments...);
        for (int i = 1; i < this->GetCount(); ++i)
        {
            value = combine(value, (*this->GetFunction(i))(arguments...));
        }
        return value;
    }
};

} // namespace Mirel::Math
