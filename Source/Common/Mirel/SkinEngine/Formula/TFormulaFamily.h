#pragma once

#include "Mirel/Math/CBinaryFunctionComposition.h"
#include "Mirel/Math/CBinaryFunctionsCombination.h"
#include "Mirel/Math/CConstant.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantComposition.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/CConstantsCombination.h"
#include "Mirel/Math/CFunctionsCombination.h"
#include "Mirel/Math/CFunctionsComposition.h"

#include <memory>

namespace Mirel::SkinEngine
{

// How the trees of formulas are made, which depends on the number of their variables: I is IConstant,
// IFunction or IBinaryFunction.
// What is made owns its parts, but for functions that are passed as not owned.

template <class I>
struct TFormulaFamily;

template <>
struct TFormulaFamily<Math::IConstant>
{
    using CNumber = Math::CConstant;
    using CCombination = Math::CConstantsCombination;
    using CComposition = Math::CConstantComposition;
};

template <>
struct TFormulaFamily<Math::IFunction>
{
    using CNumber = Math::CConstantFunction;
    using CCombination = Math::CFunctionsCombination;
    using CComposition = Math::CFunctionsComposition;
};

template <>
struct TFormulaFamily<Math::IBinaryFunction>
{
    using CNumber = Math::CConstantBinaryFunction;
    using CCombination = Math::CBinaryFunctionsCombination;
    using CComposition = Math::CBinaryFunctionComposition;
};

template <class I>
std::unique_ptr<I> MakeNumber(float value);

/// combine(left, right).
template <class I>
std::unique_ptr<I> MakeCombination(std::unique_ptr<I> left, std::unique_ptr<I> right,
                                   Math::TFunctionHolder<Math::IBinaryFunction> combine);

/// function(inner).
template <class I>
std::unique_ptr<I> MakeComposition(const Math::IFunction* function, bool functionOwned,
                                   std::unique_ptr<I> inner);

} // namespace Mirel::SkinEngine
