#include "Mirel/Audio/Plugin/CPluginSkinModel.h"

#include "Mirel/Audio/Plugin/CAudioPluginDefaultSettings.h"
#include "Mirel/Audio/Plugin/CPluginModelObjects.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"

#include <filesystem>
#include <string>

#include <unistd.h>

namespace Mirel::Audio::Plugin
{

using namespace SkinEngine;

namespace
{

/// What a file may ask of the plug-in that it is read for.
void SetVariables(CSkinModelFactory& factory, const CAudioPluginBindings& bindings)
{
    const auto setCount = [&factory](const char* name, int count)
    { factory.SetVariable(name, std::to_string(count).c_str()); };
    if (bindings.filter != nullptr)
    {
        setCount("PLUGIN_AUDIO_INPUTS_COUNT", bindings.filter->GetProcessInfo().GetInputs().GetCount());
        setCount("PLUGIN_AUDIO_OUTPUTS_COUNT", bindings.filter->GetProcessInfo().GetOutputs().GetCount());
        if (const char* name = bindings.filter->GetProductInfo().GetName())
        {
            factory.SetVariable("PLUGIN_NAME", name);
        }
    }
    if (bindings.inputsInfo != nullptr)
    {
        setCount("PLUGIN_INPUT_PARAMS_COUNT", bindings.inputsInfo->GetCount());
    }
    if (bindings.outputsInfo != nullptr)
    {
        setCount("PLUGIN_OUTPUT_PARAMS_COUNT", bindings.outputsInfo->GetCount());
    }
}

/// The folder that the model files, the skins and the rest of the product's data stand below.
std::string DataFolder(const CAudioPluginBindings& bindings)
{
    if (bindings.defaultSettings == nullptr)
    {
        return {};
    }
    return std::filesystem::path(bindings.defaultSettings->GetModelFile()).parent_path().parent_path();
}

} // namespace

CPluginSkinModel::CPluginSkinModel(const CAudioPluginBindings& bindings_, const SSkinModelServices& services_)
    : bindings(bindings_),
      services(services_)
{
    services.timerProvider = &timers;
}

CPluginSkinModel::~CPluginSkinModel()
{
    shared.GetObjects().GetAddedEventProvider().Disconnect(&sharedAdded);
    shared.GetObjects().GetRemovedEventProvider().Disconnect(&sharedRemoved);
}

bool CPluginSkinModel::Load(const char* path)
{
    LoadShared();
    CSkinParser parser(log);
    parser.SetDataFolder(DataFolder(bindings).c_str());
    CSkinModelFactory factory(parser, log, model, services);
    SetVariables(factory, bindings);
    if (!factory.PreParse(path))
    {
        return false;
    }
    AddPluginObjects(model.GetExposure());
    BringInShared();
    factory.Parse(path, true);
    return true;
}

bool CPluginSkinModel::AddPluginObjects(const ISkinModelExposure& wanted)
{
    return CPluginModelObjects(bindings, timers).Build(model, wanted);
}

void CPluginSkinModel::LoadShared()
{
    const char* path =
        bindings.defaultSettings == nullptr ? "" : bindings.defaultSettings->GetSharedModelFile();
    if (::access(path, F_OK) == 0)
    {
        CSkinParser parser(log);
        parser.SetDataFolder(DataFolder(bindings).c_str());
        CSkinModelFactory factory(parser, log, shared, services);
        SetVariables(factory, bindings);
        factory.Parse(path, true);
    }
}

void CPluginSkinModel::BringInShared()
{
    const std::unique_ptr<ISkinDynamicObjectsIterator> entry(shared.GetObjects().CreateIterator());
    for (; entry->IsValid(); entry->Next())
    {
        OnSharedAdded({entry->GetId(), &entry->GetObject(), false});
    }
    // The items of its collections come and go later, too.
    shared.GetObjects().GetAddedEventProvider().Connect(sharedAdded);
    shared.GetObjects().GetRemovedEventProvider().Connect(sharedRemoved);
}

void CPluginSkinModel::OnSharedAdded(const CDictionaryEntry& entry)
{
    if (model.GetExposure().IsWanted(entry.id))
    {
        model.GetObjects().Add(entry.id, entry.object, false);
    }
}

void CPluginSkinModel::OnSharedRemoved(const CDictionaryEntry& entry)
{
    if (model.GetObjects().Find(entry.id) == entry.object)
    {
        model.RemoveObject(entry.id);
    }
}

} // namespace Mirel::Audio::Plugin
