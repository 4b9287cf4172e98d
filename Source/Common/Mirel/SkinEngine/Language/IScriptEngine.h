#pragma once

#include "Mirel/CoreUtilities/IMessageLog.h"

namespace Mirel::SkinEngine
{

/// Runs the script files that a skin names. Belongs to the thread that parses.
class IScriptEngine
{
public:
    virtual bool Run(const char* filePath, CoreUtilities::IMessageLog& log) = 0;
    virtual ~IScriptEngine() = default;
};

} // namespace Mirel::SkinEngine
