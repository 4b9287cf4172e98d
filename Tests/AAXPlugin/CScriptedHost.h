#pragma once

#include "AAXPlugin/Interface/CACFUnknown.h"
#include "AAXPlugin/Interface/IAAXHost.h"
#include "AAXPlugin/Interface/IAAXPluginDefinition.h"

#include <functional>
#include <string>
#include <vector>

namespace Tests
{

/// A host, its collection, descriptors and maps in one object. It writes down every call, and one of the
/// calls can be made to do something else.
class CScriptedHost : public TACFObject<IAAXHost, IAAXCollection, IAAXPluginDefinition, IAAXEffectDescriptor,
                                        IAAXComponentDescriptor, IAAXPropertyMap>
{
public:
    /// Every call, in order, with its arguments.
    std::vector<std::string> calls;
    std::vector<AAX_ProcessProcedure> procedures;

    /// The call with this index (0 is the first) returns what `action` returns. -1 is none.
    int actionAt = -1;
    std::function<std::int32_t()> action;

    /// Whether the collection answers when asked for the plug-in definition.
    bool offersDefinition = true;

    std::int32_t QueryInterface(const ACFInterfaceId& id, void** out) override
    {
        if (id == InterfaceIdOf<IAAXPluginDefinition> && !offersDefinition)
        {
            *out = this; // a careless host: the result alone says that this is not to be used
            return AAXResult::Unsupported;
        }
        return TACFObject::QueryInterface(id, out);
    }

    std::int32_t CreateCollection(IAAXCollection** out) override { return Create("CreateCollection", out); }

    std::int32_t CreateEffectDescriptor(IAAXEffectDescriptor** out) override
    {
        return Create("CreateEffectDescriptor", out);
    }

    std::int32_t AddEffect(const char* identifier, IAAXEffectDescriptor*) override
    {
        return Call("AddEffect " + std::string(identifier));
    }

    std::int32_t SetManufacturerName(const char* name) override
    {
        return Call("SetManufacturerName " + std::string(name));
    }

    std::int32_t AddPackageName(const char* name) override
    {
        return Call("AddPackageName " + std::string(name));
    }

    std::int32_t SetPackageVersion(std::uint32_t version) override
    {
        return Call("SetPackageVersion " + std::to_string(version));
    }

    std::int32_t GetEffectCount() override { return 0; }

    std::int32_t AddName(const char* name) override { return Call("AddName " + std::string(name)); }

    std::int32_t AddCreationProcedure(AAX_CreationProcedure, AAX_ProcedureId id) override
    {
        return Call("AddCreationProcedure " + std::to_string(static_cast<int>(id)));
    }

    std::int32_t CreateComponentDescriptor(IAAXComponentDescriptor** out) override
    {
        return Create("CreateComponentDescriptor", out);
    }

    std::int32_t AddComponent(IAAXComponentDescriptor*) override { return Call("AddComponent"); }

    std::int32_t AddDataInPort(std::uint32_t field, std::uint32_t packetSize, std::int32_t portType) override
    {
        return Call("AddDataInPort " + std::to_string(field) + " " + std::to_string(packetSize) + " " +
                    std::to_string(portType));
    }

    std::int32_t AddAudioInput(std::uint32_t field) override
    {
        return Call("AddAudioInput " + std::to_string(field));
    }

    std::int32_t AddAudioOutput(std::uint32_t field) override
    {
        return Call("AddAudioOutput " + std::to_string(field));
    }

    std::int32_t AddAudioBufferLength(std::uint32_t field) override
    {
        return Call("AddAudioBufferLength " + std::to_string(field));
    }

    std::int32_t AddMidiNode(std::uint32_t field, AAX_MidiNodeType type, const char* name,
                             std::uint32_t channelMask) override
    {
        return Call("AddMidiNode " + std::to_string(field) +
                    (type == AAX_MidiNodeType::LocalInput ? " input " : " output ") + name + " " +
                    std::to_string(channelMask));
    }

    std::int32_t CreatePropertyMap(IAAXPropertyMap** out) override
    {
        return Create("CreatePropertyMap", out);
    }

    std::int32_t AddProcessProcedure(AAX_ProcessProcedure procedure, IAAXPropertyMap*) override
    {
        procedures.push_back(procedure);
        return Call("AddProcessProcedure");
    }

    std::int32_t SetProperty(std::uint32_t number, std::uint32_t value) override
    {
        return Call("SetProperty " + std::to_string(number) + " " + std::to_string(value));
    }

private:
    std::int32_t Call(const std::string& text)
    {
        calls.push_back(text);
        return static_cast<int>(calls.size()) - 1 == actionAt ? action() : AAXResult::Ok;
    }

    template <class T>
    std::int32_t Create(const std::string& text, T** out)
    {
        const std::int32_t result = Call(text);
        if (result == AAXResult::Ok)
        {
            AddReference();
            *out = this;
        }
        return result;
    }
};

} // namespace Tests
