#include "Mirel/Audio/DSP/StereoModeInfo.h"

#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/CParamInfo.h"
#include "Mirel/DataModel/Objects/EValueKind.h"

namespace Mirel::Audio::DSP
{

const DataModel::Objects::IParamInfo& StereoModeInfo()
{
    using namespace DataModel::Objects;
    static const CParamInfo info(0, 0.0f, 1.0f, 0.0f, "Stereo Mode", "", "Left-Right or Mid-Side",
                                 new CEnumToText({"Stereo", "Mid-Side"}), true);
    return info;
}

} // namespace Mirel::Audio::DSP
