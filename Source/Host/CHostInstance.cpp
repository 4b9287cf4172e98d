#include "Host/CHostInstance.h"

#include "AAXPlugin/Interface/AAX_Properties.h"
#include "AAXPlugin/Interface/QueryFor.h"
#include "Host/CodeText.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace Host
{

namespace
{

constexpr std::uint32_t ChannelCountMask = 0xFFF;
constexpr std::size_t MostMidiEvents = 1024;

std::uint32_t PropertyOf(const CRecordingPropertyMap& map, std::uint32_t number)
{
    return map.Find(number).value_or(0);
}

bool HasChannels(const CRecordingPropertyMap& map, int channels)
{
    const auto wanted = static_cast<std::uint32_t>(channels);
    return (PropertyOf(map, AAXProperty::InputStemFormat) & ChannelCountMask) == wanted &&
           (PropertyOf(map, AAXProperty::OutputStemFormat) & ChannelCountMask) == wanted;
}

SAAXChunk* HeadOf(std::vector<char>& bytes)
{
    return reinterpret_cast<SAAXChunk*>(bytes.data());
}

/// The identifier of a whole chunk.
std::optional<std::uint32_t> ChunkIdOf(const std::vector<char>& bytes)
{
    SAAXChunk head = {};
    if (bytes.size() < sizeof(head))
    {
        return std::nullopt;
    }
    std::memcpy(&head, bytes.data(), sizeof(head));
    return head.size == bytes.size() - sizeof(head) ? std::optional(head.chunkId) : std::nullopt;
}

} // namespace

std::unique_ptr<CHostInstance> CHostInstance::Make(const CRecordingCollection& collection,
                                                   const CInstanceSetup& setup, std::string& error)
{
    const auto effects = RecordsOf<CAddedEffect>(collection.GetDeclarations());
    std::unique_ptr<CHostInstance> instance(new CHostInstance);
    if (effects.empty() || !instance->UseVariant(*effects.front()->effect, setup.channels))
    {
        error = "the module has no variant with " + std::to_string(setup.channels) + " channels";
        return nullptr;
    }
    if (!instance->MakeParameters(*effects.front()->effect, setup, error))
    {
        return nullptr;
    }
    return instance;
}

CHostInstance::~CHostInstance()
{
    if (parameters)
    {
        parameters->Uninitialize();
        controller->SetParameters(nullptr);
    }
}

void CHostInstance::Process(const float* const* inputs, float* const* outputs, std::int32_t sampleCount)
{
    blockLength = sampleCount;
    for (const std::uint32_t field : inputFields)
    {
        fields[field] = const_cast<float**>(const_cast<float* const*>(inputs));
    }
    for (const std::uint32_t field : outputFields)
    {
        fields[field] = const_cast<float**>(outputs);
    }
    controller->GetPorts().Deliver(fields);
    if (midiOutput)
    {
        midiOutput->Clear();
    }
    const AAX_InstanceRecord record = fields.data();
    procedure(&record, 1);
    if (midiInput)
    {
        midiInput->Clear();
    }
}

TACFReference<IACFUnknown> CHostInstance::MakeGui() const
{
    return TACFReference<IACFUnknown>::Adopt(guiProcedure != nullptr ? guiProcedure() : nullptr);
}

bool CHostInstance::SaveChunk(std::uint32_t chunkId, std::vector<char>& bytes, std::string& error)
{
    // The state may change between the two calls; then the plug-in refuses, and is asked again.
    constexpr int mostAttempts = 8;
    std::int32_t result = AAXResult::WrongChunkSize;
    for (int attempt = 0; attempt < mostAttempts && result == AAXResult::WrongChunkSize; ++attempt)
    {
        std::uint32_t size = 0;
        result = parameters->GetChunkSize(chunkId, &size);
        if (result != AAXResult::Ok)
        {
            error = CodeText("GetChunkSize", result);
            return false;
        }
        bytes.assign(sizeof(SAAXChunk) + size, '\0');
        SAAXChunk* chunk = HeadOf(bytes);
        chunk->manufacturerId = PropertyOf(*properties, AAXProperty::ManufacturerId);
        chunk->productId = PropertyOf(*properties, AAXProperty::ProductId);
        chunk->pluginId = PropertyOf(*properties, AAXProperty::PluginId);
        chunk->chunkId = chunkId;
        result = parameters->GetChunk(chunkId, chunk);
    }
    if (result != AAXResult::Ok)
    {
        error = CodeText("GetChunk", result);
        return false;
    }
    bytes.resize(sizeof(SAAXChunk) + HeadOf(bytes)->size);
    return true;
}

std::int32_t CHostInstance::LoadChunk(const std::vector<char>& bytes)
{
    const std::optional<std::uint32_t> id = ChunkIdOf(bytes);
    return id ? parameters->SetChunk(*id, reinterpret_cast<const SAAXChunk*>(bytes.data()))
              : AAXResult::Failed;
}

bool CHostInstance::IsActiveChunk(const std::vector<char>& bytes)
{
    std::int32_t equal = 0;
    return ChunkIdOf(bytes) &&
           parameters->CompareActiveChunk(reinterpret_cast<const SAAXChunk*>(bytes.data()), &equal) ==
               AAXResult::Ok &&
           equal != 0;
}

bool CHostInstance::UseVariant(const CRecordingEffect& effect, int channels)
{
    for (const CAddedComponent* added : RecordsOf<CAddedComponent>(effect.GetDeclarations()))
    {
        const auto& declarations = added->component->GetDeclarations();
        for (const CProcessProcedure* process : RecordsOf<CProcessProcedure>(declarations))
        {
            if (HasChannels(*process->properties, channels))
            {
                properties = process->properties;
                procedure = process->procedure;
                UseComponent(*added->component);
                return true;
            }
        }
    }
    return false;
}

void CHostInstance::UseComponent(const CRecordingComponent& component)
{
    const auto& declarations = component.GetDeclarations();
    for (const CDataInPort* port : RecordsOf<CDataInPort>(declarations))
    {
        declaredPorts.push_back(*port);
        SetField(port->field, nullptr);
    }
    for (const CAudioInput* input : RecordsOf<CAudioInput>(declarations))
    {
        inputFields.push_back(input->field);
        SetField(input->field, nullptr);
    }
    for (const CAudioOutput* output : RecordsOf<CAudioOutput>(declarations))
    {
        outputFields.push_back(output->field);
        SetField(output->field, nullptr);
    }
    for (const CAudioBufferLength* length : RecordsOf<CAudioBufferLength>(declarations))
    {
        SetField(length->field, &blockLength);
    }
    for (const CMidiNode* node : RecordsOf<CMidiNode>(declarations))
    {
        const bool isInput = node->type == AAX_MidiNodeType::LocalInput;
        TACFReference<CHostMidiNode>& made = isInput ? midiInput : midiOutput;
        made = TACFReference<CHostMidiNode>::Adopt(new CHostMidiNode(isInput, MostMidiEvents));
        SetField(node->field, static_cast<IAAXMidiNode*>(made.Get()));
    }
}

bool CHostInstance::MakeParameters(const CRecordingEffect& effect, const CInstanceSetup& setup,
                                   std::string& error)
{
    for (const CCreationProcedure* creation : RecordsOf<CCreationProcedure>(effect.GetDeclarations()))
    {
        if (creation->id == AAX_ProcedureId::EffectParameters)
        {
            const auto made = TACFReference<IACFUnknown>::Adopt(creation->procedure());
            parameters = QueryFor<AAX_IEffectParameters>(made.Get());
            curves = QueryFor<IPublishedCurves>(made.Get());
        }
        else if (creation->id == AAX_ProcedureId::Gui)
        {
            guiProcedure = creation->procedure;
        }
    }
    if (!parameters)
    {
        error = "the module makes no instance";
        return false;
    }
    controller = TACFReference<CHostController>::Adopt(
        new CHostController(PropertyOf(*properties, AAXProperty::InputStemFormat),
                            PropertyOf(*properties, AAXProperty::OutputStemFormat), setup.sampleRate));
    controller->SetParameters(parameters.Get());
    for (const CDataInPort& port : declaredPorts)
    {
        controller->GetPorts().Add(port);
    }
    const std::int32_t result = parameters->Initialize(static_cast<IAAXController*>(controller.Get()));
    if (result != AAXResult::Ok)
    {
        error = CodeText("the instance's initialisation", result);
        return false;
    }
    return true;
}

void CHostInstance::SetField(std::uint32_t field, void* value)
{
    if (field >= fields.size())
    {
        fields.resize(std::size_t{field} + 1);
    }
    fields[field] = value;
}

} // namespace Host
