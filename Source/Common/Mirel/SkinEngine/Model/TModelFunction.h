#pragma once

#include "Mirel/DataModel/TICaptureObject.h"
#include "Mirel/Math/TFunctionHolder.h"
#include "Mirel/SkinEngine/Model/FormulaNesting.h"

#include <memory>
#include <utility>

namespace Mirel::SkinEngine
{

/// What functions that stand on another have in common: to others they are that other one, as it is now. I is
/// IFunction or IBinaryFunction.
template <class I>
class TFunctionInPlace : public I
{
public:
    /// By way of a copy: only that is known to come to an end.
    bool Serialize(Serialization::IWriteDataStream& stream) const override
    {
        return std::unique_ptr<const I>(Get().Clone())->Serialize(stream);
    }

    /// False: what would be read knows nothing of the objects behind.
    bool Deserialize(const Serialization::IReadDataStream&) override { return false; }
    const char* GetTypeKey() const override { return Get().GetTypeKey(); }

protected:
    virtual const I& Get() const = 0;
};

/// The two forms of evaluation over one.
template <class I, class Base>
class TEvaluated;

template <class Base>
class TEvaluated<Math::IFunction, Base> : public Base
{
public:
    using Base::Base;
    float operator()(float x) const override { return this->Evaluate(x); }
};

template <class Base>
class TEvaluated<Math::IBinaryFunction, Base> : public Base
{
public:
    using Base::Base;
    float operator()(float x, float y) const override { return this->Evaluate(x, y); }
};

/// A curve or surface of the model as a formula calls it: always the function that it has at the moment. The
/// object is not owned. GUI thread only; its clones, which are those of that function, are independent.
template <class I, class Capture>
class TModelFunctionBase : public TFunctionInPlace<I>
{
public:
    explicit TModelFunctionBase(const Capture& capture_) : capture(capture_) {}

    I* Clone() const override { return Get().Clone(); }

protected:
    const I& Get() const override { return capture.GetValue(); }

    template <class... Arguments>
    float Evaluate(Arguments... arguments) const
    {
        const CFormulaCall call;
        return call.IsAllowed() ? Get()(arguments...) : 0.0F;
    }

private:
    const Capture& capture;
};

template <class I, class Capture>
using TModelFunction = TEvaluated<I, TModelFunctionBase<I, Capture>>;

/// A formula as it was when it was copied, with the size of what it holds. Any thread.
template <class I>
class TFormulaSnapshotBase : public TFunctionInPlace<I>
{
public:
    TFormulaSnapshotBase(Math::TFunctionHolder<I> function_, const SFormulaSize& size_)
        : function(std::move(function_)),
          size(size_)
    {
    }

    I* Clone() const override
    {
        CFormulaCopy::Add(size);
        return new TEvaluated<I, TFormulaSnapshotBase>(function, size);
    }

protected:
    const I& Get() const override { return *function; }

    template <class... Arguments>
    float Evaluate(Arguments... arguments) const
    {
        return (*function)(arguments...);
    }

private:
    Math::TFunctionHolder<I> function;
    SFormulaSize size;
};

template <class I>
using TFormulaSnapshot = TEvaluated<I, TFormulaSnapshotBase<I>>;

/// A formula of the model as others see it. Its copies are snapshots; one that has grown too large, as one
/// does that leads back into itself, is the given constant instead. C is the constant function of the kind.
/// The formula is not owned. GUI thread only.
template <class I, class C>
class TFormulaFunctionBase : public TFunctionInPlace<I>
{
public:
    explicit TFormulaFunctionBase(const I& formula_) : formula(formula_) {}

    I* Clone() const override
    {
        const CFormulaCopy copy;
        std::unique_ptr<const I> clone(copy.IsAllowed() ? formula.Clone() : nullptr);
        if (clone == nullptr || !copy.IsAllowed())
        {
            return new C(0.0F);
        }
        return new TFormulaSnapshot<I>(Math::TFunctionHolder<I>(clone.release(), true), copy.GetSize());
    }

protected:
    const I& Get() const override { return formula; }

    template <class... Arguments>
    float Evaluate(Arguments... arguments) const
    {
        return formula(arguments...);
    }

private:
    const I& formula;
};

template <class I, class C>
using TFormulaFunction = TEvaluated<I, TFormulaFunctionBase<I, C>>;

} // namespace Mirel::SkinEngine
