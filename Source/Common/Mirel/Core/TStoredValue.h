#pragma once

#include <concepts>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace Mirel::Core
{

/// Keeps a value that is passed around as a T, so that it stays valid when the giver's is gone: texts and
/// objects behind a const reference are copied, objects with a Clone are cloned. A pointer other than a text
/// and a non-const reference are kept as they are.
template <class T>
class TStoredValue
{
public:
    explicit TStoredValue(T value_) : value(std::forward<T>(value_)) {}

    T Get() const { return value; }

    /// True if the new value differs from the old one. A float that is not a number differs from nothing.
    bool Set(T newValue)
    {
        if (!Differs(newValue))
        {
            return false;
        }
        value = newValue;
        return true;
    }

private:
    bool Differs(const T& other) const
    {
        if constexpr (std::is_floating_point_v<T>)
        {
            return value < other || value > other;
        }
        else
        {
            return !(value == other);
        }
    }

    T value;
};

/// A text, or null. Null and the empty text differ. The text returned lives until the next change.
template <>
class TStoredValue<const char*>
{
public:
    explicit TStoredValue(const char* value) : text(Copy(value)) {}

    const char* Get() const { return text ? text->c_str() : nullptr; }

    bool Set(const char* newValue)
    {
        auto copy = Copy(newValue);
        if (copy == text)
        {
            return false;
        }
        text = std::move(copy);
        return true;
    }

private:
    static std::optional<std::string> Copy(const char* value)
    {
        return value == nullptr ? std::nullopt : std::optional<std::string>(value);
    }

    std::optional<std::string> text;
};

template <class I>
concept TCloneable = requires(const I& object)
{
    {
        object.Clone()
        } -> std::convertible_to<const I*>;
};

/// An object that clones itself. Objects are not compared: every object but the one held is another value.
template <TCloneable I>
class TStoredValue<const I&>
{
public:
    explicit TStoredValue(const I& value) : object(value.Clone()) {}
    TStoredValue(const TStoredValue& other) : object(other.object->Clone()) {}
    TStoredValue(TStoredValue&&) noexcept = default;
    TStoredValue& operator=(const TStoredValue& other)
    {
        Set(*other.object);
        return *this;
    }
    TStoredValue& operator=(TStoredValue&&) noexcept = default;
    ~TStoredValue() = default;

    const I& Get() const { return *object; }

    bool Set(const I& newValue)
    {
        if (&newValue == object.get())
        {
            return false;
        }
        object.reset(newValue.Clone());
        return true;
    }

private:
    std::unique_ptr<const I> object;
};

template <class I>
requires(!TCloneable<I>) class TStoredValue<const I&>
{
public:
    explicit TStoredValue(const I& value) : object(value) {}

    const I& Get() const { return object; }

    bool Set(const I& newValue)
    {
        if (object == newValue)
        {
            return false;
        }
        object = newValue;
        return true;
    }

private:
    I object;
};

} // namespace Mirel::Core
