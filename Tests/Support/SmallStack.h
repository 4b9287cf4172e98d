#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <pthread.h>

namespace Tests
{

/// Runs the work on a thread with a stack of that size and waits for it. An overflow ends the program.
inline void RunOnStack(std::size_t bytes, std::function<void()> work)
{
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, bytes), 0);
    pthread_t thread{};
    const auto start = [](void* argument) -> void*
    {
        (*static_cast<std::function<void()>*>(argument))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, start, &work), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

} // namespace Tests
