#pragma once

#include <utility>

/// Holds one reference to an interface and releases it at the end.
template <class T>
class TACFReference
{
public:
    TACFReference() = default;

    /// Adds a reference of its own to the one that the caller keeps.
    explicit TACFReference(T* pointer_) : pointer(pointer_)
    {
        if (pointer != nullptr)
        {
            pointer->AddReference();
        }
    }

    /// Takes over the reference that came with a pointer, as from QueryInterface or a Create operation.
    static TACFReference Adopt(T* pointer)
    {
        TACFReference reference;
        reference.pointer = pointer;
        return reference;
    }

    TACFReference(const TACFReference& other) : TACFReference(other.pointer) {}
    TACFReference(TACFReference&& other) noexcept : pointer(std::exchange(other.pointer, nullptr)) {}

    TACFReference& operator=(TACFReference other) noexcept
    {
        std::swap(pointer, other.pointer);
        return *this;
    }

    ~TACFReference()
    {
        if (pointer == nullptr)
        {
            return;
        }
        try
        {
            pointer->Release();
        }
        catch (...)
        {
            // The other side broke the rule that nothing is thrown; the object may leak, the process goes on.
            pointer = nullptr;
        }
    }

    T* Get() const { return pointer; }
    T* operator->() const { return pointer; }
    T& operator*() const { return *pointer; }
    explicit operator bool() const { return pointer != nullptr; }

private:
    T* pointer = nullptr;
};
