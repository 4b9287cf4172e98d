#include "Mirel/Math/FunctionsRegistration.h"

#include "Mirel/Core/Interpolators.h"
#include "Mirel/Core/TLookupTable.h"
#include "Mirel/Math/CBinaryFunctionComposition.h"
#include "Mirel/Math/CBinaryFunctionProxy.h"
#include "Mirel/Math/CBinaryFunctionsCombination.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantComposition.h"
#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/CConstantsCombination.h"
#include "Mirel/Math/CFunctionProxy.h"
#include "Mirel/Math/CFunctionsCombination.h"
#include "Mirel/Math/CFunctionsComposition.h"
#include "Mirel/Math/CSweptCurvesFunction.h"
#include "Mirel/Math/CSweptValues.h"
#include "Mirel/Math/TBinaryFunction.h"
#include "Mirel/Math/TCircularLUTFunction.h"
#include "Mirel/Math/TDeprecatedCircularLUTFunction.h"
#include "Mirel/Math/TFunction.h"
#include "Mirel/Math/TLUTFunction.h"
#include "Mirel/Runtime/TClassRegistration.h"

namespace Mirel::Math
{

namespace
{

template <class I, class... Classes>
void RegisterAs()
{
    (static_cast<void>(Runtime::TClassRegistration<Classes, I>()), ...);
}

template <float (*... F)(float)>
void RegisterElementary()
{
    RegisterAs<IFunction, TFunction<F>...>();
}

template <float (*... F)(float, float)>
void RegisterElementaryBinary()
{
    RegisterAs<IBinaryFunction, TBinaryFunction<F>...>();
}

void RegisterLibrary()
{
    namespace Library = FunctionsLibrary;
    RegisterElementary<&Library::Identity, &Library::Negate, &Library::Square, &Library::SquareRoot,
                       &Library::Exp, &Library::Log, &Library::NormExp, &Library::NormLog, &Library::NormExp1,
                       &Library::NormLog1, &Library::NormExp2, &Library::NormLog2, &Library::NormExp3,
                       &Library::NormLog3, &Library::TodB, &Library::FromdB, &Library::Not, &Library::Cos,
                       &Library::Sin, &Library::Tan, &Library::Cosh, &Library::Sinh, &Library::Tanh,
                       &Library::Floor, &Library::Ceil, &Library::Round, &Library::Abs>();
    RegisterElementaryBinary<&Library::Average, &Library::Max, &Library::Min, &Library::Sum,
                             &Library::Difference, &Library::Product, &Library::Power, &Library::Division,
                             &Library::Module, &Library::Distance, &Library::Equality, &Library::NotEqual,
                             &Library::LowerThan, &Library::LowerThanEqual, &Library::GreaterThan,
                             &Library::GreaterThanEqual, &Library::And, &Library::Or, &Library::X,
                             &Library::Y>();
}

void RegisterComposites()
{
    RegisterAs<IFunction, CConstantFunction, CFunctionProxy, CFunctionsComposition, CFunctionsCombination,
               CSweptValues>();
    RegisterAs<IBinaryFunction, CConstantBinaryFunction, CBinaryFunctionProxy, CBinaryFunctionComposition,
               CBinaryFunctionsCombination, CSweptCurvesFunction>();
    RegisterAs<IConstant, CConstantComposition, CConstantsCombination>();
}

void RegisterTables()
{
    using CLinear = Core::TLookupTable<float, Core::TLinearInterpolator<float, float>>;
    using CNearest = Core::TLookupTable<float, Core::TNearestInterpolator<float, float>>;
    using CSpline = Core::TLookupTable<float, Core::TConstrainedSplineInterpolator<float, float>>;
    RegisterAs<IFunction, TLUTFunction<CLinear>, TLUTFunction<CNearest>, TLUTFunction<CSpline>,
               TCircularLUTFunction<CSpline>, TDeprecatedCircularLUTFunction<CSpline>>();
}

} // namespace

bool RegisterFunctions()
{
    RegisterLibrary();
    RegisterComposites();
    RegisterTables();
    return true;
}

} // namespace Mirel::Math
