#pragma once

#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantFunction.h"

namespace Tests
{

/// A constant that counts its living clones, itself included.
template <class Base>
class TCountedFunction : public Base
{
public:
    TCountedFunction(int& alive_, float value_) : Base(value_), alive(alive_) { ++alive; }
    TCountedFunction(const TCountedFunction& other) : Base(other), alive(other.alive) { ++alive; }
    TCountedFunction& operator=(const TCountedFunction&) = delete;
    ~TCountedFunction() override { --alive; }

    TCountedFunction* Clone() const override { return new TCountedFunction(*this); }

private:
    int& alive;
};

using CCountedFunction = TCountedFunction<Mirel::Math::CConstantFunction>;
using CCountedBinaryFunction = TCountedFunction<Mirel::Math::CConstantBinaryFunction>;

} // namespace Tests
