#pragma once

#include "Mirel/CoreUtilities/IMessageLog.h"

#include <cstddef>

namespace Mirel::SkinEngine
{

/// Passes messages on until they come to CLimits::maxMessageBytes, says so once, and drops the rest: a small
/// file can repeat one mistake without end. Belongs to the thread that parses.
class CBoundedLog : public CoreUtilities::IMessageLog
{
public:
    /// The target is not owned.
    explicit CBoundedLog(CoreUtilities::IMessageLog& target_) : target(&target_) {}

    void Post(int kind, const char* text, int verbosity) override;

    /// For the message that ends a parse: always passed on.
    void PostLast(int kind, const char* text) { target->Post(kind, text, 0); }

    void Reset() { posted = 0; }

private:
    CoreUtilities::IMessageLog* target;
    std::size_t posted = 0;
};

} // namespace Mirel::SkinEngine
