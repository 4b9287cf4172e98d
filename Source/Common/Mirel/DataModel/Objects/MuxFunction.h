#pragma once

#include <vector>

namespace Mirel::DataModel::Objects
{

/// How a link from many parameters makes one value of theirs.
enum class EMuxFunction
{
    Mean,
    Max,
    Min,
    MinusMax, ///< The negated value, here and in the next two; on positions from 0 to 1 what it lacks to 1.
    MinusMin,
    MinusMean,
    Lower, ///< 1 if the comparison holds between each value and the next, else 0; so for all that follow.
    LowerOrEqual,
    Greater,
    GreaterOrEqual,
    Equal,
};

/// The function that a model file names: "mean", "max", "min", "-max", "-min", "-mean", "<", "<=", ">", ">=",
/// "=". Null and any other text give the mean.
EMuxFunction MuxFunctionFromName(const char* name);

/// Combines values in their order; NaN is taken as the function library takes it. No value gives 0, and a
/// single one meets every comparison. normalized says that values and result are positions from 0 to 1.
float CombineValues(EMuxFunction function, const std::vector<float>& values, bool normalized);

} // namespace Mirel::DataModel::Objects
