#pragma once

#include "Mirel/Core/IDestroy.h"

#include <type_traits>
#include <utility>

namespace Mirel::Core
{

/// Puts an object of any class behind IDestroy. The object is made from the arguments and dies with the
/// adapter.
template <class T>
class TDestroyAdapter : public IDestroy
{
public:
    template <class... Arguments>
    requires std::is_constructible_v<T, Arguments...>
    explicit TDestroyAdapter(Arguments&&... arguments) : object(std::forward<Arguments>(arguments)...) {}

    T& Get() { return object; }
    const T& Get() const { return object; }

private:
    T object;
};

} // namespace Mirel::Core
