#pragma once

#include "Mirel/Core/TValue.h"

namespace Mirel::Core
{

/// Makes values that can be read.
template <class T>
class TIConstValueFactory
{
public:
    /// A new value, owned by the caller.
    virtual TIConstValue<T>* CreateValue(T value) const = 0;
    virtual ~TIConstValueFactory() = default;
};

/// Makes values that can be read and written.
template <class T>
class TIValueFactory : public TIConstValueFactory<T>
{
public:
    TIValue<T>* CreateValue(T value) const override = 0;
};

/// Makes stored values with an event provider of class P.
template <class T, class P>
class TValueFactory : public TIValueFactory<T>
{
public:
    TValue<T, P>* CreateValue(T value) const override { return new TValue<T, P>(std::forward<T>(value)); }
};

} // namespace Mirel::Core
