#include "Plugins/Oscilloscope/CreateTopLevelFilter.h"

#include "Mirel/Audio/DSP/TMSLRFromStereoFilter.h"
#include "Mirel/Audio/DSP/TStereoFromMonoFilter.h"
#include "Plugins/Oscilloscope/COscilloscope.h"

namespace PluginsFilters
{

using namespace Mirel::Audio::DSP;

std::unique_ptr<IFilter> CreateTopLevelFilter()
{
    return std::make_unique<TMSLRFromStereoFilter<TStereoFromMonoFilter<COscilloscope>>>(false, "(1)", "(2)");
}

} // namespace PluginsFilters
