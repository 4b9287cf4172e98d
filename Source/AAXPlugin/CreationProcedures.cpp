#include "AAXPlugin/CreationProcedures.h"

#include "AAXPlugin/CAAXPluginGUI.h"
#include "AAXPlugin/CAAXPluginParameters.h"
#include "AAXPlugin/ModuleFile.h"

namespace MirelExt::AAXPlugin
{

IACFUnknown* CreateEffectParameters()
{
    try
    {
        return static_cast<AAX_IEffectParameters*>(new CAAXPluginParameters(GetModulePath()));
    }
    catch (...)
    {
        return nullptr;
    }
}

IACFUnknown* CreateGui()
{
    try
    {
        return static_cast<AAX_IEffectGUI*>(new CAAXPluginGUI);
    }
    catch (...)
    {
        return nullptr;
    }
}

} // namespace MirelExt::AAXPlugin
