#pragma once

#include "Mirel/Math/FunctionsRegistration.h"
#include "Mirel/Serialization/ITypeSerializable.h"

namespace Mirel::Math
{

/// The common root of functions that can be evaluated, saved by class key and cloned.
/// I is the interface itself: IFunction, IBinaryFunction or IConstant.
///
/// Function objects are immutable once published and may then be evaluated from any thread; a change is made
/// by replacing the object. Evaluation allocates nothing.
template <class I>
class TIParametrizedFunction : public Serialization::ITypeSerializable
{
public:
    /// A new object, owned by the caller, with clones of all that this one holds.
    virtual I* Clone() const = 0;
};

/// A function of one variable.
class IFunction : public TIParametrizedFunction<IFunction>
{
public:
    static constexpr const char* classKey = "{EC7456EE-AA8C-421c-B49E-3E5CA6519665}";

    virtual float operator()(float x) const = 0;
};

/// A function of two variables.
class IBinaryFunction : public TIParametrizedFunction<IBinaryFunction>
{
public:
    static constexpr const char* classKey = "{C3FE0CFA-7AAC-413b-B803-A9B885B86EE1}";

    virtual float operator()(float x, float y) const = 0;
};

/// A number that is an object.
class IConstant : public TIParametrizedFunction<IConstant>
{
public:
    static constexpr const char* classKey = "{EAD44198-7EE3-4880-BC12-476597EF40AA}";

    virtual float operator()() const = 0;
};

} // namespace Mirel::Math
