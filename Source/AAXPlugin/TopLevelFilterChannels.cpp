#include "AAXPlugin/TopLevelFilterChannels.h"

#include "Mirel/Audio/DSP/CProcessInfo.h"
#include "Mirel/Audio/DSP/IFilter.h"
#include "Plugins/Oscilloscope/CreateTopLevelFilter.h"

#include <memory>

namespace MirelExt::AAXPlugin
{

CChannelCounts GetTopLevelFilterChannels()
{
    const std::unique_ptr<Mirel::Audio::DSP::IFilter> filter = PluginsFilters::CreateTopLevelFilter();
    const Mirel::Audio::DSP::CProcessInfo& info = filter->GetProcessInfo();
    return {static_cast<int>(info.GetInputs().GetCount()), static_cast<int>(info.GetOutputs().GetCount())};
}

} // namespace MirelExt::AAXPlugin
