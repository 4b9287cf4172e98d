// A skin of 1 MB, beside the XML library alone on the same file with handlers that do nothing: the file is
// read and looked through before the library sees it, and every element goes through the language. And a
// template that is used 10,000 times, beside the same elements written out.

#include "Mirel/CoreUtilities/CMemMessageLog.h"
#include "Mirel/SkinEngine/Language/CSkinParser.h"
#include "Mirel/SkinEngine/Language/CXercesSession.h"
#include "Support/CTemporaryFolder.h"
#include "Support/Contest.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>

namespace
{

using namespace Mirel::SkinEngine;
using Mirel::Containers::CNamedAttributes;

class CCountingStart : public CSkinParser::CStartCommand
{
public:
    explicit CCountingStart(int& count_) : count(&count_) {}
    bool Execute(const CNamedAttributes& attributes) override
    {
        *count += attributes.GetCount() > 0 ? 1 : 0;
        return true;
    }

private:
    int* count;
};

/// The pattern with the number in the place of each "@".
std::string Numbered(std::string pattern, int number)
{
    const std::string text = std::to_string(number);
    for (std::size_t at = pattern.find('@'); at != std::string::npos; at = pattern.find('@', at))
    {
        pattern.replace(at, 1, text);
    }
    return pattern;
}

/// Rows of knobs with their captions, as skins have them.
std::string MakeSkin(std::size_t bytes, int& elements)
{
    std::string skin = "<SKIN>\n<VARIABLE id='size' value='48'/>\n";
    elements = 2;
    for (int i = 0; skin.size() < bytes; ++i)
    {
        skin += Numbered("  <ROW id='row@' h_align='center'>\n"
                         "    <KNOB id='knob@' param_id='dsp.input@' width='$size$' height='$size$' "
                         "image='images/knob.png'/>\n"
                         "    <TEXT string_id='dsp.input@.text' text_color='#A0B0C0' font_size='11'/>\n"
                         "  </ROW>\n",
                         i);
        elements += 3;
    }
    return skin + "</SKIN>\n";
}

void ParseSkin(const std::string& path)
{
    Mirel::CoreUtilities::CMemMessageLog log;
    CSkinParser parser(log);
    int count = 0;
    for (const char* name : {"SKIN", "ROW", "KNOB", "TEXT", "BOX"})
    {
        parser.RegisterStartHandler(name, new CCountingStart(count));
    }
    benchmark::DoNotOptimize(parser.ParseFile(path.c_str()));
    benchmark::DoNotOptimize(count);
}

void ParseBare(const std::string& path)
{
    xercesc::DefaultHandler nothing;
    const std::unique_ptr<xercesc::SAX2XMLReader> reader(xercesc::XMLReaderFactory::createXMLReader());
    reader->setContentHandler(&nothing);
    reader->parse(path.c_str());
}

void OneMegabyte(benchmark::State& state)
{
    const CXercesSession session;
    const Tests::CTemporaryFolder folder;
    int elements = 0;
    folder.Write("skin.xml", MakeSkin(std::size_t{1} << 20U, elements));
    const std::string path = folder.GetPath("skin.xml");
    Benchmarks::CContest contest(state, elements);
    contest.Add("ours", [&] { ParseSkin(path); });
    contest.Add("bare", [&] { ParseBare(path); });
    contest.Run();
    state.counters["elements"] = elements;
}
BENCHMARK(OneMegabyte)->UseManualTime()->Unit(benchmark::kMillisecond);

void TemplateUses(benchmark::State& state)
{
    constexpr int uses = 10000;
    const CXercesSession session;
    const Tests::CTemporaryFolder folder;
    std::string written = "<SKIN>";
    std::string templated =
        "<SKIN><TEMPLATE id='K' size='48'><ROW id='row$n$'><KNOB id='knob$n$' width='$size$'/>"
        "<TEMPLATE_INNER_CONTENT/></ROW></TEMPLATE>";
    for (int i = 0; i < uses; ++i)
    {
        written += Numbered("<ROW id='row@'><KNOB id='knob@' width='48'/><TEXT/></ROW>", i);
        templated += Numbered("<K n='@'><TEXT/></K>", i);
    }
    folder.Write("written.xml", written + "</SKIN>");
    folder.Write("templated.xml", templated + "</SKIN>");
    folder.Write("repeated.xml",
                 "<SKIN><REPEAT count='10000'><ROW id='row$index$'><KNOB id='knob$index$' width='48'/>"
                 "<TEXT/></ROW></REPEAT></SKIN>");
    Benchmarks::CContest contest(state, uses);
    contest.Add("template", [&] { ParseSkin(folder.GetPath("templated.xml")); });
    contest.Add("written out", [&] { ParseSkin(folder.GetPath("written.xml")); });
    contest.Add("repeat", [&] { ParseSkin(folder.GetPath("repeated.xml")); });
    contest.Run();
}
BENCHMARK(TemplateUses)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
