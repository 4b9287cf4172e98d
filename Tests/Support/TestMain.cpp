#include <gmock/gmock.h>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}

/// The font configuration library keeps one pattern of the process's own configuration for good.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer looks for this name.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig.so\n";
}

/// What it keeps of the thread-local data of loaded libraries is wrong once a module was unloaded, and the
/// leak check at the end then reads wherever that points.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer looks for this name.
extern "C" __attribute__((visibility("default"))) const char* __asan_default_options()
{
    return "intercept_tls_get_addr=0";
}
