#pragma once

#include <cstddef>
#include <functional>

#include <pthread.h>

namespace Tests
{

/// True where a sanitizer makes every frame several times as large.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

/// The stack of the smallest thread that a host may load a skin on.
constexpr std::size_t smallStackBytes = (isSanitized ? std::size_t{2048} : std::size_t{256}) << 10U;

/// Runs the function to its end on a thread with that stack. Beyond it the program faults.
inline void RunOnSmallStack(std::function<void()> function)
{
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, smallStackBytes);
    pthread_t thread = {};
    const auto run = [](void* argument) -> void*
    {
        (*static_cast<std::function<void()>*>(argument))();
        return nullptr;
    };
    pthread_create(&thread, &attributes, run, &function);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

} // namespace Tests
