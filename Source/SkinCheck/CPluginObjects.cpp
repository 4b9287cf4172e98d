#include "SkinCheck/CPluginObjects.h"

#include "Mirel/Audio/Plugin/CPluginModelObjects.h"
#include "Plugins/Oscilloscope/CreateTopLevelFilter.h"

#include <memory>
#include <utility>

namespace SkinCheck
{

using namespace Mirel::Audio::Plugin;

namespace
{

constexpr double anyRate = 44100.0;

/// Of a module that stands nowhere, so that the user's own settings are left alone.
std::unique_ptr<CAudioPluginDefaultSettings> MakeSettings(const Mirel::Audio::DSP::IFilter& filter)
{
    return std::make_unique<CAudioPluginDefaultSettings>("", filter.GetInputParamsInfo(),
                                                         filter.GetOutputParamsInfo(), "");
}

CAudioPluginInternalsBase MakeInternals()
{
    auto filter = PluginsFilters::CreateTopLevelFilter();
    auto settings = MakeSettings(*filter);
    return {std::move(filter), std::move(settings), 0};
}

} // namespace

CPluginObjects::CPluginObjects() : internals(MakeInternals())
{
    internals.InitFilter(anyRate);
}

bool CPluginObjects::AddTo(Mirel::SkinEngine::ISkinModel& model)
{
    return CPluginModelObjects(GetBindings(), timers).Build(model, model.GetExposure());
}

} // namespace SkinCheck
