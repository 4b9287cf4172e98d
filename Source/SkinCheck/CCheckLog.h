#pragma once

#include "Mirel/CoreUtilities/IMessageLog.h"

#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
class CSkinParser;
}

namespace SkinCheck
{

/// A message of a parse, with the place in a file that the parser had come to.
struct SCheckMessage
{
    int kind; ///< A CMessageKind.
    std::string text;
    std::string file; ///< Empty if unknown.
    int line;         ///< 0 if unknown.
};

/// Gathers messages with their places.
class CCheckLog : public Mirel::CoreUtilities::IMessageLog
{
public:
    /// Not owned; null for none.
    void SetParser(const Mirel::SkinEngine::CSkinParser* newParser) { parser = newParser; }

    void Post(int kind, const char* text, int verbosity) override;

    const std::vector<SCheckMessage>& GetMessages() const { return messages; }

    /// 0 without warnings and errors, 1 with warnings, 2 with errors.
    int GetSeverity() const;

private:
    const Mirel::SkinEngine::CSkinParser* parser = nullptr;
    std::vector<SCheckMessage> messages;
};

} // namespace SkinCheck
