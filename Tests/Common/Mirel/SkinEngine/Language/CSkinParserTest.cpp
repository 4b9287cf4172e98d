#include "Mirel/SkinEngine/Language/CSkinParser.h"

#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/SkinEngine/Language/CXercesSession.h"
#include "Mirel/SkinEngine/Language/CXmlFileReader.h"
#include "Mirel/SkinEngine/Language/IScriptEngine.h"
#include "Mirel/SkinEngine/Limits.h"
#include "ParserRig.h"
#include "Support/CommaLocale.h"

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>

#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>

namespace
{

using namespace Tests;
using namespace Mirel::SkinEngine;

TEST(CSkinParser, CallsHandlersInDocumentOrder)
{
    CParserRig rig;
    std::string calls;
    for (const char* name : {"S", "A", "B"})
    {
        rig.OnStart(name,
                    [&calls, name](const CNamedAttributes& attributes)
                    {
                        calls += StartTag(name, attributes);
                        return true;
                    });
        rig.OnEnd(name,
                  [&calls, name]
                  {
                      calls.append("</").append(name).append(">");
                      return true;
                  });
    }
    EXPECT_TRUE(rig.Parse("<S a='1'>text<!-- note --><A/><?go on?><B x='2' y='3'><![CDATA[<A/>]]></B></S>"));
    EXPECT_EQ(calls, "<S a='1'><A></A><B x='2' y='3'></B></S>");
    EXPECT_EQ(rig.GetAllMessages(), Messages());
}

TEST(CSkinParser, FailedHandlerFailsTheParseButNotTheWalk)
{
    CParserRig rig;
    int calls = 0;
    rig.OnStart("A", [](const CNamedAttributes&) { return false; });
    rig.OnStart("B",
                [&](const CNamedAttributes&)
                {
                    ++calls;
                    return true;
                });
    EXPECT_FALSE(rig.Parse("<S><A><B/></A><B/></S>"));
    EXPECT_EQ(calls, 2);
    EXPECT_TRUE(rig.Parse("<S/>"));
    rig.OnEnd("B", [] { return false; });
    EXPECT_FALSE(rig.Parse("<S><B/></S>"));
}

TEST(CSkinParser, UnknownTagIsSkippedWithoutItsChildren)
{
    CParserRig rig;
    int calls = 0;
    rig.OnStart("B",
                [&](const CNamedAttributes&)
                {
                    ++calls;
                    return true;
                });
    EXPECT_TRUE(rig.Parse("<A><B/></A>"));
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(rig.GetAllMessages(), Messages{"2 Skipping 'A': unknown tag"});
}

TEST(CSkinParser, ResetHandlersKeepsTheLanguageAlone)
{
    CParserRig rig;
    int calls = 0;
    rig.OnStart("B",
                [&](const CNamedAttributes&)
                {
                    ++calls;
                    return true;
                });
    rig.OnStart("VARIABLE",
                [&](const CNamedAttributes&)
                {
                    ++calls;
                    return true;
                });
    rig.parser.ResetHandlers();
    EXPECT_TRUE(rig.Parse("<S><VARIABLE id='v' value='1'/><B x='$v$'/></S>"));
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(rig.trace.text, "<S><B x='1'></B></S>");
}

TEST(CSkinParser, OwnsItsCommands)
{
    const auto alive = std::make_shared<int>(0);
    {
        CParserRig rig;
        rig.OnStart("B", [alive](const CNamedAttributes&) { return true; });
        rig.OnEnd("B", [alive] { return true; });
        EXPECT_EQ(alive.use_count(), 3);
        rig.OnStart("B", [alive](const CNamedAttributes&) { return true; });
        EXPECT_EQ(alive.use_count(), 3);
    }
    EXPECT_EQ(alive.use_count(), 1);
}

TEST(RootElement, MustOpenTheMainFile)
{
    CParserRig rig;
    rig.parser.SetRootElement("SKIN");
    EXPECT_TRUE(rig.Parse("<SKIN><A/></SKIN>"));
    EXPECT_FALSE(rig.Parse("<MODEL><A/></MODEL>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Invalid file: root element must be 'SKIN'"});
    EXPECT_EQ(rig.trace.text, "<A></A>");
    rig.parser.SetRootElement("");
    EXPECT_TRUE(rig.Parse("<MODEL><A/></MODEL>"));
}

TEST(RootElement, MayNotComeAgain)
{
    CParserRig rig;
    rig.parser.SetRootElement("SKIN");
    EXPECT_FALSE(rig.Parse("<SKIN><SKIN/><A/></SKIN>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Invalid file: 'SKIN' is reserved for root element"});
    EXPECT_EQ(rig.trace.text, "<SKIN><A></A></SKIN>");
}

TEST(RootElement, RefusedOneStillEnds)
{
    CParserRig rig;
    int ends = 0;
    rig.parser.SetRootElement("SKIN");
    rig.OnEnd("SKIN",
              [&]
              {
                  ++ends;
                  return true;
              });
    EXPECT_FALSE(rig.Parse("<SKIN><SKIN/></SKIN>"));
    EXPECT_EQ(ends, 2);
}

TEST(RootElement, OfAnIncludedFileMustBeAnother)
{
    CParserRig rig;
    rig.parser.SetRootElement("SKIN");
    rig.folder.Write("same.xml", "<SKIN><A/></SKIN>");
    rig.folder.Write("other.xml", "<PART><B/></PART>");
    EXPECT_FALSE(rig.Parse("<SKIN><INCLUDE file='same.xml'/></SKIN>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Invalid file: 'SKIN' is reserved for root element"});
    EXPECT_EQ(rig.trace.text, "<SKIN><A></A></SKIN>");
    EXPECT_TRUE(rig.Parse("<SKIN><INCLUDE file='other.xml'/></SKIN>"));
    EXPECT_EQ(rig.GetAllMessages(),
              (Messages{"2 Skipping 'SKIN': unknown tag", "2 Skipping 'PART': unknown tag",
                        "2 Skipping 'B': unknown tag"}));
}

TEST(Script, NeedsASource)
{
    CParserRig rig;
    EXPECT_FALSE(rig.Parse("<S><SCRIPT/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 SCRIPT: missing mandatory src attribute."});
}

TEST(Script, WithoutAnEngineWarns)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse("<S><SCRIPT src='a.js'/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"1 SCRIPT: current engine does not supports scripts."});
}

class CScriptedParser : public CSkinParser, public IScriptEngine
{
public:
    using CSkinParser::CSkinParser;
    IScriptEngine* GetScriptEngine() override { return this; }
    bool Run(const char* filePath, Mirel::CoreUtilities::IMessageLog& /*log*/) override
    {
        path = filePath;
        return result;
    }
    std::string path;
    bool result = true;
};

TEST(Script, RunsInTheEngine)
{
    const CTemporaryFolder folder;
    CMemMessageLog log;
    CScriptedParser parser(log);
    folder.Write("skin.xml", "<S><SCRIPT src='a.js'/></S>");
    EXPECT_TRUE(parser.ParseFile(folder.GetPath("skin.xml").c_str()));
    EXPECT_EQ(parser.path, folder.GetPath("a.js"));
    parser.result = false;
    EXPECT_FALSE(parser.ParseFile(folder.GetPath("skin.xml").c_str()));
}

TEST(XmlFaults, AreReportedWithLineAndFile)
{
    CParserRig rig;
    EXPECT_FALSE(rig.Parse("<S>\n<A>\n</S>"));
    ASSERT_EQ(rig.GetMessages().size(), 1U);
    EXPECT_EQ(rig.GetMessages()[0], "0 Fatal error line 3: expected end of tag 'A' (skin.xml)");
}

TEST(XmlFaults, InAnIncludedFileLetTheOuterOneGoOn)
{
    CParserRig rig;
    rig.folder.Write("broken.xml", "<PART><A/>&none;</PART>");
    EXPECT_FALSE(rig.Parse("<S><INCLUDE file='broken.xml'/><B/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Fatal error line 1: entity 'none' not found (broken.xml)"});
    EXPECT_EQ(rig.trace.text, "<S><PART><A></A></PART><B></B></S>");
}

TEST(XmlFaults, EmptyFileIsOne)
{
    CParserRig rig;
    EXPECT_FALSE(rig.Parse(""));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Fatal error line 1: invalid document structure (skin.xml)"});
}

TEST(XmlFaults, HaveAPrefixForEachKind)
{
    // The library calls error for validated documents alone.
    const CXercesSession session;
    CMemMessageLog log;
    CSkinParser parser(log);
    CXmlFileReader reader(parser);
    const xercesc::SAXParseException exception(u"text", u"", u"", 7, 1);
    reader.warning(exception);
    reader.error(exception);
    reader.fatalError(exception);
    ASSERT_EQ(log.GetMessages().size(), 3U);
    EXPECT_EQ(log.GetMessages()[0].kind, 1);
    EXPECT_EQ(log.GetMessages()[0].text, "7: text ()");
    EXPECT_EQ(log.GetMessages()[1].kind, 0);
    EXPECT_EQ(log.GetMessages()[1].text, "line 7: text ()");
    EXPECT_EQ(log.GetMessages()[2].kind, 0);
    EXPECT_EQ(log.GetMessages()[2].text, "Fatal error line 7: text ()");
}

TEST(XmlFaults, WarningOfTheLibraryKeepsTheSuccess)
{
    CParserRig rig;
    EXPECT_TRUE(
        rig.Parse("<!DOCTYPE S [\n<!ATTLIST S a CDATA #IMPLIED>\n<!ATTLIST S a CDATA #IMPLIED>\n]><S/>"));
    ASSERT_EQ(rig.GetMessages().size(), 1U);
    EXPECT_TRUE(rig.GetMessages()[0].starts_with("1 3: ")) << rig.GetMessages()[0];
    EXPECT_TRUE(rig.GetMessages()[0].ends_with(" (skin.xml)")) << rig.GetMessages()[0];
}

class CFailingLibraryParser : public CSkinParser
{
public:
    using CSkinParser::CSkinParser;
    std::unique_ptr<CXercesSession> OpenLibrary() override { throw std::runtime_error("no library"); }
};

TEST(CSkinParser, LibraryThatDoesNotStartFailsTheParse)
{
    const CTemporaryFolder folder;
    folder.Write("skin.xml", "<S/>");
    CMemMessageLog log;
    CFailingLibraryParser parser(log);
    EXPECT_FALSE(parser.ParseFile(folder.GetPath("skin.xml").c_str()));
    ASSERT_EQ(log.GetMessages().size(), 1U);
    EXPECT_EQ(log.GetMessages()[0].kind, 0);
    EXPECT_EQ(log.GetMessages()[0].text, "Unknown internal error");
}

TEST(CSkinParser, ExceptionsEndTheFile)
{
    CParserRig rig;
    rig.OnStart("A", [](const CNamedAttributes&) -> bool { throw std::runtime_error("handler"); });
    rig.OnStart("M", [](const CNamedAttributes&) -> bool { throw xercesc::OutOfMemoryException(); });
    EXPECT_FALSE(rig.Parse("<S><A/><B/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Internal error"});
    EXPECT_EQ(rig.trace.text, "<S><A></A></S>");
    EXPECT_FALSE(rig.Parse("<S><M/><B/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Out of memory"});
    EXPECT_FALSE(rig.Parse("<S><TEMPLATE id='T'><REPEAT count='2'><A/></REPEAT></TEMPLATE><T/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Internal error"});
    EXPECT_TRUE(rig.Parse("<S><B/></S>"));
}

TEST(CSkinParser, ExceptionInAnIncludedFileLetsTheOuterOneGoOn)
{
    CParserRig rig;
    rig.OnStart("A", [](const CNamedAttributes&) -> bool { throw std::runtime_error("handler"); });
    rig.folder.Write("part.xml", "<P><REPEAT count='3'><A/></REPEAT></P>");
    EXPECT_FALSE(rig.Parse("<S><INCLUDE file='part.xml'/><B/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Internal error"});
    EXPECT_TRUE(rig.trace.text.ends_with("<B></B></S>"));
}

TEST(CSkinParser, ReadsNumbersWithAPointInEveryLocale)
{
    const CCommaLocale locale;
    CParserRig rig;
    std::string printed;
    rig.OnStart("A",
                [&](const CNamedAttributes&)
                {
                    std::array<char, 16> text = {};
                    EXPECT_EQ(std::snprintf(text.data(), text.size(), "%.1f", 1.5), 3);
                    printed = text.data();
                    return true;
                });
    EXPECT_TRUE(rig.Parse("<S><A/></S>"));
    EXPECT_EQ(printed, "1.5");
    std::array<char, 16> text = {};
    EXPECT_EQ(std::snprintf(text.data(), text.size(), "%.1f", 1.5), 3);
    EXPECT_STREQ(text.data(), "1,5");
}

TEST(CSkinParser, TellsFileAndLineAtTheTimeOfAMessage)
{
    CParserRig rig;
    Messages places;
    rig.OnStart("A",
                [&](const CNamedAttributes&)
                {
                    places.push_back(rig.parser.GetCurrentFile() + ":" +
                                     std::to_string(rig.parser.GetCurrentLine()));
                    return true;
                });
    rig.folder.Write("part.xml", "<P>\n\n<A\n/></P>");
    EXPECT_TRUE(rig.Parse("<S>\n<A/><INCLUDE file='part.xml'/>\n<A/></S>"));
    EXPECT_EQ(places, (Messages{"skin.xml:2", "part.xml:4", "skin.xml:3"}));
    EXPECT_EQ(rig.parser.GetCurrentFile(), "");
    EXPECT_EQ(rig.parser.GetCurrentLine(), 0);
}

TEST(CSkinParser, ListenerSeesWhatHandlersReceive)
{
    EXPECT_EQ(
        Expand("<S><VARIABLE id='v' value='1'/><LOCAL_VARIABLE id='l'/><DEFINE><D base_type='A'/></DEFINE>"
               "<UNDEFINE><X/></UNDEFINE><TEMPLATE id='T'><D x='$v$'/></TEMPLATE>"
               "<REPEAT count='2'><T/></REPEAT></S>"),
        "<S><A base_type='A' x='1'></A><A base_type='A' x='1'></A></S>");
}

TEST(CSkinParser, NonAsciiTextIsUtf8)
{
    EXPECT_EQ(Expand("<?xml version='1.0' encoding='ISO-8859-1'?><S x='\xE9'/>"), "<S x='\xC3\xA9'></S>");
    EXPECT_EQ(Expand("<S x='\xE2\x82\xAC&#x1D11E;'/>"), "<S x='\xE2\x82\xAC\xF0\x9D\x84\x9E'></S>");
}

TEST(CSkinParser, HandlersMayCallBack)
{
    CParserRig rig;
    rig.OnStart("PAIR",
                [&](const CNamedAttributes&)
                {
                    CNamedAttributes attributes = Attributes({{"x", "$v$"}});
                    return rig.parser.StartElement("T", attributes) && rig.parser.EndElement("T");
                });
    EXPECT_TRUE(
        rig.Parse("<S><VARIABLE id='v' value='1'/><TEMPLATE id='T'><A x='$x$'/></TEMPLATE><PAIR/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><PAIR><A x='1'></A></PAIR></S>");
}

TEST(CSkinParser, HandlersThatCallBackForeverAreStopped)
{
    CParserRig rig;
    int calls = 0;
    rig.OnStart("A",
                [&](const CNamedAttributes&)
                {
                    ++calls;
                    CNamedAttributes attributes;
                    return rig.parser.StartElement("A", attributes);
                });
    EXPECT_FALSE(rig.Parse("<S><A/></S>"));
    EXPECT_EQ(calls, CLimits::maxHandlerDepth);
    EXPECT_EQ(rig.GetMessages(),
              Messages{"0 Parsing stopped, line 1: handlers call back more than 64 deep (skin.xml)"});
    EXPECT_TRUE(rig.Parse("<S/>"));
}

TEST(CSkinParser, ParseWithinAParseIsRefused)
{
    CParserRig rig;
    rig.OnStart("A", [&](const CNamedAttributes&)
                { return rig.parser.ParseFile(rig.folder.GetPath("skin.xml").c_str()); });
    EXPECT_FALSE(rig.Parse("<S><A/><B/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 A file cannot be parsed from within the parse of another"});
    EXPECT_EQ(rig.trace.text, "<S><A></A><B></B></S>");
}

TEST(CSkinParser, WorksWithoutAFile)
{
    CParserRig rig;
    CNamedAttributes attributes;
    EXPECT_TRUE(rig.parser.StartElement("S", attributes));
    CNamedAttributes variable = Attributes({{"id", "v"}, {"value", "1"}});
    EXPECT_TRUE(rig.parser.StartElement("VARIABLE", variable));
    EXPECT_TRUE(rig.parser.EndElement("VARIABLE"));
    CNamedAttributes element = Attributes({{"x", "$v$"}});
    EXPECT_TRUE(rig.parser.StartElement("A", element));
    EXPECT_TRUE(rig.parser.EndElement("A"));
    EXPECT_EQ(rig.trace.text, "<S><A x='1'></A>");
}

TEST(PublicState, PutsASecondParserInTheSamePlace)
{
    CParserRig rig;
    Mirel::Serialization::CMemDataObject saved;
    rig.OnStart("A", [&](const CNamedAttributes&) { return rig.parser.GetPublicState().Serialize(saved); });
    EXPECT_TRUE(rig.Parse("<S><A/></S>"));
    EXPECT_EQ(rig.parser.GetPublicState().GetRootFilePath(), "");

    CMemMessageLog log;
    CSkinParser second(log);
    EXPECT_TRUE(second.GetPublicState().Deserialize(saved));
    EXPECT_EQ(second.GetPublicState().GetRootFilePath(), rig.folder.GetPath(""));
    EXPECT_EQ(second.GetPublicState().GetCurrentFile(), rig.folder.GetPath("skin.xml"));
    EXPECT_EQ(second.GetCurrentFile(), "skin.xml");
    const std::unique_ptr<char[]> path(second.GetFileAttribute(Attributes({{"image", "a.png"}}), {"image"}));
    EXPECT_EQ(std::string(path.get()), rig.folder.GetPath("a.png"));
    // An include works there too, although no parse is running.
    rig.folder.Write("part.xml", "<P/>");
    CNamedAttributes include = Attributes({{"file", "part.xml"}});
    EXPECT_TRUE(second.StartElement("INCLUDE", include));
    EXPECT_EQ(log.GetMessages().back().text, "Skipping 'P': unknown tag");
    EXPECT_FALSE(second.GetPublicState().Deserialize(Mirel::Serialization::CMemDataObject()));
    EXPECT_EQ(second.GetCurrentFile(), "skin.xml");
}

} // namespace
