#pragma once

#include "Mirel/Serialization/DataStreams.h"

#include <atomic>

namespace Mirel::Audio::Plugin
{

/// Whether an output parameter is published as host automation. Any thread: the editor and the host's threads
/// change it while the audio thread reads it.
class CAutomationSetting : public Serialization::ISerializable
{
public:
    CAutomationSetting() = default;
    CAutomationSetting(const CAutomationSetting& other);
    CAutomationSetting& operator=(const CAutomationSetting& other);
    ~CAutomationSetting() override = default;

    bool IsEnabled() const { return enabled.load(std::memory_order_relaxed); }
    void SetEnabled(bool newEnabled) { enabled.store(newEnabled, std::memory_order_relaxed); }

    /// Writes "version" and "enabled".
    bool Serialize(Serialization::IWriteDataStream& stream) const override;

    /// True if "enabled" was there; otherwise it keeps its value.
    bool Deserialize(const Serialization::IReadDataStream& stream) override;

private:
    std::atomic<bool> enabled{false};
};

} // namespace Mirel::Audio::Plugin
