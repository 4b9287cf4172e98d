#pragma once

#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/IAAXMidiNode.h"

#include <cstddef>
#include <vector>

namespace Host
{

/// A MIDI node of an instance. An input node gives out what was put in for the block; an output node keeps
/// what the plug-in posts. The audio thread's, between blocks its owner's; nothing is allocated in a block.
class CHostMidiNode : public TACFObject<IAAXMidiNode>
{
public:
    /// `capacity` is how many events a block can have.
    CHostMidiNode(bool isInput_, std::size_t capacity_);

    std::int32_t GetEvents(const SMidiEvent** givenEvents, std::int32_t* count) override;
    std::int32_t PostEvent(const SMidiEvent* event) override;

    /// Puts an event into the next block. False if there is no room left.
    bool Add(const SMidiEvent& event);

    /// The events of the block.
    const std::vector<SMidiEvent>& GetAll() const { return events; }
    void Clear() { events.clear(); }

private:
    bool isInput;
    std::size_t capacity;
    std::vector<SMidiEvent> events;
};

} // namespace Host
