#pragma once

#include "Mirel/CoreUtilities/IMessageLog.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Mirel::CoreUtilities
{

/// Gathers messages in memory, to be shown when the run is over. Whoever runs a parse makes one and passes it
/// down. Belongs to one thread.
class CMemMessageLog : public IMessageLog
{
public:
    struct CMessage
    {
        std::int32_t kind;
        std::string text;
        std::uint32_t level; ///< The log's threshold when the message came in.
    };

    /// Keeps the message unless its verbosity is above the threshold.
    void Post(int kind, const char* text, int verbosity) override;

    ~CMemMessageLog() override = default;

    virtual void Clear();
    /// Drops the messages of one kind; the others keep their order.
    virtual void Clear(int kind);

    /// A message counts for as long as the threshold has not fallen below what it was when the message came.
    virtual bool HasMessages() const;
    virtual bool HasMessages(int kind) const;

    /// All kept messages in order of posting.
    const std::vector<CMessage>& GetMessages() const { return messages; }

    /// All ones, as at construction, lets everything through.
    void SetThreshold(std::uint32_t newThreshold) { threshold = newThreshold; }
    std::uint32_t GetThreshold() const { return threshold; }

private:
    std::uint32_t threshold = 0xFFFFFFFFU;
    std::vector<CMessage> messages;
};

} // namespace Mirel::CoreUtilities
