#include "Mirel/SkinEngine/Formula/FormulaFunctions.h"

#include "Mirel/Math/TBinaryFunction.h"
#include "Mirel/Math/TFunction.h"

#include <algorithm>
#include <iterator>

namespace Mirel::SkinEngine
{

namespace
{

namespace Library = Math::FunctionsLibrary;

template <class K, class I>
struct TEntry
{
    K key;
    const I* function;
};

template <float (*F)(float)>
TEntry<std::string_view, Math::IFunction> Unary(std::string_view name)
{
    return {name, &Math::SharedFunction<F>()};
}

template <float (*F)(float, float), class K>
TEntry<K, Math::IBinaryFunction> Binary(K key)
{
    return {key, &Math::SharedBinaryFunction<F>()};
}

template <class K, class I, std::size_t n>
const I* Find(const TEntry<K, I> (&table)[n], K key)
{
    const auto* const found = std::find_if(std::begin(table), std::end(table),
                                           [key](const auto& entry) { return entry.key == key; });
    return found != std::end(table) ? found->function : nullptr;
}

} // namespace

std::unique_ptr<Math::IFunction> MakeVariable()
{
    return std::make_unique<Math::TFunction<&Library::Identity>>();
}

std::unique_ptr<Math::IBinaryFunction> MakeFirstVariable()
{
    return std::make_unique<Math::TBinaryFunction<&Library::X>>();
}

std::unique_ptr<Math::IBinaryFunction> MakeSecondVariable()
{
    return std::make_unique<Math::TBinaryFunction<&Library::Y>>();
}

const Math::IBinaryFunction* FindOperator(EFormulaToken type)
{
    static const TEntry<EFormulaToken, Math::IBinaryFunction> operators[] = {
        Binary<&Library::Or>(EFormulaToken::Or),
        Binary<&Library::And>(EFormulaToken::And),
        Binary<&Library::Equality>(EFormulaToken::Equals),
        Binary<&Library::NotEqual>(EFormulaToken::NotEquals),
        Binary<&Library::LowerThan>(EFormulaToken::Lower),
        Binary<&Library::LowerThanEqual>(EFormulaToken::LowerOrEqual),
        Binary<&Library::GreaterThan>(EFormulaToken::Greater),
        Binary<&Library::GreaterThanEqual>(EFormulaToken::GreaterOrEqual),
        Binary<&Library::Sum>(EFormulaToken::Plus),
        Binary<&Library::Difference>(EFormulaToken::Minus),
        Binary<&Library::Product>(EFormulaToken::Multiply),
        Binary<&Library::Division>(EFormulaToken::Divide),
        Binary<&Library::Power>(EFormulaToken::Power),
    };
    return Find(operators, type);
}

const Math::IFunction* FindUnaryFunction(std::string_view name)
{
    static const TEntry<std::string_view, Math::IFunction> functions[] = {
        Unary<&Library::Exp>("exp"),     Unary<&Library::Log>("log"),   Unary<&Library::Cosh>("cosh"),
        Unary<&Library::Sinh>("sinh"),   Unary<&Library::Tanh>("tanh"), Unary<&Library::SquareRoot>("sqrt"),
        Unary<&Library::Cos>("cos"),     Unary<&Library::Sin>("sin"),   Unary<&Library::Tan>("tan"),
        Unary<&Library::Floor>("floor"), Unary<&Library::Ceil>("ceil"), Unary<&Library::Round>("round"),
        Unary<&Library::Abs>("abs"),
    };
    return Find(functions, name);
}

const Math::IBinaryFunction* FindBinaryFunction(std::string_view name)
{
    static const TEntry<std::string_view, Math::IBinaryFunction> functions[] = {
        Binary<&Library::Min>(std::string_view("min")),
        Binary<&Library::Max>(std::string_view("max")),
    };
    return Find(functions, name);
}

} // namespace Mirel::SkinEngine
