#pragma once

#include "Mirel/Serialization/DataStreams.h"

namespace Mirel::Math
{

/// The common root of functions that can be evaluated, saved by class key and cloned.
/// I is the interface itself: IFunction, IBinaryFunction or IConstant.
///
/// Function objects are immutable once published and may then be evaluated from any thread; a change is made
/// by replacing the object. Evaluation allocates nothing.
template <class I>
class TIParametrizedFunction : public Serialization::ISerializable
{
public:
    /// The class key under which the object is saved and created again; null for a class that is not saved by
    /// key. Static text.
    virtual const char* GetTypeKey() const = 0;

    /// A new object, owned by the caller, with clones of all that this one holds.
    virtual I* Clone() const = 0;
};

/// A function of one variable.
class IFunction : public TIParametrizedFunction<IFunction>
{
public:
    virtual float operator()(float x) const = 0;
};

/// A function of two variables.
class IBinaryFunction : public TIParametrizedFunction<IBinaryFunction>
{
public:
    virtual float operator()(float x, float y) const = 0;
};

/// A number that is an object.
class IConstant : public TIParametrizedFunction<IConstant>
{
public:
    virtual float operator()() const = 0;
};

} // namespace Mirel::Math
