#pragma once

#include "Mirel/Audio/Plugin/CAutomationSetting.h"
#include "Mirel/Audio/Plugin/CMIDICCSetting.h"
#include "Mirel/Audio/Plugin/TSettingsList.h"

namespace Mirel::Audio::Plugin
{

/// One entry per parameter of the list that they follow; for the inputs that is Bypass and then the filter's.
using CMIDICCSettings = TSettingsList<CMIDICCSetting>;
using CAutomationSettings = TSettingsList<CAutomationSetting>;

} // namespace Mirel::Audio::Plugin
