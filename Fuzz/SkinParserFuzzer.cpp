// The first byte chooses: the rest is a file as it stands, or instructions from which a tree of the
// language's own elements is built, so that most inputs get past the XML library. Whatever was parsed, starts
// and ends that the listener hears come in pairs, and the parser is as good as new for the next file.

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/IElementListener.h"
#include "Require.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace
{

using namespace Mirel::SkinEngine;
using Mirel::Containers::CNamedAttributes;

/// Takes instructions until there are none; then it gives zeros.
class CInstructions
{
public:
    explicit CInstructions(std::span<const std::uint8_t> bytes_) : bytes(bytes_) {}

    bool IsEmpty() const { return bytes.empty(); }

    std::size_t Take(std::size_t choices)
    {
        if (bytes.empty())
        {
            return 0;
        }
        const std::size_t taken = bytes.front();
        bytes = bytes.subspan(1);
        return taken % choices;
    }

private:
    std::span<const std::uint8_t> bytes;
};

constexpr std::array elementNames = {
    "A",      "B",      "T",  "U",        "LIST",     "PAIR",           "TEMPLATE", "TEMPLATE_INNER_CONTENT",
    "REPEAT", "DEFINE", "D",  "UNDEFINE", "VARIABLE", "LOCAL_VARIABLE", "INCLUDE",  "INCLUDE_ONCE",
    "SCRIPT", "S",      "T0", "T1",
};
constexpr std::array attributeNames = {"id",    "count",    "start", "index_list", "index_name", "formula",
                                       "value", "override", "file",  "base_type",  "src",        "x"};
constexpr std::array values = {"T",        "U",        "A",     "D",    "0",        "1",
                               "2",        "3",        "2+1",   "v",    "$v$",      "$$",
                               "$index$",  "T$index$", "a;b;;", "true", "part.xml", "$v$$v$",
                               "skin.xml", "../x",     "B",     "LIST", "i",        "$i$"};

/// Elements, each with some attributes and children, as deep as the instructions go.
void WriteElements(CInstructions& instructions, int depth, std::string& xml)
{
    constexpr int deepest = 12;
    for (std::size_t count = instructions.Take(4) + 1; count > 0 && !instructions.IsEmpty(); --count)
    {
        const std::string name = elementNames[instructions.Take(elementNames.size())];
        xml += "<" + name;
        std::array<bool, attributeNames.size()> used = {};
        for (std::size_t attributes = instructions.Take(4); attributes > 0; --attributes)
        {
            const std::size_t which = instructions.Take(attributeNames.size());
            const char* value = values[instructions.Take(values.size())];
            if (!used[which])
            {
                used[which] = true;
                xml.append(" ").append(attributeNames[which]).append("='").append(value).append("'");
            }
        }
        xml += ">";
        if (depth < deepest && instructions.Take(3) != 0)
        {
            WriteElements(instructions, depth + 1, xml);
        }
        xml += "</" + name + ">";
    }
}

class CPairs : public IElementListener
{
public:
    void OnElementStart(const char* name, const CNamedAttributes& /*attributes*/) override
    {
        open.emplace_back(name);
    }
    void OnElementEnd(const char* name) override
    {
        Fuzz::Require(!open.empty() && open.back() == name);
        open.pop_back();
    }

    std::vector<std::string> open;
};

class CRecordStart : public CSkinParser::CStartCommand
{
public:
    explicit CRecordStart(CSkinParser& parser_) : parser(&parser_) {}
    bool Execute(const CNamedAttributes& /*attributes*/) override
    {
        parser->StartRecording(parser);
        return true;
    }

private:
    CSkinParser* parser;
};

class CReplayEnd : public CSkinParser::CEndCommand
{
public:
    explicit CReplayEnd(CSkinParser& parser_) : parser(&parser_) {}
    bool Execute() override
    {
        void* context = nullptr;
        const std::unique_ptr<IParsedTemplate> body(parser->StopRecording(context));
        Fuzz::Require((body != nullptr) == (context == parser));
        CNamedAttributes parameters;
        parameters.Set("v", "item");
        return body == nullptr ||
               std::unique_ptr<IParsedTemplateInstance>(body->Instantiate(parameters, *parser)) == nullptr;
    }

private:
    CSkinParser* parser;
};

/// A handler that gives the parser an element of its own.
class CPairStart : public CSkinParser::CStartCommand
{
public:
    explicit CPairStart(CSkinParser& parser_) : parser(&parser_) {}
    bool Execute(const CNamedAttributes& attributes) override
    {
        CNamedAttributes copy = attributes;
        return parser->StartElement("T", copy) && parser->EndElement("T");
    }

private:
    CSkinParser* parser;
};

/// The folder of the skins, which goes with the process.
class CFolder
{
public:
    CFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "fuzz-skin-XXXXXX").string();
        path = mkdtemp(pattern.data());
        Write("part.xml", "<P><A x='$v$'/><T/><VARIABLE id='v' value='p' override='true'/></P>");
        Write("good.xml",
              "<S><TEMPLATE id='T'><A x='$index$'/></TEMPLATE><REPEAT count='2'><T/></REPEAT></S>");
    }
    CFolder(const CFolder&) = delete;
    CFolder& operator=(const CFolder&) = delete;
    ~CFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    void Write(const char* name, const std::string& content) const
    {
        std::ofstream(path / name, std::ios::binary) << content;
    }
    std::string GetPath(const char* name) const { return (path / name).string(); }

private:
    std::filesystem::path path;
};

} // namespace

// The name is libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const CFolder folder;
    if (size == 0)
    {
        return 0;
    }
    std::string xml;
    if (data[0] % 2 == 0)
    {
        xml.assign(data + 1, data + size);
    }
    else
    {
        CInstructions instructions(std::span(data, size).subspan(1));
        xml = "<S>";
        while (!instructions.IsEmpty())
        {
            WriteElements(instructions, 0, xml);
        }
        xml += "</S>";
    }
    folder.Write("skin.xml", xml);

    Mirel::CoreUtilities::CMemMessageLog log;
    CPairs pairs;
    CSkinParser parser(log);
    parser.SetElementListener(&pairs);
    parser.SetRootElement((data[0] & 2U) != 0 ? "S" : "");
    parser.RegisterStartHandler("LIST", new CRecordStart(parser));
    parser.RegisterEndHandler("LIST", new CReplayEnd(parser));
    parser.RegisterStartHandler("PAIR", new CPairStart(parser));
    parser.SetVariable("v", "1");
    parser.ParseFile(folder.GetPath("skin.xml").c_str());
    void* context = nullptr;
    const std::unique_ptr<IParsedTemplate> unfinished(parser.StopRecording(context));

    log.Clear();
    pairs.open.clear();
    parser.SetRootElement("S");
    Fuzz::Require(parser.ParseFile(folder.GetPath("good.xml").c_str()));
    Fuzz::Require(!log.HasMessages(0) && !log.HasMessages(1) && pairs.open.empty());
    return 0;
}
