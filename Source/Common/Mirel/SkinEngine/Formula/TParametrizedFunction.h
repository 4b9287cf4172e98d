#pragma once

#include "Mirel/Math/IFunction.h"
#include "Mirel/SkinEngine/Formula/CFormulaParameters.h"

#include <memory>
#include <utility>

namespace Mirel::SkinEngine
{

/// A compiled formula with names in it that are given their objects later. I is IConstant, IFunction or
/// IBinaryFunction; use it by the names below.
///
/// To others the formula is its tree with the present objects in their places: that is what a clone is, which
/// knows no names any more, and what is saved and read again. Evaluated by the thread that sets parameters.
template <class I>
class TParametrizedFunctionBase : public I
{
public:
    TParametrizedFunctionBase() = default;
    TParametrizedFunctionBase(const TParametrizedFunctionBase&) = delete;
    TParametrizedFunctionBase& operator=(const TParametrizedFunctionBase&) = delete;

    CFormulaParameters& GetParameters() { return parameters; }
    const CFormulaParameters& GetParameters() const { return parameters; }

    /// Takes the tree whose placeholders the parameters know. Not evaluated before.
    void SetTree(std::unique_ptr<I> newTree) { tree = std::move(newTree); }

    I* Clone() const override { return tree->Clone(); }
    bool UpdateClone(I& older) const override { return tree->UpdateClone(older); }

    const char* GetTypeKey() const override { return tree->GetTypeKey(); }
    bool Serialize(Serialization::IWriteDataStream& stream) const override { return tree->Serialize(stream); }

    /// False: what would be read knows nothing of the placeholders.
    bool Deserialize(const Serialization::IReadDataStream&) override { return false; }

protected:
    template <class... Arguments>
    float Evaluate(Arguments... arguments) const
    {
        return (*tree)(arguments...);
    }

private:
    CFormulaParameters parameters;
    std::unique_ptr<I> tree;
};

template <class I>
class TParametrizedFunction;

template <>
class TParametrizedFunction<Math::IConstant> : public TParametrizedFunctionBase<Math::IConstant>
{
public:
    float operator()() const override { return Evaluate(); }
};

template <>
class TParametrizedFunction<Math::IFunction> : public TParametrizedFunctionBase<Math::IFunction>
{
public:
    float operator()(float x) const override { return Evaluate(x); }
};

template <>
class TParametrizedFunction<Math::IBinaryFunction> : public TParametrizedFunctionBase<Math::IBinaryFunction>
{
public:
    float operator()(float x, float y) const override { return Evaluate(x, y); }
};

using CParametrizedConstant = TParametrizedFunction<Math::IConstant>;
using CParametrizedFunction = TParametrizedFunction<Math::IFunction>;
using CParametrizedBinaryFunction = TParametrizedFunction<Math::IBinaryFunction>;

} // namespace Mirel::SkinEngine
