#include "Mirel/SkinEngine/UI/CSkinTimers.h"

namespace Mirel::SkinEngine
{

CSkinTimers::CSkinTimers(GUI::CNativeRunLoop& loop)
    : standard(&loop),
      invoker(&loop),
      threaded(&invoker, false),
      serializer(&driver)
{
    serializer.Enable(false);
    driver.Attach(&standard);
}

CSkinTimers::~CSkinTimers()
{
    Run(false);
}

void CSkinTimers::SetThreaded(bool newThreaded)
{
    if (newThreaded == isThreaded)
    {
        return;
    }
    isThreaded = newThreaded;
    if (isThreaded)
    {
        driver.Attach(&threaded);
    }
    else
    {
        driver.Attach(&standard);
    }
    UpdateThread();
}

void CSkinTimers::Run(bool newRunning)
{
    isRunning = newRunning;
    serializer.Enable(isRunning);
    UpdateThread();
}

} // namespace Mirel::SkinEngine
