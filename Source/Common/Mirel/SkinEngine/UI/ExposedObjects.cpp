#include "Mirel/SkinEngine/UI/ExposedObjects.h"

#include "Mirel/DataModel/Objects/CCaptureParamWrapper.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/SkinEngine/Model/ModelAttributes.h"

namespace Mirel::SkinEngine
{

using namespace DataModel::Objects;

namespace
{

IParamValueToText* MakeValueToText(const SExposedProperty& property)
{
    if (property.names != nullptr)
    {
        return new CEnumToText(SplitText(property.names), property.min);
    }
    return property.format == nullptr ? nullptr : new CParamValueToText(property.format, false, "{value}");
}

} // namespace

bool ExposeProperty(CGUISkinData& data, const std::string& id, const SExposedProperty& property,
                    std::function<float()> get, std::function<void(float)> set, Core::IEventProvider* changed)
{
    const int flags = data.GetWholeModel().GetExposure().GetParamFlags(id.c_str());
    if (flags == 0)
    {
        return true;
    }
    const CParamInfo info(property.kind, property.min, property.max, get(),
                          property.title == nullptr ? id.c_str() : property.title, "", "",
                          MakeValueToText(property), true);
    const bool added =
        set == nullptr
            ? data.GetModel().AddConstParam(
                  id.c_str(), new CConstCaptureParamWrapper(info, std::move(get), changed), flags, true)
            : data.GetModel().AddParam(
                  id.c_str(), new CCaptureParamWrapper(info, std::move(get), std::move(set), changed), flags,
                  true);
    return data.TakeAllAdded() && added;
}

bool ExposeFlag(CGUISkinData& data, const std::string& id, const SExposedProperty& property,
                std::function<bool()> get, std::function<void(bool)> set, Core::IEventProvider* changed)
{
    std::function<void(float)> setFlag;
    if (set != nullptr)
    {
        setFlag = [set = std::move(set)](float value) { set(value >= 0.5F); };
    }
    return ExposeProperty(
        data, id, property, [get = std::move(get)] { return get() ? 1.0F : 0.0F; }, std::move(setFlag),
        changed);
}

bool ExposeWindowProperties(CGUISkinData& data, std::function<float()> getOpacity,
                            std::function<void(float)> setOpacity, Core::IEventProvider* opacityChanged,
                            std::function<bool()> isLoaded, Core::IEventProvider* loadedChanged)
{
    const bool exposed =
        ExposeProperty(data, "window.opacity", {"Window Opacity", 0.0F, 1.0F, ValueKindReal, nullptr, "%.2f"},
                       std::move(getOpacity), std::move(setOpacity), opacityChanged);
    return ExposeFlag(data, "window.loaded",
                      {"Window Loaded", 0.0F, 1.0F, ValueKindInteger, "Not loaded;Loaded", nullptr},
                      std::move(isLoaded), nullptr, loadedChanged) &&
           exposed;
}

} // namespace Mirel::SkinEngine
