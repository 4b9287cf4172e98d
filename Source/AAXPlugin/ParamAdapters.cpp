#include "AAXPlugin/ParamAdapters.h"

namespace MirelExt::AAXPlugin
{

using Mirel::Audio::Plugin::CAudioPluginInternalsBase;

namespace
{

std::string IdentifierOf(int index)
{
    return "P" + std::to_string(index);
}

} // namespace

void MakeAdapters(CAudioPluginInternalsBase& internals, const CAudioThreadMark& audioThread,
                  CInputAdapters& inputs, COutputAdapters& outputs)
{
    using EDirection = CAAXPluginParamAdapter::EDirection;
    int index = 0;
    const auto& inputsInfo = internals.GetInputParamsInfo();
    for (int i = 0; i < inputsInfo.GetCount(); ++i)
    {
        inputs.Add(inputsInfo[i], internals.GetInputValues()[i], EDirection::Input, IdentifierOf(index++),
                   audioThread);
    }
    const auto& outputsInfo = internals.GetOutputParamsInfo();
    for (int i = 0; i < outputsInfo.GetCount(); ++i)
    {
        outputs.Add(outputsInfo[i], internals.GetOutputValues()[i], EDirection::Output, IdentifierOf(index++),
                    audioThread);
    }
}

} // namespace MirelExt::AAXPlugin
