#pragma once

#include "Mirel/Math/FunctionsRegistration.h"
#include "Mirel/Serialization/ITypeSerializable.h"

#include <typeinfo>

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

    /// Makes `older`, which may be any object, what Clone would return now, as far as that takes no
    /// allocation. An earlier clone of this object is brought up to date at the price of what has changed
    /// since. False if it cannot be done; `older` may then be anything of its own class.
    virtual bool UpdateClone(I& older) const
    {
        static_cast<void>(older);
        return false;
    }

protected:
    /// `other` as a T if it is of the very class of `self`, otherwise null.
    template <class T>
    static T* AsClassOf(const T& self, I& other)
    {
        return typeid(self) == typeid(other) ? static_cast<T*>(&other) : nullptr;
    }
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
