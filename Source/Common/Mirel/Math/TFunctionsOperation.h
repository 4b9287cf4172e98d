#pragma once

#include "Mirel/Math/FunctionsLibrary.h"
#include "Mirel/Math/TNFunctionsCombination.h"

namespace Mirel::Math
{

/// A list of functions of one variable, combined from left to right by F: F(F(f0(x), f1(x)), f2(x)). It has
/// no class key: it is put together by code and not created from a document. Any thread evaluates.
template <float (*F)(float, float)>
class TFunctionsOperation : public TNFunctionsCombination<IFunction>
{
public:
    /// Of an empty list: the caller's error.
    float operator()(float x) const override { return Fold(F, x); }

    const char* GetTypeKey() const override { return nullptr; }

    /// Owns clones of all the functions.
    TFunctionsOperation* Clone() const override { return new TFunctionsOperation(*this); }

    bool UpdateClone(IFunction& older) const override
    {
        TFunctionsOperation* const clone = AsClassOf(*this, older);
        return clone != nullptr && this->UpdateFunctions(*clone);
    }
};

} // namespace Mirel::Math
