#include "AAXPlugin/ComponentDescription.h"

#include "AAXPlugin/CAAXPluginProcessContext.h"
#include "AAXPlugin/CFirstFailure.h"
#include "AAXPlugin/Identity.h"
#include "AAXPlugin/Interface/AAX_Properties.h"
#include "AAXPlugin/Interface/AAX_VComponentDescriptor.h"
#include "AAXPlugin/ProcessFields.h"
#include "AAXPlugin/StemFormats.h"

#include <array>
#include <string>

namespace MirelExt::AAXPlugin
{

namespace
{

struct CProperty
{
    std::uint32_t number;
    std::uint32_t value;
};

std::int32_t DeclareFields(AAX_VComponentDescriptor& component)
{
    const AAX_CString inputName(ProductName);
    const AAX_CString outputName(std::string(ProductName) + " Out");
    return CFirstFailure()
        .Then([&] { return component.AddDataInPort(FieldReserved, ReservedPacketSize, DataInPortType); })
        .Then([&] { return component.AddDataInPort(FieldProcessContext, PointerPacketSize, DataInPortType); })
        .Then([&] { return component.AddAudioInput(FieldAudioInputs); })
        .Then([&] { return component.AddAudioOutput(FieldAudioOutputs); })
        .Then([&] { return component.AddAudioBufferLength(FieldBufferLength); })
        .Then(
            [&] {
                return component.AddMidiNode(FieldMidiInput, AAX_MidiNodeType::LocalInput, inputName,
                                             AllMidiChannels);
            })
        .Then(
            [&]
            {
                return component.AddMidiNode(FieldMidiOutput, AAX_MidiNodeType::LocalOutput, outputName,
                                             AllMidiChannels);
            })
        .GetResult();
}

std::int32_t SetProperties(AAX_VPropertyMap& map, CChannelCounts channels, std::uint32_t pluginId)
{
    const std::array<CProperty, 6> properties = {
        {{AAXProperty::ManufacturerId, ManufacturerId},
         {AAXProperty::ProductId, ProductId},
         {AAXProperty::Flag, 1},
         {AAXProperty::InputStemFormat, StemFormatOf(channels.inputs)},
         {AAXProperty::OutputStemFormat, StemFormatOf(channels.outputs)},
         {AAXProperty::PluginId, pluginId}}};
    CFirstFailure calls;
    for (const CProperty& property : properties)
    {
        calls.Then([&] { return map.SetProperty(property.number, property.value); });
    }
    return calls.GetResult();
}

} // namespace

std::int32_t DescribeComponent(AAX_VComponentDescriptor& component, CChannelCounts channels,
                               std::uint32_t pluginId, bool monoVariant)
{
    const CChannelCounts used = monoVariant ? CChannelCounts{1, 1} : channels;
    const std::int32_t result = DeclareFields(component);
    if (result != AAXResult::Ok)
    {
        return result;
    }
    AAX_VPropertyMap properties = component.NewPropertyMap();
    if (!properties)
    {
        return AAXResult::Failed;
    }
    return CFirstFailure()
        .Then([&] { return SetProperties(properties, used, pluginId); })
        .Then([&] { return component.AddProcessProcedure(ProcessInstances, properties); })
        .GetResult();
}

} // namespace MirelExt::AAXPlugin
