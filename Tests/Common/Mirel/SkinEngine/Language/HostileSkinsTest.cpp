// What the skin language must stand.

#include "HostileRig.h"
#include "Mirel/SkinEngine/Limits.h"

#include <filesystem>
#include <string>

namespace
{

using namespace Tests;
using namespace Mirel::SkinEngine;

using HostileSkins = CHostileRig;

constexpr const char* tooMuch = "0 Parsing stopped, line 1: templates, repeats and variables make more than "
                                "167772160 bytes of elements (skin.xml)";

TEST_F(HostileSkins, DeepNestingThroughTemplatesIsStopped)
{
    std::string body;
    std::string ends;
    for (int i = 0; i < 200; ++i)
    {
        body += "<BOX>";
        ends += "</BOX>";
    }
    EXPECT_FALSE(Parse("<S><TEMPLATE id='T'>" + body + "<T/>" + ends + "</TEMPLATE><T/></S>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"0 Parsing stopped, line 1: elements are nested deeper than 1024 (skin.xml)"});
}

TEST_F(HostileSkins, DeepRecordingIsStopped)
{
    rig.OnStart("LIST",
                [&](const CNamedAttributes&)
                {
                    rig.parser.StartRecording(nullptr);
                    return true;
                });
    std::string body;
    std::string ends;
    for (int i = 0; i < 200; ++i)
    {
        body += "<BOX>";
        ends += "</BOX>";
    }
    EXPECT_FALSE(Parse("<S><TEMPLATE id='T'>" + body + "<T/>" + ends + "</TEMPLATE><LIST><T/></LIST></S>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"0 Parsing stopped, line 1: elements are nested deeper than 1024 (skin.xml)"});
}

TEST_F(HostileSkins, DefinitionsInACircleAreCutOff)
{
    EXPECT_FALSE(Parse("<S><DEFINE><A base_type='B'/><B base_type='A'/></DEFINE><A/><BOX/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 'A': definitions lead on through more than 256 names"});
    EXPECT_EQ(rig.trace.text, "<S><BOX></BOX></S>");
}

TEST_F(HostileSkins, DefinitionsInACircleAreCutOffEachTime)
{
    std::string uses;
    for (int i = 0; i < 100000; ++i)
    {
        uses += "<A/>";
    }
    EXPECT_FALSE(Parse("<S><DEFINE><A base_type='B'/><B base_type='A'/></DEFINE>" + uses + "</S>"));
    ExpectMessage("0 'A': definitions lead on through more than 256 names");
}

TEST_F(HostileSkins, TemplateThatUsesItselfTwiceIsStopped)
{
    EXPECT_FALSE(Parse("<S><TEMPLATE id='T'><T/><T/></TEMPLATE><T/></S>"));
    ExpectMessage(tooMuch);
}

TEST_F(HostileSkins, TemplatesThatUseEachOtherAreStopped)
{
    std::string templates;
    for (int i = 0; i < 100; ++i)
    {
        const std::string next = std::to_string((i + 1) % 100);
        templates += "<TEMPLATE id='T" + std::to_string(i) + "'><BOX/><T" + next + "/></TEMPLATE>";
    }
    EXPECT_FALSE(Parse("<S>" + templates + "<T0/></S>"));
    ExpectMessage("Parsing stopped, line 1: ");
}

TEST_F(HostileSkins, TemplateThatUsesItselfBehindItsHoleIsStopped)
{
    EXPECT_FALSE(Parse("<S><TEMPLATE id='T'><TEMPLATE_INNER_CONTENT/><T/></TEMPLATE><T/></S>"));
    ExpectMessage("Parsing stopped, line 1: templates and repeats are nested deeper than 4096");
}

TEST_F(HostileSkins, RecursionToTheLimitFitsTheStack)
{
    EXPECT_FALSE(
        Parse("<S><TEMPLATE id='T'><BOX><ROW><T a='$a$'/></ROW></BOX></TEMPLATE><T a='1'/><A/></S>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"1 Recursion detected: 'T has been recursively instantiated more than 256 times."});
    EXPECT_TRUE(rig.trace.text.ends_with("</ROW></BOX><A></A></S>"));
    // Nested templates take none of it.
    const std::size_t nested = stackBytes;
    EXPECT_TRUE(Parse("<S><TEMPLATE id='T'><BOX><ROW/></BOX></TEMPLATE><T a='1'/><A/></S>"));
    constexpr std::size_t messages = 4096;
    EXPECT_LE(nested, stackBytes + messages);
}

TEST_F(HostileSkins, VariableThatDoublesItselfIsCutOff)
{
    std::string doublings;
    for (int i = 0; i < 40; ++i)
    {
        doublings += "<VARIABLE id='v' value='$v$$v$' override='true'/>";
    }
    EXPECT_FALSE(Parse("<S><VARIABLE id='v' value='ha'/>" + doublings + "<A/></S>"));
    ExpectMessage("0 'VARIABLE': attributes become too long when variables are put in");
    EXPECT_TRUE(rig.trace.text.ends_with("<A></A></S>"));
}

TEST_F(HostileSkins, LongVariableInManyElementsIsStopped)
{
    const std::string half(500000, 'x');
    EXPECT_FALSE(
        Parse("<S><VARIABLE id='v' value='" + half + "'/><REPEAT count='1000000'><A x='$v$'/></REPEAT></S>"));
    ExpectMessage(tooMuch);
}

TEST_F(HostileSkins, LongParameterInManyAttributesIsCutOff)
{
    const std::string half(500000, 'x');
    std::string attributes;
    for (int i = 0; i < 1000; ++i)
    {
        attributes += " a" + std::to_string(i) + "='$p$'";
    }
    EXPECT_FALSE(Parse("<S><TEMPLATE id='T' p='" + half + "'><A" + attributes +
                       "/></TEMPLATE>"
                       "<REPEAT count='1000000'><T/></REPEAT></S>"));
    ExpectMessage("0 'A': attributes become too long when variables are put in");
    ExpectMessage("Parsing stopped");
}

TEST_F(HostileSkins, LongDefinitionInManyElementsIsStopped)
{
    const std::string half(500000, 'x');
    EXPECT_FALSE(Parse("<S><DEFINE><D base_type='A' x='" + half +
                       "'/></DEFINE>"
                       "<REPEAT count='1000000'><D/></REPEAT></S>"));
    ExpectMessage(tooMuch);
}

TEST_F(HostileSkins, FileThatIncludesItselfIsCutOff)
{
    rig.folder.Write("part.xml", "<P><INCLUDE file='part.xml'/></P>");
    EXPECT_FALSE(Parse("<S><INCLUDE file='part.xml'/><A/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 " + rig.folder.GetPath("part.xml") +
                                          ": files include each other more than 16 deep"});
    EXPECT_TRUE(rig.trace.text.ends_with("<A></A></S>"));
}

TEST_F(HostileSkins, FileThatIncludesItselfByAnotherPathIsCutOff)
{
    std::filesystem::create_directory(rig.folder.GetPath("sub"));
    EXPECT_FALSE(Parse("<S><INCLUDE_ONCE file='sub/../skin.xml'/><INCLUDE file='./skin.xml'/></S>"));
    ExpectMessage("skin.xml: files include each other more than 16 deep");
}

TEST_F(HostileSkins, FileThatIncludesItselfTwiceIsStopped)
{
    EXPECT_FALSE(Parse("<S><INCLUDE file='skin.xml'/><INCLUDE file='skin.xml'/></S>"));
    ExpectMessage("Parsing stopped, line 0: the files come to more than 16777216 bytes (skin.xml)");
}

TEST_F(HostileSkins, IncludesAtTheirDeepestInTemplatesFitTheStack)
{
    rig.folder.Write(
        "part.xml",
        "<P><TEMPLATE id='T$n$'><BOX><TEMPLATE_INNER_CONTENT/></BOX></TEMPLATE><REPEAT count='1'><REPEAT "
        "count='1'>"
        "<VARIABLE id='n' value='$n$i' override='true'/><INCLUDE file='part.xml'/></REPEAT></REPEAT>"
        "<VARIABLE id='f' override='true' formula='" +
            std::string(90, '(') + "1" + std::string(90, ')') + "'/></P>");
    EXPECT_FALSE(Parse("<S><VARIABLE id='n' value='i'/><INCLUDE file='part.xml'/></S>"));
    ExpectMessage("files include each other more than 16 deep");
}

TEST_F(HostileSkins, RepeatsOfBillionsAreStopped)
{
    EXPECT_FALSE(
        Parse("<S><REPEAT count='2000000000'><REPEAT count='2000000000'><A/></REPEAT></REPEAT></S>"));
    ExpectMessage(tooMuch);
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'/></S>"));
    ExpectMessage(tooMuch);
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'><REPEAT count='0'/></REPEAT></S>"));
    ExpectMessage(tooMuch);
    EXPECT_FALSE(Parse("<S><REPEAT index_list='" + std::string(1000000, ';') + "'/></S>"));
    ExpectMessage(tooMuch);
}

TEST_F(HostileSkins, RepeatedFormulasAreStopped)
{
    EXPECT_FALSE(Parse(
        "<S><REPEAT count='2000000000'><VARIABLE id='v' override='true' formula='1+2*3'/></REPEAT></S>"));
    ExpectMessage(tooMuch);
    const std::string sum(std::string(8000, '1') + "+1");
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'><VARIABLE id='v' override='true' formula='" + sum +
                       "'/></REPEAT></S>"));
    ExpectMessage(tooMuch);
}

TEST_F(HostileSkins, RepeatedIncludesOfNothingAreStopped)
{
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'><INCLUDE file='none$index$.xml'/></REPEAT></S>"));
    ExpectMessage("make more than 167772160 bytes of elements"); // in whichever file the last one falls
}

TEST_F(HostileSkins, RepeatedTemplatesThatAreKeptAreStopped)
{
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'><TEMPLATE id='T$index$'><A a='1' "
                       "b='2'/><B/></TEMPLATE></REPEAT></S>"));
    ExpectMessage(tooMuch);
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'><VARIABLE id='v$index$' value='1'/></REPEAT></S>"));
    ExpectMessage(tooMuch);
}

TEST_F(HostileSkins, EndlessMessagesAreCutOff)
{
    const std::string name(250, 'A');
    EXPECT_FALSE(Parse("<S><REPEAT count='2000000000'><" + name + "/></REPEAT></S>"));
    ExpectMessage("0 Too many messages: the others are not shown");
    std::size_t bytes = 0;
    for (const std::string& message : rig.GetAllMessages())
    {
        bytes += message.size();
    }
    EXPECT_LE(bytes, CLimits::maxMessageBytes + 1000);
}

TEST_F(HostileSkins, ParserIsWellAfterEachOfThem)
{
    EXPECT_FALSE(Parse("<S><TEMPLATE id='T'><BOX><T/><T/></BOX></TEMPLATE><T/></S>"));
    EXPECT_TRUE(Parse("<S><TEMPLATE id='T'><A/></TEMPLATE><T/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><A></A></S>");
    EXPECT_EQ(rig.GetMessages(), Messages());
}

} // namespace
