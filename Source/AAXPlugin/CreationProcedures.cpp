#include "AAXPlugin/CreationProcedures.h"

namespace MirelExt::AAXPlugin
{

IACFUnknown* CreateEffectParameters()
{
    return nullptr;
}

IACFUnknown* CreateGui()
{
    return nullptr;
}

} // namespace MirelExt::AAXPlugin
