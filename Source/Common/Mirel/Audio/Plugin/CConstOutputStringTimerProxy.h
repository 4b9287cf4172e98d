#pragma once

#include "Mirel/Audio/Plugin/CStringCapture.h"
#include "Mirel/Audio/Plugin/TConstOutputTimerProxy.h"
#include "Mirel/DataModel/Objects/CStringInfo.h"
#include "Mirel/DataModel/Objects/CaptureObjects.h"

#include <string>
#include <utility>

namespace Mirel::Audio::Plugin
{

/// An output string; see TConstOutputTimerProxy. The text lives until the next tick.
class CConstOutputStringTimerProxy
    : public TConstOutputTimerProxy<const char*, DataModel::Objects::IConstStringInfo,
                                    DataModel::Objects::CStringInfo, CStringCapture>
{
public:
    CConstOutputStringTimerProxy(const CStringCapture& source,
                                 const DataModel::Objects::IConstStringInfo& stringInfo,
                                 System::ITimerProvider& timerProvider)
        : TConstOutputTimerProxy(source, stringInfo, timerProvider),
          text(source.GetText())
    {
    }

    const char* GetValue() const override { return text.c_str(); }

protected:
    bool TakeOver(const CStringCapture& source) override
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
