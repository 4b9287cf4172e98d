#pragma once

#include "Host/Declarations.h"

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace Host
{

/// The data-in ports of an instance, each with its last packet. Packets come from any thread and reach the
/// audio thread between blocks, which does not wait for a thread that is posting.
class CDataInPorts
{
public:
    /// Before the first packet.
    void Add(const CDataInPort& declared);

    /// Copies the packet. False if there is no such port, or it takes packets of another size.
    bool Post(std::uint32_t field, const void* payload, std::uint32_t size);

    /// Has the fields of an instance record point to the packets posted so far; null for a port that has had
    /// none. Audio thread, between blocks; the packets stay as they are until the next call.
    void Deliver(std::vector<void*>& fields);

private:
    struct CPort
    {
        explicit CPort(std::uint32_t size) : posted(size), delivered(size) {}

        std::vector<char> posted; ///< Under the mutex.
        bool isNew = false;       ///< Likewise.
        std::vector<char> delivered;
        bool hasPacket = false;
    };

    std::mutex mutex;
    std::map<std::uint32_t, std::unique_ptr<CPort>> ports;
};

} // namespace Host
