#include "Mirel/Audio/Plugin/PluginVariables.h"

#include "Mirel/Audio/Plugin/CAudioPluginDefaultSettings.h"

#include <filesystem>

namespace Mirel::Audio::Plugin
{

std::map<std::string, std::string> DescribePlugin(const CAudioPluginBindings& bindings)
{
    std::map<std::string, std::string> variables;
    if (bindings.filter != nullptr)
    {
        const DSP::CProcessInfo& process = bindings.filter->GetProcessInfo();
        variables["PLUGIN_AUDIO_INPUTS_COUNT"] = std::to_string(process.GetInputs().GetCount());
        variables["PLUGIN_AUDIO_OUTPUTS_COUNT"] = std::to_string(process.GetOutputs().GetCount());
        if (const char* name = bindings.filter->GetProductInfo().GetName())
        {
            variables["PLUGIN_NAME"] = name;
        }
    }
    if (bindings.inputsInfo != nullptr)
    {
        variables["PLUGIN_INPUT_PARAMS_COUNT"] = std::to_string(bindings.inputsInfo->GetCount());
    }
    if (bindings.outputsInfo != nullptr)
    {
        variables["PLUGIN_OUTPUT_PARAMS_COUNT"] = std::to_string(bindings.outputsInfo->GetCount());
    }
    return variables;
}

std::string FindDataFolder(const CAudioPluginBindings& bindings)
{
    if (bindings.defaultSettings == nullptr)
    {
        return {};
    }
    return std::filesystem::path(bindings.defaultSettings->GetModelFile()).parent_path().parent_path();
}

} // namespace Mirel::Audio::Plugin
