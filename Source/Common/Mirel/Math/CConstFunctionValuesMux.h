#pragma once

#include "Mirel/Containers/TIVector.h"
#include "Mirel/Math/IFunction.h"

namespace Mirel::Math
{

/// The values that the functions of a list have at one x, read by the function's index: what is written for
/// a list of numbers can so be applied to curves, position by position. Does not own the list, which must
/// outlive it. One thread.
class CConstFunctionValuesMux
{
public:
    explicit CConstFunctionValuesMux(const Containers::TIConstVector<const IFunction*>& functions_,
                                     float x_ = 0.0f)
        : functions(&functions_),
          x(x_)
    {
    }

    /// Where the functions are evaluated from now on.
    void SetX(float newX) { x = newX; }
    float GetX() const { return x; }

    int GetCount() const { return functions->GetCount(); }

    /// Evaluates the function of that index; 0 beyond the list and for an empty entry.
    float GetValue(int index) const
    {
        const IFunction* function =
            index >= 0 && index < functions->GetCount() ? (*functions)[index] : nullptr;
        return function == nullptr ? 0.0f : (*function)(x);
    }

private:
    const Containers::TIConstVector<const IFunction*>* functions;
    float x;
};

} // namespace Mirel::Math
