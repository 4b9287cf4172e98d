#include "Host/CDescriptionPrinter.h"

#include "AAXPlugin/Interface/AAX_Properties.h"

namespace Host
{

namespace
{

/// One callable out of several, one per kind of declaration.
template <class... TCases>
struct TCasesOf : TCases...
{
    using TCases::operator()...;
};
template <class... TCases>
TCasesOf(TCases...) -> TCasesOf<TCases...>;

/// The lowest digits of a number, base 16.
std::string Hex(std::uint32_t value, unsigned digits)
{
    std::string text;
    while (digits > 0)
    {
        --digits;
        text += "0123456789ABCDEF"[value >> 4 * digits & 0xFU];
    }
    return text;
}

/// The four characters of an identifier, or nothing if they are not all printable.
std::string FourCharacters(std::uint32_t value)
{
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
    {
        const auto byte = static_cast<char>(value >> static_cast<unsigned>(shift) & 0xFFU);
        if (byte < ' ' || byte > '~')
        {
            return {};
        }
        text += byte;
    }
    return text;
}

const char* PropertyName(std::uint32_t number)
{
    switch (number)
    {
    case AAXProperty::ManufacturerId:
        return "manufacturer-id";
    case AAXProperty::ProductId:
        return "product-id";
    case AAXProperty::PluginId:
        return "plugin-id";
    case AAXProperty::InputStemFormat:
        return "input-stem-format";
    case AAXProperty::OutputStemFormat:
        return "output-stem-format";
    case AAXProperty::Flag:
        return "flag";
    default:
        return "unknown";
    }
}

const char* ProcedureName(AAX_ProcedureId id)
{
    switch (id)
    {
    case AAX_ProcedureId::EffectParameters:
        return "effect-parameters";
    case AAX_ProcedureId::Gui:
        return "gui";
    }
    return "unknown";
}

const char* MidiNodeName(AAX_MidiNodeType type)
{
    switch (type)
    {
    case AAX_MidiNodeType::LocalInput:
        return "midi-local-input";
    case AAX_MidiNodeType::LocalOutput:
        return "midi-local-output";
    }
    return "midi-unknown";
}

} // namespace

std::string Quoted(std::string_view text)
{
    std::string quoted = "\"";
    for (const char character : text)
    {
        const auto byte = static_cast<unsigned char>(character);
        if (character == '"' || character == '\\')
        {
            quoted += '\\';
            quoted += character;
        }
        else if (byte < 0x20U || byte == 0x7FU)
        {
            quoted += "\\x" + Hex(byte, 2);
        }
        else
        {
            quoted += character;
        }
    }
    return quoted + "\"";
}

CDescriptionPrinter::CDescriptionPrinter(std::ostream& out_) : out(out_) {}

void CDescriptionPrinter::Print(const CRecordingCollection& collection)
{
    std::size_t effects = 0;
    const TCasesOf cases{
        [&](const CAddedEffect& added) { PrintEffect("effect " + std::to_string(effects++), added); },
        [&](const CManufacturerName& name) { out << "manufacturer name " << Quoted(name.text) << '\n'; },
        [&](const CPackageName& name) { out << "package name " << Quoted(name.text) << '\n'; },
        [&](const CPackageVersion& version) { out << "package version " << version.version << '\n'; }};
    for (const CCollectionDeclaration& declaration : collection.GetDeclarations())
    {
        std::visit(cases, declaration);
    }
}

void CDescriptionPrinter::PrintEffect(const std::string& path, const CAddedEffect& added)
{
    std::size_t components = 0;
    const TCasesOf cases{
        [&](const CName& name) { out << path << " name " << Quoted(name.text) << '\n'; },
        [&](const CCreationProcedure& procedure)
        {
            out << path << " creation-procedure " << static_cast<std::int32_t>(procedure.id) << ' '
                << ProcedureName(procedure.id) << '\n';
        },
        [&](const CAddedComponent& component)
        { PrintComponent(path + " component " + std::to_string(components++), *component.component); }};
    for (const CEffectDeclaration& declaration : added.effect->GetDeclarations())
    {
        std::visit(cases, declaration);
    }
    // An effect gets its identifier when it is added, after all that it declares itself.
    out << path << " identifier " << Quoted(added.identifier) << '\n';
}

void CDescriptionPrinter::PrintComponent(const std::string& path, const CRecordingComponent& component)
{
    const std::string field = path + " field ";
    const TCasesOf cases{
        [&](const CDataInPort& port)
        {
            out << field << port.field << " data-in packet-size " << port.packetSize << " port-type "
                << port.portType << '\n';
        },
        [&](const CAudioInput& input) { out << field << input.field << " audio-input\n"; },
        [&](const CAudioOutput& output) { out << field << output.field << " audio-output\n"; },
        [&](const CAudioBufferLength& length) { out << field << length.field << " audio-buffer-length\n"; },
        [&](const CMidiNode& node)
        {
            out << field << node.field << ' ' << MidiNodeName(node.type) << " name " << Quoted(node.name)
                << " channel-mask " << node.channelMask << '\n';
        },
        [&](const CProcessProcedure& process)
        {
            PrintProperties(path, *process.properties);
            out << path << " process-procedure\n";
        }};
    for (const CComponentDeclaration& declaration : component.GetDeclarations())
    {
        std::visit(cases, declaration);
    }
}

void CDescriptionPrinter::PrintProperties(const std::string& path, const CRecordingPropertyMap& map)
{
    for (const CProperty& property : map.GetProperties())
    {
        out << path << " property " << property.number << ' ' << PropertyName(property.number) << " 0x"
            << Hex(property.value, 8);
        const std::string characters = FourCharacters(property.value);
        if (!characters.empty())
        {
            out << ' ' << Quoted(characters);
        }
        out << '\n';
    }
}

} // namespace Host
