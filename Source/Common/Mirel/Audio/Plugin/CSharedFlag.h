#pragma once

#include "Mirel/Core/IValueChangedEventProvider.h"
#include "Mirel/Core/TIValue.h"
#include "Mirel/System/CMTEventProvider.h"

#include <atomic>

namespace Mirel::Audio::Plugin
{

/// A switch that several threads set and the audio thread reads. Any thread; the event fires on the thread of
/// the change.
class CSharedFlag : public virtual Core::TIValue<bool>, public virtual Core::IValueChangedEventProvider
{
public:
    explicit CSharedFlag(bool value_) : value(value_) {}

    bool GetValue() const override { return value.load(std::memory_order_relaxed); }

    void SetValue(bool newValue) override
    {
        if (value.exchange(newValue, std::memory_order_relaxed) != newValue)
        {
            changed.Notify();
        }
    }

    Core::IEventProvider& GetValueChangedEventProvider() const override { return changed; }

private:
    std::atomic<bool> value;
    mutable System::CMTEventProvider changed; ///< Listening changes nothing of the switch.
};

} // namespace Mirel::Audio::Plugin
