#include "Host/CDataInPorts.h"

#include <algorithm>
#include <cstring>

namespace Host
{

void CDataInPorts::Add(const CDataInPort& declared)
{
    ports.insert_or_assign(declared.field, std::make_unique<CPort>(declared.packetSize));
}

bool CDataInPorts::Post(std::uint32_t field, const void* payload, std::uint32_t size)
{
    const auto found = ports.find(field);
    if (found == ports.end() || payload == nullptr || found->second->posted.size() != size)
    {
        return false;
    }
    const std::lock_guard lock(mutex);
    std::memcpy(found->second->posted.data(), payload, size);
    found->second->isNew = true;
    return true;
}

void CDataInPorts::Deliver(std::vector<void*>& fields)
{
    const std::unique_lock lock(mutex, std::try_to_lock);
    for (const auto& [field, port] : ports)
    {
        if (lock.owns_lock() && port->isNew)
        {
            std::copy(port->posted.begin(), port->posted.end(), port->delivered.begin());
            port->isNew = false;
            port->hasPacket = true;
        }
        fields[field] = port->hasPacket ? port->delivered.data() : nullptr;
    }
}

} // namespace Host
