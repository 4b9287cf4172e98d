#pragma once

#include "AAXPlugin/Interface/AAX_Midi.h"
#include "AAXPlugin/Interface/IACFUnknown.h"

/// A MIDI node of an instance, as the field of its instance record points to it. The host's object. Audio
/// thread, inside the process procedure; no operation locks or allocates.
class IAAXMidiNode : public IACFUnknown
{
public:
    /// The events of this block, in order of time; valid until the process procedure returns. None for an
    /// output node.
    virtual std::int32_t GetEvents(const SMidiEvent** events, std::int32_t* count) = 0;

    /// Sends an event, which is copied. Failed on an input node, or if there is no room left in this block.
    virtual std::int32_t PostEvent(const SMidiEvent* event) = 0;

protected:
    ~IAAXMidiNode() = default;
};
