#include "Host/CHostMidiNode.h"

namespace Host
{

CHostMidiNode::CHostMidiNode(bool isInput_, std::size_t capacity_) : isInput(isInput_), capacity(capacity_)
{
    events.reserve(capacity);
}

std::int32_t CHostMidiNode::GetEvents(const SMidiEvent** givenEvents, std::int32_t* count)
{
    if (givenEvents == nullptr || count == nullptr)
    {
        return AAXResult::Failed;
    }
    *givenEvents = isInput ? events.data() : nullptr;
    *count = isInput ? static_cast<std::int32_t>(events.size()) : 0;
    return AAXResult::Ok;
}

std::int32_t CHostMidiNode::PostEvent(const SMidiEvent* event)
{
    return !isInput && event != nullptr && Add(*event) ? AAXResult::Ok : AAXResult::Failed;
}

bool CHostMidiNode::Add(const SMidiEvent& event)
{
    if (events.size() >= capacity)
    {
        return false;
    }
    events.push_back(event);
    return true;
}

} // namespace Host
