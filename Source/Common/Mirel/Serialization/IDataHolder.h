#pragma once

#include "Mirel/Serialization/DataStreams.h"

namespace Mirel::Serialization
{

/// One typed value to read. Each Get gives true when the value was delivered; otherwise the target keeps its
/// value. There is no conversion between kinds.
class IConstDataHolder
{
public:
    virtual bool Get(bool& value) const = 0;
    virtual bool Get(int& value) const = 0;
    virtual bool Get(float& value) const = 0;
    virtual bool Get(double& value) const = 0;
    /// Delivers a copy made with array-new, which the caller frees; null for a stored null text.
    virtual bool Get(char*& value) const = 0;
    /// Delivers a copy made with array-new, which the caller frees; null when there are no bytes.
    virtual bool Get(void*& data, unsigned& size) const = 0;
    /// Has the object read itself from the stored data object.
    virtual bool Get(IDeSerialize& object) const = 0;

    /// Whether the same value of the same kind is held. NaN is equal to every number of its kind: what
    /// compares as neither less nor greater is no change.
    virtual bool IsEqual(bool value) const = 0;
    virtual bool IsEqual(int value) const = 0;
    virtual bool IsEqual(float value) const = 0;
    virtual bool IsEqual(double value) const = 0;
    virtual bool IsEqual(const char* value) const = 0;
    virtual bool IsEqual(const void* data, unsigned size) const = 0;

    virtual ~IConstDataHolder() = default;
};

/// The same with writes. A value replaces what was held, whatever its kind.
class IDataHolder : public IConstDataHolder
{
public:
    static constexpr const char* classKey = "{6B0C3A52-93C7-4a0e-8E8D-20B6D4A1F7C3}";

    virtual bool Set(bool value) = 0;
    virtual bool Set(int value) = 0;
    virtual bool Set(float value) = 0;
    virtual bool Set(double value) = 0;
    virtual bool Set(const char* value) = 0;
    virtual bool Set(const void* data, unsigned size) = 0;
    /// False, with nothing held, if the object could not write itself.
    virtual bool Set(const ISerialize& object) = 0;
};

} // namespace Mirel::Serialization
