#pragma once

#include "Mirel/Core/IValueChangedEventProvider.h"
#include "Mirel/Core/TIValue.h"
#include "Mirel/Core/TStoredValue.h"

#include <utility>

namespace Mirel::Core
{

/// A stored value with an event provider of class P. Keeps its own copy of a text and its own clone of a
/// function; what GetValue hands out of these lives until the next change. Not-a-number never counts as a
/// change. No lock: the threads that may use it are those that may use P, and one at a time.
template <class T, class P>
class TValue : public virtual TIValue<T>, public virtual IValueChangedEventProvider
{
public:
    explicit TValue(T value_ = T()) : value(std::forward<T>(value_)) {}
    TValue(const TValue&) = delete;
    TValue& operator=(const TValue&) = delete;

    T GetValue() const override { return value.Get(); }

    void SetValue(T newValue) override
    {
        if (value.Set(std::forward<T>(newValue)))
        {
            changed.Notify();
        }
    }

    IEventProvider& GetValueChangedEventProvider() const override { return changed; }

private:
    TStoredValue<T> value;
    mutable P changed;
};

} // namespace Mirel::Core
