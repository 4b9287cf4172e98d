#include "Mirel/DataModel/Objects/MuxFunction.h"

#include "Mirel/Math/FunctionsLibrary.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <numeric>
#include <string_view>

namespace Mirel::DataModel::Objects
{

namespace
{

using namespace Math::FunctionsLibrary;

using BinaryFunction = float (*)(float x, float y);

float FoldValues(BinaryFunction function, const std::vector<float>& values)
{
    return std::accumulate(std::next(values.begin()), values.end(), values.front(), function);
}

float MeanOf(const std::vector<float>& values)
{
    return FoldValues(Sum, values) / static_cast<float>(values.size());
}

/// 1 if the comparison holds between all neighbours.
float CompareNeighbours(BinaryFunction comparison, const std::vector<float>& values)
{
    const auto fails = [comparison](float x, float y) { return !IsNotZero(comparison(x, y)); };
    return FromBool(std::adjacent_find(values.begin(), values.end(), fails) == values.end());
}

float NegateValue(float value, bool normalized)
{
    return normalized ? 1.0f - value : Negate(value);
}

} // namespace

EMuxFunction MuxFunctionFromName(const char* name)
{
    static constexpr struct
    {
        std::string_view name;
        EMuxFunction function;
    } names[] = {
        {"mean", EMuxFunction::Mean},     {"max", EMuxFunction::Max},
        {"min", EMuxFunction::Min},       {"-max", EMuxFunction::MinusMax},
        {"-min", EMuxFunction::MinusMin}, {"-mean", EMuxFunction::MinusMean},
        {"<", EMuxFunction::Lower},       {"<=", EMuxFunction::LowerOrEqual},
        {">", EMuxFunction::Greater},     {">=", EMuxFunction::GreaterOrEqual},
        {"=", EMuxFunction::Equal},
    };
    for (const auto& each : names)
    {
        if (name != nullptr && each.name == name)
        {
            return each.function;
        }
    }
    return EMuxFunction::Mean;
}

float CombineValues(EMuxFunction function, const std::vector<float>& values, bool normalized)
{
    if (values.empty())
    {
        return 0.0f;
    }
    switch (function)
    {
    case EMuxFunction::Mean:
        return MeanOf(values);
    case EMuxFunction::Max:
        return FoldValues(Max, values);
    case EMuxFunction::Min:
        return FoldValues(Min, values);
    case EMuxFunction::MinusMax:
        return NegateValue(FoldValues(Max, values), normalized);
    case EMuxFunction::MinusMin:
        return NegateValue(FoldValues(Min, values), normalized);
    case EMuxFunction::MinusMean:
        return NegateValue(MeanOf(values), normalized);
    case EMuxFunction::Lower:
        return CompareNeighbours(LowerThan, values);
    case EMuxFunction::LowerOrEqual:
        return CompareNeighbours(LowerThanEqual, values);
    case EMuxFunction::Greater:
        return CompareNeighbours(GreaterThan, values);
    case EMuxFunction::GreaterOrEqual:
        return CompareNeighbours(GreaterThanEqual, values);
    case EMuxFunction::Equal:
        return CompareNeighbours(Equality, values);
    }
    return 0.0f;
}

} // namespace Mirel::DataModel::Objects
