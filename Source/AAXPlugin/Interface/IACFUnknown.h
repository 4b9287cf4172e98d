#pragma once

#include "AAXPlugin/Interface/ACFInterfaceId.h"

#include <cstdint>

/// The root of every object that host and module hand each other.
///
/// Such interfaces are tables of pure virtual functions over fixed-width types, plain pointers and zero-
/// terminated UTF-8 texts. No standard library type and no exception crosses them. New operations go to a new
/// interface with an identifier of its own, never into an existing one.
class IACFUnknown
{
public:
    /// Asks for another interface of the same object. On success `out` holds a pointer to exactly that
    /// interface, with one more reference, which the caller releases. Otherwise `out` is null and the result
    /// is Unsupported, or Failed without `out`.
    virtual std::int32_t QueryInterface(const ACFInterfaceId& id, void** out) = 0;

    /// Both give the count of references afterwards, for tests only. Any thread.
    virtual std::uint32_t AddReference() = 0;
    virtual std::uint32_t Release() = 0;

protected:
    ~IACFUnknown() = default;
};
