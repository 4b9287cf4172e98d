#pragma once

#include <utility>

namespace Mirel::Core
{

/// A pointer that may or may not be owned. An owned object is destroyed on release, on replacement and with
/// the holder; a borrowed one never is.
template <class T>
class TOwnership
{
public:
    TOwnership() = default;
    TOwnership(T* pointer_, bool owned_) : pointer(pointer_), owned(owned_ ? 1 : 0) {}
    TOwnership(const TOwnership&) = delete;
    TOwnership& operator=(const TOwnership&) = delete;
    TOwnership(TOwnership&& other) noexcept { Swap(other); }

    TOwnership& operator=(TOwnership&& other) noexcept
    {
        if (this != &other)
        {
            Release();
            Swap(other);
        }
        return *this;
    }

    ~TOwnership() { Release(); }

    /// Destroys the object if it is owned. Afterwards the holder is empty, with the mark of an owner.
    void Release()
    {
        T* old = std::exchange(pointer, nullptr);
        if (std::exchange(owned, 1) == 1)
        {
            delete old;
        }
    }

    /// Lets go of what is held and takes the given object. The object held already stays, with the new mark.
    void Set(T* newPointer, bool newOwned)
    {
        if (newPointer != pointer)
        {
            Release();
        }
        pointer = newPointer;
        owned = newOwned ? 1 : 0;
    }

    T* Get() const { return pointer; }
    T* operator->() const { return pointer; }
    T& operator*() const { return *pointer; }
    explicit operator bool() const { return pointer != nullptr; }
    bool IsOwned() const { return owned == 1; }

private:
    void Swap(TOwnership& other) noexcept
    {
        std::swap(pointer, other.pointer);
        std::swap(owned, other.owned);
    }

    T* pointer = nullptr;
    int owned = 1;
};

/// A TOwnership that can be copied: the copy owns a clone (T::Clone) of the object.
template <class T>
class TOwnershipWithClone : public TOwnership<T>
{
public:
    using TOwnership<T>::TOwnership;
    TOwnershipWithClone(TOwnershipWithClone&&) noexcept = default;
    TOwnershipWithClone& operator=(TOwnershipWithClone&&) noexcept = default;

    TOwnershipWithClone(const TOwnershipWithClone& other) : TOwnership<T>(CloneOf(other), true) {}

    TOwnershipWithClone& operator=(const TOwnershipWithClone& other)
    {
        if (this != &other)
        {
            this->Set(CloneOf(other), true);
        }
        return *this;
    }

    ~TOwnershipWithClone() = default;

private:
    static T* CloneOf(const TOwnershipWithClone& other)
    {
        return other.Get() == nullptr ? nullptr : other->Clone();
    }
};

} // namespace Mirel::Core
