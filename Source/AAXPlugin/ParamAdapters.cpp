#include "AAXPlugin/ParamAdapters.h"

#include "Mirel/Serialization/IndexedKey.h"

namespace MirelExt::AAXPlugin
{

using Mirel::Audio::Plugin::CAudioPluginInternalsBase;

namespace
{

std::string IdentifierOf(int index)
{
    return Mirel::Serialization::IndexedKey("P", index);
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
