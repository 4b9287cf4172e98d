#include "Mirel/Audio/Plugin/CPluginSkinModel.h"

#include "Mirel/Audio/Plugin/CAudioPluginDefaultSettings.h"
#include "Mirel/Audio/Plugin/CPluginModelObjects.h"
#include "Mirel/Audio/Plugin/PluginVariables.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Model/CSkinModelFactory.h"

#include <string>

#include <unistd.h>

namespace Mirel::Audio::Plugin
{

using namespace SkinEngine;

namespace
{

void SetVariables(CSkinModelFactory& factory, const CAudioPluginBindings& bindings)
{
    for (const auto& [name, value] : DescribePlugin(bindings))
    {
        factory.SetVariable(name.c_str(), value.c_str());
    }
}

} // namespace

CPluginSkinModel::CPluginSkinModel(const CAudioPluginBindings& bindings_, const SSkinModelServices& services_)
    : bindings(bindings_),
      services(services_),
      ownOpener(services_.urlOpener)
{
    services.timerProvider = &timers;
    services.urlOpener = this;
}

CPluginSkinModel::~CPluginSkinModel() = default;

bool CPluginSkinModel::Load(const char* path)
{
    LoadShared();
    CSkinParser parser(log);
    parser.SetDataFolder(FindDataFolder(bindings).c_str());
    CSkinModelFactory factory(parser, log, model, services);
    SetVariables(factory, bindings);
    if (!factory.PreParse(path))
    {
        return false;
    }
    AddPluginObjects(model.GetExposure());
    import.emplace(shared, model); // the items of its collections come and go later, too
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
        parser.SetDataFolder(FindDataFolder(bindings).c_str());
        CSkinModelFactory factory(parser, log, shared, services);
        SetVariables(factory, bindings);
        factory.Parse(path, true);
    }
}

void CPluginSkinModel::OpenUrl(const char* url)
{
    if (SkinEngine::IUrlOpener* opener = attachedOpener != nullptr ? attachedOpener : ownOpener)
    {
        opener->OpenUrl(url);
    }
}

} // namespace Mirel::Audio::Plugin
