#include "Mirel/SkinEngine/Model/CModelPlaceholders.h"

namespace Mirel::SkinEngine
{

CModelPlaceholders::CModelPlaceholders() : action("Action not found")
{
    param.GetInfo().SetName("Parameter not found");
    param.GetInfo().SetUnit("?");
    curve.GetInfo().SetName("Curve not found");
    surface.GetInfo().SetName("Surface not found");
    string.GetInfo().SetName("String not found");
}

} // namespace Mirel::SkinEngine
