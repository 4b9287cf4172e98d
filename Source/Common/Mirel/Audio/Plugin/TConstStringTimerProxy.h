#pragma once

#include "Mirel/Audio/Plugin/TConstOutputTimerProxy.h"
#include "Mirel/DataModel/Objects/CStringInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

#include <string>
#include <utility>

namespace Mirel::Audio::Plugin
{

/// A text that other threads write, such as an output string; see TConstOutputTimerProxy. What GetValue gives
/// lives until the next tick.
template <class Capture>
class TConstStringTimerProxy
    : public TConstOutputTimerProxy<const char*, DataModel::Objects::IConstStringInfo,
                                    DataModel::Objects::CStringInfo, Capture>
{
public:
    TConstStringTimerProxy(const Capture& source, const DataModel::Objects::IConstStringInfo& stringInfo,
                           System::ITimerProvider& timerProvider)
        : TConstStringTimerProxy::TConstOutputTimerProxy(source, stringInfo, timerProvider),
          text(source.GetText())
    {
    }

    const char* GetValue() const override { return text.c_str(); }

protected:
    bool TakeOver(const Capture& source) override
    {
        std::string latest = source.GetText();
        const bool differs = latest != text;
        text = std::move(latest);
        return differs;
    }

private:
    std::string text;
};

} // namespace Mirel::Audio::Plugin
