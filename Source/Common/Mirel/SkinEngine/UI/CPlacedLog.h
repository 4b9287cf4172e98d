#pragma once

#include "Mirel/CoreUtilities/CMemMessageLog.h"

#include <string>
#include <vector>

namespace Mirel::SkinEngine
{

class CSkinParser;

/// A message of a skin's load, with the place in the file that was being read: "file:line", empty for none.
struct SSkinMessage
{
    int kind = 0; ///< One of CoreUtilities::CMessageKind.
    std::string place;
    std::string text;
};

/// Keeps the messages of a skin's load with their places, and passes them on. Belongs to the thread that
/// parses.
class CPlacedLog : public CoreUtilities::IMessageLog
{
public:
    /// Not owned.
    explicit CPlacedLog(CoreUtilities::IMessageLog& target_) : target(target_) {}

    void Post(int kind, const char* text, int verbosity) override;

    /// Whose places are taken, for as long as it is set; not owned, null for none.
    void SetParser(const CSkinParser* newParser) { parser = newParser; }

    const std::vector<SSkinMessage>& GetMessages() const { return messages; }
    void Clear() { messages.clear(); }

private:
    CoreUtilities::IMessageLog& target;
    const CSkinParser* parser = nullptr;
    std::vector<SSkinMessage> messages;
};

} // namespace Mirel::SkinEngine
