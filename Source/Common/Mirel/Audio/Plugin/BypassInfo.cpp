#include "Mirel/Audio/Plugin/BypassInfo.h"

#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/EValueKind.h"

namespace Mirel::Audio::Plugin
{

DSP::CParamsInfo MakeBypassInfo()
{
    using namespace DataModel::Objects;
    DSP::CParamsInfo list;
    list.Add(ValueKindBoolean, 0.0f, 1.0f, 0.0f, "Bypass", "", "", new CEnumToText({"Off", "On"}), true);
    return list;
}

} // namespace Mirel::Audio::Plugin
