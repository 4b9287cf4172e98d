#include "Mirel/Audio/Plugin/MIDIModelObjects.h"

#include "Mirel/Audio/Plugin/CConstMIDICCMessageTimerProxy.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/Runtime/CDynamicObject.h"
#include "Mirel/SkinEngine/Model/ObjectLookup.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace Mirel::Audio::Plugin
{

using namespace DataModel::Objects;
using SkinEngine::TObjectInterface;

namespace
{

constexpr const char* LastMessageId = "midi.last_message";
constexpr float LastChannel = 16.0f;
constexpr float LastNumber = 127.0f;
constexpr float PortamentoSwitch = 65.0f;

CParamInfo WholeNumber(float min, float max, float defaultValue, const std::string& name)
{
    return {ValueKindInteger, min, max, defaultValue, name.c_str(), "", ""};
}

std::string NameWith(const IConstParamInfo& info, const char* suffix)
{
    return std::string(info.GetName() == nullptr ? "" : info.GetName()) + suffix;
}

/// An end of the mapped range, in the values of the parameter.
CParamInfo RangeEnd(const IConstParamInfo& info, const char* suffix, float defaultValue)
{
    CParamInfo end(info);
    end.SetName(NameWith(info, suffix).c_str());
    end.SetDefault(defaultValue);
    return end;
}

/// A parameter that shows one field of a setting.
std::unique_ptr<CCaptureParamWrapper> FieldOf(const IMIDICCSetting& setting, const CParamInfo& info,
                                              std::function<float()> get, std::function<void(float)> set)
{
    return std::make_unique<CCaptureParamWrapper>(info, std::move(get), std::move(set),
                                                  &setting.GetChangedEventProvider());
}

int ToWhole(float value)
{
    return static_cast<int>(value + 0.5f);
}

bool AddMIDISetting(CTimedModelObjects& objects, const std::string& id, IMIDICCSetting& setting,
                    const IConstParamInfo& info)
{
    IMIDICCSetting* field = &setting;
    bool added =
        objects.AddParam(id + ".channel",
                         [field, &info]
                         {
                             return FieldOf(
                                 *field, WholeNumber(0.0f, LastChannel, 0.0f, NameWith(info, " Channel")),
                                 [field] { return static_cast<float>(field->GetChannel()); },
                                 [field](float value) { field->SetChannel(ToWhole(value)); });
                         });
    added = objects.AddParam(id + ".cc",
                             [field, &info]
                             {
                                 return FieldOf(
                                     *field,
                                     WholeNumber(0.0f, LastNumber, PortamentoSwitch, NameWith(info, " CC")),
                                     [field] { return static_cast<float>(field->GetNumber()); },
                                     [field](float value) { field->SetNumber(ToWhole(value)); });
                             }) &&
            added;
    added = objects.AddParam(id + ".min",
                             [field, &info]
                             {
                                 return FieldOf(
                                     *field, RangeEnd(info, " min", info.GetMin()),
                                     [field] { return field->GetMin(); },
                                     [field](float value) { field->SetMin(value); });
                             }) &&
            added;
    added = objects.AddParam(id + ".max",
                             [field, &info]
                             {
                                 return FieldOf(
                                     *field, RangeEnd(info, " max", info.GetMax()),
                                     [field] { return field->GetMax(); },
                                     [field](float value) { field->SetMax(value); });
                             }) &&
            added;
    return objects.AddParam(id + ".enabled",
                            [field, &info]
                            {
                                const CParamInfo enabledInfo(ValueKindBoolean, 0.0f, 1.0f, 0.0f,
                                                             NameWith(info, " Enabled").c_str(), "", "",
                                                             new CEnumToText({"Off", "On"}), true);
                                return FieldOf(
                                    *field, enabledInfo, [field] { return field->IsEnabled() ? 1.0f : 0.0f; },
                                    [field](float value) { field->SetEnabled(value >= 0.5f); });
                            }) &&
           added;
}

/// The message in the model, which is put there first if it is not yet.
CConstMIDICCMessageTimerProxy& MessageIn(CTimedModelObjects& objects, SkinEngine::ISkinModel& model,
                                         const CMIDICCMessage& message)
{
    auto* present = SkinEngine::FindObject<IConstMIDICCMessage>(model.GetObjects(), LastMessageId);
    if (auto* proxy = dynamic_cast<CConstMIDICCMessageTimerProxy*>(present))
    {
        return *proxy;
    }
    auto& proxy = objects.Keep(std::make_unique<CConstMIDICCMessageTimerProxy>(message, objects.GetTimers(),
                                                                               objects.GetRefreshTime()));
    auto wrapper = std::make_unique<Runtime::CDynamicObject>();
    wrapper->AddInterface<IConstMIDICCMessage>(TObjectInterface<IConstMIDICCMessage>::name, &proxy, false);
    wrapper->AddInterface<Core::IRefreshTime>(TObjectInterface<Core::IRefreshTime>::name, &proxy, false);
    wrapper->AddInterface<Core::IEnable>(TObjectInterface<Core::IEnable>::name, &proxy, false);
    model.AddObject(LastMessageId, wrapper.release(), true);
    return proxy;
}

/// A parameter of the message, which moves with it and so needs no timer of its own.
template <class Get>
bool AddMessageParam(CTimedModelObjects& objects, SkinEngine::ISkinModel& model, const std::string& id,
                     int flags, const CParamInfo& info, const CConstMIDICCMessageTimerProxy& message, Get get)
{
    if (flags == 0)
    {
        return true;
    }
    auto& param = objects.Keep(std::make_unique<CConstCaptureParamWrapper>(
        info, [&message, get] { return static_cast<float>((message.*get)()); },
        &message.GetValueChangedEventProvider()));
    return model.AddConstParam(id.c_str(), &param, flags, false);
}

} // namespace

bool AddLastMIDIMessage(CTimedModelObjects& objects, SkinEngine::ISkinModel& model,
                        const CMIDICCMessage& message)
{
    const std::string id = LastMessageId;
    const std::string channelId = id + ".channel";
    const std::string numberId = id + ".cc";
    const int channelFlags = objects.GetParamFlags(channelId);
    const int numberFlags = objects.GetParamFlags(numberId);
    bool added = true;
    if ((objects.WithPaused(id, objects.GetObjectFlags(id)) | channelFlags | numberFlags) != 0)
    {
        const auto& proxy = MessageIn(objects, model, message);
        added = AddMessageParam(objects, model, channelId, channelFlags,
                                WholeNumber(1.0f, LastChannel, 1.0f, "Channel"), proxy,
                                &CConstMIDICCMessageTimerProxy::GetChannel);
        added =
            AddMessageParam(objects, model, numberId, numberFlags, WholeNumber(0.0f, LastNumber, 0.0f, "CC"),
                            proxy, &CConstMIDICCMessageTimerProxy::GetNumber) &&
            added;
    }
    return objects.AddPaused(id) && added;
}

bool AddMIDISettings(CTimedModelObjects& objects, const char* prefix, CMIDICCSettings& settings,
                     const DSP::IParamsInfo& infos)
{
    bool added = true;
    const int count = std::min(settings.GetCount(), infos.GetCount());
    for (int i = 0; i < count; ++i)
    {
        added = AddMIDISetting(objects, prefix + std::to_string(i), settings[i], infos[i]) && added;
    }
    return added;
}

} // namespace Mirel::Audio::Plugin
