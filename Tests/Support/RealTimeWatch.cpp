#include "Support/RealTimeWatch.h"

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dlfcn.h>
#include <fcntl.h>
#include <malloc.h>
#include <pthread.h>
#include <semaphore.h>
#include <unistd.h>

// The sanitizers put functions of their own before the C library's, and static checks take offence at any.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__) || defined(__clang_analyzer__)
#define REAL_TIME_WATCH 0
#elif defined(__has_feature)
#define REAL_TIME_WATCH (!__has_feature(address_sanitizer) && !__has_feature(thread_sanitizer))
#else
#define REAL_TIME_WATCH 1
#endif

namespace
{

thread_local bool isWatched = false;
thread_local std::size_t callCount = 0;
thread_local const char* firstCall = nullptr;

#if REAL_TIME_WATCH
void See(const char* name)
{
    if (isWatched)
    {
        ++callCount;
        firstCall = firstCall == nullptr ? name : firstCall;
    }
}

/// The C library's function of that name.
template <class TFunction>
TFunction* Next(const char* name, std::atomic<TFunction*>& known)
{
    TFunction* function = known.load(std::memory_order_relaxed);
    if (function == nullptr)
    {
        function = reinterpret_cast<TFunction*>(dlsym(RTLD_NEXT, name));
        known.store(function, std::memory_order_relaxed);
    }
    return function;
}
#endif

} // namespace

namespace Tests
{

CRealTimeWatch::CRealTimeWatch()
{
    callCount = 0;
    firstCall = nullptr;
    isWatched = true;
}

CRealTimeWatch::~CRealTimeWatch()
{
    isWatched = false;
}

bool CRealTimeWatch::IsAvailable()
{
    return REAL_TIME_WATCH != 0;
}

std::size_t CRealTimeWatch::GetCount() const
{
    return callCount;
}

std::string CRealTimeWatch::GetFirst() const
{
    const bool was = isWatched;
    isWatched = false;
    std::string name = firstCall != nullptr ? firstCall : "";
    isWatched = was;
    return name;
}

} // namespace Tests

#if REAL_TIME_WATCH

#define WATCHED extern "C" __attribute__((visibility("default")))

// The C library's own entries for memory: to look them up by name would itself allocate.
extern "C"
{
    void* __libc_malloc(std::size_t size);
    void* __libc_calloc(std::size_t count, std::size_t size);
    void* __libc_realloc(void* block, std::size_t size);
    void* __libc_memalign(std::size_t alignment, std::size_t size);
    void __libc_free(void* block);
}

WATCHED void* malloc(std::size_t size)
{
    See("malloc");
    return __libc_malloc(size);
}

WATCHED void* calloc(std::size_t count, std::size_t size)
{
    See("calloc");
    return __libc_calloc(count, size);
}

WATCHED void* realloc(void* block, std::size_t size)
{
    See("realloc");
    return __libc_realloc(block, size);
}

WATCHED void* memalign(std::size_t alignment, std::size_t size)
{
    See("memalign");
    return __libc_memalign(alignment, size);
}

WATCHED void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    See("aligned_alloc");
    return __libc_memalign(alignment, size);
}

WATCHED int posix_memalign(void** block, std::size_t alignment, std::size_t size)
{
    See("posix_memalign");
    *block = __libc_memalign(alignment, size);
    return *block != nullptr ? 0 : ENOMEM;
}

WATCHED void free(void* block)
{
    if (block != nullptr)
    {
        See("free");
    }
    __libc_free(block);
}

// A function that is seen and then handed on as it is.
#define WATCH(result, name, parameters, arguments)                                                           \
    WATCHED result name parameters                                                                           \
    {                                                                                                        \
        static std::atomic<result(*) parameters> known = nullptr;                                            \
        See(#name);                                                                                          \
        return Next<result parameters>(#name, known) arguments;                                              \
    }

WATCH(int, pthread_mutex_lock, (pthread_mutex_t * mutex), (mutex))
WATCH(int, pthread_mutex_timedlock, (pthread_mutex_t * mutex, const timespec* end), (mutex, end))
WATCH(int, pthread_rwlock_rdlock, (pthread_rwlock_t * lock), (lock))
WATCH(int, pthread_rwlock_wrlock, (pthread_rwlock_t * lock), (lock))
WATCH(int, pthread_cond_wait, (pthread_cond_t * condition, pthread_mutex_t* mutex), (condition, mutex))
WATCH(int, pthread_cond_timedwait, (pthread_cond_t * condition, pthread_mutex_t* mutex, const timespec* end),
      (condition, mutex, end))
WATCH(int, pthread_cond_signal, (pthread_cond_t * condition), (condition))
WATCH(int, pthread_cond_broadcast, (pthread_cond_t * condition), (condition))
WATCH(int, sem_wait, (sem_t * semaphore), (semaphore))
WATCH(int, nanosleep, (const timespec* time, timespec* left), (time, left))
WATCH(int, usleep, (useconds_t time), (time))
WATCH(ssize_t, read, (int file, void* data, std::size_t size), (file, data, size))
WATCH(ssize_t, write, (int file, const void* data, std::size_t size), (file, data, size))
WATCH(int, close, (int file), (file))
WATCH(int, fsync, (int file), (file))
WATCH(FILE*, fopen, (const char* path, const char* mode), (path, mode))
WATCH(int, fclose, (FILE * file), (file))
WATCH(std::size_t, fread, (void* data, std::size_t size, std::size_t count, FILE* file),
      (data, size, count, file))
WATCH(std::size_t, fwrite, (const void* data, std::size_t size, std::size_t count, FILE* file),
      (data, size, count, file))

#endif
