#pragma once

#include "Mirel/Audio/Plugin/IConstMIDICCMessage.h"

#include <atomic>
#include <cstdint>

namespace Mirel::Audio::Plugin
{

/// The last controller message received. Set on the audio thread, read on any. The three numbers are packed
/// into one atomic, so that a reader who takes a snapshot never mixes two messages.
class CMIDICCMessage : public virtual IConstMIDICCMessage
{
public:
    /// What is kept of one message.
    struct CSnapshot
    {
        int channel = 1;
        int number = 0;
        int value = 0;
        bool operator==(const CSnapshot&) const = default;
    };

    CMIDICCMessage() = default;

    void Set(const CSnapshot& message) { packed.store(Pack(message), std::memory_order_relaxed); }
    CSnapshot Get() const { return Unpack(packed.load(std::memory_order_relaxed)); }

    int GetChannel() const override { return Get().channel; }
    int GetNumber() const override { return Get().number; }
    int GetValue() const override { return Get().value; }

private:
    static constexpr unsigned byteBits = 8;
    static constexpr unsigned byteMask = 0xFF;

    static std::uint32_t Pack(const CSnapshot& message)
    {
        return static_cast<std::uint32_t>(message.channel) << 2 * byteBits |
               static_cast<std::uint32_t>(message.number) << byteBits |
               static_cast<std::uint32_t>(message.value);
    }

    static CSnapshot Unpack(std::uint32_t bits)
    {
        return {static_cast<int>(bits >> 2 * byteBits & byteMask),
                static_cast<int>(bits >> byteBits & byteMask), static_cast<int>(bits & byteMask)};
    }

    std::atomic<std::uint32_t> packed{Pack(CSnapshot{})};
};

} // namespace Mirel::Audio::Plugin
