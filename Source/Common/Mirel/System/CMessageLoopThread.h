#pragma once

#include "Mirel/System/CMessageLoop.h"

namespace Mirel::System
{

/// A message loop that runs for as long as it exists: the background thread of the process, when held through
/// TSingletonInstance<CMessageLoopThread, CCriticalSection>.
class CMessageLoopThread : public CMessageLoop
{
public:
    CMessageLoopThread() { Start(); }
    ~CMessageLoopThread() override { Stop(); }
};

} // namespace Mirel::System
