#pragma once

#include "Mirel/Core/TOwnership.h"
#include "Mirel/Math/IFunction.h"

#include <cstddef>
#include <vector>

namespace Mirel::Math
{

/// A list of functions of one variable, combined from left to right by F: F(F(f0(x), f1(x)), f2(x)).
/// Held together by code rather than by a saved document: it has no class key and saves nothing of its own.
template <float (*F)(float, float)>
class TFunctionsOperation : public IFunction
{
public:
    TFunctionsOperation() = default;

    /// Appends a function; with owned it is destroyed with the list, otherwise it must outlive it.
    void Add(const IFunction* function, bool owned) { functions.emplace_back(function, owned); }

    void Clear() { functions.clear(); }

    /// Of an empty list: the caller's error.
    float operator()(float x) const override
    {
        float value = (*functions.front())(x);
        for (std::size_t i = 1; i < functions.size(); ++i)
        {
            value = F(value, (*functions[i])(x));
        }
        return value;
    }

    const char* GetTypeKey() const override { return nullptr; }
    bool Serialize(Serialization::IWriteDataStream&) const override { return true; }
    bool Deserialize(const Serialization::IReadDataStream&) override { return true; }

    /// Owns clones of all the functions.
    TFunctionsOperation* Clone() const override { return new TFunctionsOperation(*this); }

private:
    std::vector<Core::TOwnershipWithClone<const IFunction>> functions;
};

} // namespace Mirel::Math
