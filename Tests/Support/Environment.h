#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace Tests
{

// The environment of the test program. NOLINTBEGIN(concurrency-mt-unsafe): tests touch it on one thread
// alone.

/// What a variable holds; none if it is not there.
inline std::optional<std::string> FindEnvironmentText(const char* name)
{
    const char* const text = std::getenv(name);
    return text == nullptr ? std::nullopt : std::make_optional<std::string>(text);
}

/// The whole number above 0 that a variable holds, for tests that can run for longer; otherwise the usual
/// one.
inline long GetEnvironmentNumber(const char* name, long usual)
{
    constexpr int decimal = 10;
    const long number = std::strtol(FindEnvironmentText(name).value_or("").c_str(), nullptr, decimal);
    return number > 0 ? number : usual;
}

/// Sets, or with null removes, a variable for as long as it lives, and then puts back what was there.
class CEnvironmentVariable
{
public:
    CEnvironmentVariable(const char* name_, const char* value)
        : name(name_),
          previous(FindEnvironmentText(name_))
    {
        Set(value);
    }
    CEnvironmentVariable(const CEnvironmentVariable&) = delete;
    CEnvironmentVariable& operator=(const CEnvironmentVariable&) = delete;
    ~CEnvironmentVariable() { Set(previous ? previous->c_str() : nullptr); }

private:
    void Set(const char* value) const
    {
        if (value == nullptr)
        {
            unsetenv(name);
        }
        else
        {
            setenv(name, value, 1);
        }
    }

    const char* name;
    std::optional<std::string> previous;
};

// NOLINTEND(concurrency-mt-unsafe)

} // namespace Tests
