#include "Mirel/SkinEngine/Formula/TFormulaFamily.h"

#include <type_traits>
#include <utility>

namespace Mirel::SkinEngine
{

template <class I>
std::unique_ptr<I> MakeNumber(float value)
{
    return std::make_unique<typename TFormulaFamily<I>::CNumber>(value);
}

template <class I>
std::unique_ptr<I> MakeCombination(std::unique_ptr<I> left, std::unique_ptr<I> right,
                                   Math::TFunctionHolder<Math::IBinaryFunction> combine)
{
    using CCombination = typename TFormulaFamily<I>::CCombination;
    return std::make_unique<CCombination>(Math::TFunctionHolder<I>(left.release(), true),
                                          Math::TFunctionHolder<I>(right.release(), true),
                                          std::move(combine));
}

template <class I>
std::unique_ptr<I> MakeComposition(const Math::IFunction* function, bool functionOwned,
                                   std::unique_ptr<I> inner)
{
    using CComposition = typename TFormulaFamily<I>::CComposition;
    if constexpr (std::is_same_v<I, Math::IFunction>)
    {
        auto composition = std::make_unique<CComposition>();
        composition->Add(inner.release(), true);
        composition->Add(function, functionOwned);
        return composition;
    }
    else
    {
        return std::make_unique<CComposition>(Math::TFunctionHolder<Math::IFunction>(function, functionOwned),
                                              Math::TFunctionHolder<I>(inner.release(), true));
    }
}

template std::unique_ptr<Math::IConstant> MakeNumber(float);
template std::unique_ptr<Math::IConstant> MakeCombination(std::unique_ptr<Math::IConstant>,
                                                          std::unique_ptr<Math::IConstant>,
                                                          Math::TFunctionHolder<Math::IBinaryFunction>);
template std::unique_ptr<Math::IConstant> MakeComposition(const Math::IFunction*, bool,
                                                          std::unique_ptr<Math::IConstant>);

template std::unique_ptr<Math::IFunction> MakeNumber(float);
template std::unique_ptr<Math::IFunction> MakeCombination(std::unique_ptr<Math::IFunction>,
                                                          std::unique_ptr<Math::IFunction>,
                                                          Math::TFunctionHolder<Math::IBinaryFunction>);
template std::unique_ptr<Math::IFunction> MakeComposition(const Math::IFunction*, bool,
                                                          std::unique_ptr<Math::IFunction>);

template std::unique_ptr<Math::IBinaryFunction> MakeNumber(float);
template std::unique_ptr<Math::IBinaryFunction> MakeCombination(std::unique_ptr<Math::IBinaryFunction>,
                                                                std::unique_ptr<Math::IBinaryFunction>,
                                                                Math::TFunctionHolder<Math::IBinaryFunction>);
template std::unique_ptr<Math::IBinaryFunction> MakeComposition(const Math::IFunction*, bool,
                                                                std::unique_ptr<Math::IBinaryFunction>);

} // namespace Mirel::SkinEngine
