#pragma once

#include "Mirel/Core/Numeric.h"

#include <cmath>
#include <numbers>

/// The elementary functions as plain functions: TFunction and TBinaryFunction make objects of them. Single
/// precision, without state, on any thread.
///
/// A comparison with NaN has an outcome that is part of the behaviour: where a NaN comes in, some conditions
/// below are written as the negation of their opposite for its sake.
namespace Mirel::Math::FunctionsLibrary
{

/// Also false for NaN.
inline bool IsNotZero(float x)
{
    return x < 0.0f || x > 0.0f;
}

inline float FromBool(bool condition)
{
    return condition ? 1.0f : 0.0f;
}

inline float Identity(float x)
{
    return x;
}

/// Flips the sign, also that of zeros and NaNs.
inline float Negate(float x)
{
    return -x;
}

inline float Square(float x)
{
    return x * x;
}

/// 0 where there is no root, and for NaN.
inline float SquareRoot(float x)
{
    return x > 0.0f ? std::sqrt(x) : 0.0f;
}

inline float Exp(float x)
{
    return std::exp(x);
}

inline float Log(float x)
{
    return std::log(x);
}

inline constexpr float ln2 = std::numbers::ln2_v<float>;
inline constexpr float ln11 = 2.39789527f;
inline constexpr float ln101 = 4.61512052f;
inline constexpr float ln1001 = 6.90875478f;

// The curves below run from 0 at 0 to 1 at 1; each NormLog is the inverse of its NormExp. The number tells
// how many powers of ten the slopes at the two ends lie apart.

inline float NormExp(float x)
{
    return std::exp(x * ln2) - 1.0f;
}

inline float NormLog(float x)
{
    return std::log(x + 1.0f) / ln2;
}

inline float NormExp1(float x)
{
    return (std::exp(x * ln11) - 1.0f) * 0.1f;
}

inline float NormLog1(float x)
{
    return std::log(10.0f * x + 1.0f) / ln11;
}

inline float NormExp2(float x)
{
    return (std::exp(x * ln101) - 1.0f) * 0.01f;
}

inline float NormLog2(float x)
{
    return std::log(100.0f * x + 1.0f) / ln101;
}

inline float NormExp3(float x)
{
    return (std::exp(x * ln1001) - 1.0f) * 0.001f;
}

inline float NormLog3(float x)
{
    return std::log(1000.0f * x + 1.0f) / ln1001;
}

/// An amplitude in decibels. The logarithm is a double: texts of levels show its digits.
inline float TodB(float x)
{
    return static_cast<float>(20.0 * std::log10(static_cast<double>(x)));
}

inline float FromdB(float x)
{
    return std::pow(10.0f, 0.05f * x);
}

/// NaN counts as zero here and in And and Or.
inline float Not(float x)
{
    return FromBool(!IsNotZero(x));
}

inline float Cos(float x)
{
    return std::cos(x);
}

inline float Sin(float x)
{
    return std::sin(x);
}

inline float Tan(float x)
{
    return std::tan(x);
}

inline float Cosh(float x)
{
    return std::cosh(x);
}

inline float Sinh(float x)
{
    return std::sinh(x);
}

inline float Tanh(float x)
{
    return std::tanh(x);
}

inline float Floor(float x)
{
    return std::floor(x);
}

inline float Ceil(float x)
{
    return std::ceil(x);
}

/// Halves go away from zero. What does not fit a 32-bit integer, and NaN, give -2147483648.
inline float Round(float x)
{
    const auto wide = static_cast<double>(x);
    return static_cast<float>(Core::TruncateToInt32(x > 0.0f ? wide + 0.5 : wide - 0.5));
}

inline float Abs(float x)
{
    return std::fabs(x);
}

inline float Average(float x, float y)
{
    return (x + y) * 0.5f;
}

/// With a NaN: y, here and in Min.
inline float Max(float x, float y)
{
    return x >= y ? x : y;
}

inline float Min(float x, float y)
{
    return y >= x ? x : y;
}

inline float Sum(float x, float y)
{
    return x + y;
}

inline float Difference(float x, float y)
{
    return x - y;
}

inline float Product(float x, float y)
{
    return x * y;
}

inline float Power(float x, float y)
{
    return std::pow(x, y);
}

inline float Division(float x, float y)
{
    return x / y;
}

/// The length of the vector (x, y).
inline float Module(float x, float y)
{
    return std::sqrt(x * x + y * y);
}

inline float Distance(float x, float y)
{
    return std::fabs(x - y);
}

/// 1 with a NaN.
inline float Equality(float x, float y)
{
    return FromBool(!(x < y || x > y));
}

/// 0 with a NaN.
inline float NotEqual(float x, float y)
{
    return FromBool(x < y || x > y);
}

/// 1 with a NaN.
inline float LowerThan(float x, float y)
{
    return FromBool(!(x >= y));
}

/// 1 with a NaN.
inline float LowerThanEqual(float x, float y)
{
    return FromBool(!(x > y));
}

/// 0 with a NaN.
inline float GreaterThan(float x, float y)
{
    return FromBool(x > y);
}

/// 0 with a NaN.
inline float GreaterThanEqual(float x, float y)
{
    return FromBool(x >= y);
}

inline float And(float x, float y)
{
    return FromBool(IsNotZero(x) && IsNotZero(y));
}

inline float Or(float x, float y)
{
    return FromBool(IsNotZero(x) || IsNotZero(y));
}

inline float X(float x, float)
{
    return x;
}

inline float Y(float, float y)
{
    return y;
}

} // namespace Mirel::Math::FunctionsLibrary
