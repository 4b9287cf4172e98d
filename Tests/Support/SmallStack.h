#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <functional>

#include <pthread.h>
#include <sys/mman.h>

namespace Tests
{

/// Runs the work to its end on a thread with a stack of that size, beyond which the program faults. Gives the
/// bytes of the stack that were used, what the thread itself takes of it included.
inline std::size_t RunOnStack(std::size_t bytes, std::function<void()> work)
{
    constexpr std::size_t guardBytes = 65536;
    constexpr unsigned char unused = 0xA5;
    void* memory =
        ::mmap(nullptr, guardBytes + bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ::mprotect(memory, guardBytes, PROT_NONE);
    auto* stack = static_cast<unsigned char*>(memory) + guardBytes;
    std::memset(stack, unused, bytes);

    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstack(&attributes, stack, bytes);
    pthread_t thread = {};
    const auto run = [](void* argument) -> void*
    {
        (*static_cast<std::function<void()>*>(argument))();
        return nullptr;
    };
    pthread_create(&thread, &attributes, run, &work);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);

    const auto* lowest =
        std::find_if(stack, stack + bytes, [](unsigned char byte) { return byte != unused; });
    const auto used = static_cast<std::size_t>(stack + bytes - lowest);
    ::munmap(memory, guardBytes + bytes);
    return used;
}

} // namespace Tests
