#pragma once

#include "AAXPlugin/Interface/IAAXComponentDescriptor.h"
#include "AAXPlugin/Interface/TACFReference.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace Host
{

class CRecordingComponent;
class CRecordingEffect;
class CRecordingPropertyMap;

/// What a module declares, one record per call, with texts copied and objects kept alive.

struct CDataInPort
{
    std::uint32_t field;
    std::uint32_t packetSize;
    std::int32_t portType;
};

struct CAudioInput
{
    std::uint32_t field;
};

struct CAudioOutput
{
    std::uint32_t field;
};

struct CAudioBufferLength
{
    std::uint32_t field;
};

struct CMidiNode
{
    std::uint32_t field;
    AAX_MidiNodeType type;
    std::string name;
    std::uint32_t channelMask;
};

struct CProcessProcedure
{
    AAX_ProcessProcedure procedure;
    TACFReference<CRecordingPropertyMap> properties;
};

struct CName
{
    std::string text;
};

struct CCreationProcedure
{
    AAX_CreationProcedure procedure;
    AAX_ProcedureId id;
};

struct CAddedComponent
{
    TACFReference<CRecordingComponent> component;
};

struct CAddedEffect
{
    std::string identifier;
    TACFReference<CRecordingEffect> effect;
};

struct CManufacturerName
{
    std::string text;
};

struct CPackageName
{
    std::string text;
};

struct CPackageVersion
{
    std::uint32_t version;
};

struct CProperty
{
    std::uint32_t number;
    std::uint32_t value;
};

using CComponentDeclaration =
    std::variant<CDataInPort, CAudioInput, CAudioOutput, CAudioBufferLength, CMidiNode, CProcessProcedure>;
using CEffectDeclaration = std::variant<CName, CCreationProcedure, CAddedComponent>;
using CCollectionDeclaration = std::variant<CAddedEffect, CManufacturerName, CPackageName, CPackageVersion>;

/// All records of one kind, in the order declared; null pointers never.
template <class TRecord, class TDeclaration>
std::vector<const TRecord*> RecordsOf(const std::vector<TDeclaration>& declarations)
{
    std::vector<const TRecord*> records;
    for (const TDeclaration& declaration : declarations)
    {
        if (const TRecord* record = std::get_if<TRecord>(&declaration))
        {
            records.push_back(record);
        }
    }
    return records;
}

} // namespace Host
