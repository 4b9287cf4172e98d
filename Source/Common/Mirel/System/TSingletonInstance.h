#pragma once

#include "Mirel/Core/CAutoLock.h"

#include <memory>

namespace Mirel::System
{

/// A counted reference to the one T of the process: the first creates it, the last destroys it. Any thread;
/// the count is kept under a Lock. The last reference to an object with a thread must not end on that thread.
template <class T, class Lock>
class TSingletonInstance
{
public:
    TSingletonInstance() : instance(Acquire()) {}
    TSingletonInstance(const TSingletonInstance&) : TSingletonInstance() {}
    TSingletonInstance& operator=(const TSingletonInstance&) = default;
    ~TSingletonInstance() { Release(); }

    T& Get() const { return *instance; }
    T* operator->() const { return instance; }

private:
    struct SShared
    {
        Lock lock;
        int references = 0;
        std::unique_ptr<T> instance;
    };

    static SShared& GetShared()
    {
        static SShared shared;
        return shared;
    }

    static T* Acquire()
    {
        SShared& shared = GetShared();
        const Core::CAutoLock guard(shared.lock);
        if (shared.references++ == 0)
        {
            shared.instance = std::make_unique<T>();
        }
        return shared.instance.get();
    }

    static void Release()
    {
        SShared& shared = GetShared();
        std::unique_ptr<T>
            last; // ends outside the lock: its end may wait for a thread that takes a reference
        const Core::CAutoLock guard(shared.lock);
        if (--shared.references == 0)
        {
            last = std::move(shared.instance);
        }
    }

    T* instance;
};

} // namespace Mirel::System
