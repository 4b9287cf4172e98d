#include "AAXPlugin/CreationProcedures.h"

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
    return nullptr;
}

} // namespace MirelExt::AAXPlugin
