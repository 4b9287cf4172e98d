#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <functional>

#include <pthread.h>
#include <sys/mman.h>

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

/// Runs the function to its end on a thread with that stack, beyond which the program faults. Gives the bytes
/// of the stack that were used, what the thread itself takes of it included.
inline std::size_t RunOnSmallStack(std::function<void()> function)
{
    constexpr std::size_t guardBytes = 65536;
    constexpr unsigned char unused = 0xA5;
    void* memory = ::mmap(nullptr, guardBytes + smallStackBytes, PROT_READ | PROT_WRITE,
                          MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ::mprotect(memory, guardBytes, PROT_NONE);
    auto* stack = static_cast<unsigned char*>(memory) + guardBytes;
    std::memset(stack, unused, smallStackBytes);

    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstack(&attributes, stack, smallStackBytes);
    pthread_t thread = {};
    const auto run = [](void* argument) -> void*
    {
        (*static_cast<std::function<void()>*>(argument))();
        return nullptr;
    };
    pthread_create(&thread, &attributes, run, &function);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);

    const auto* lowest =
        std::find_if(stack, stack + smallStackBytes, [](unsigned char byte) { return byte != unused; });
    const auto used = static_cast<std::size_t>(stack + smallStackBytes - lowest);
    ::munmap(memory, guardBytes + smallStackBytes);
    return used;
}

} // namespace Tests
