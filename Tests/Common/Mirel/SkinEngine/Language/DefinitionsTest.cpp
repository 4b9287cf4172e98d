#include "Mirel/Serialization/CMemDataObject.h"
#include "ParserRig.h"

#include <memory>

namespace
{

using namespace Tests;
using Mirel::SkinEngine::CDefineParser;

TEST(Definitions, GiveAnElementANameAndDefaults)
{
    EXPECT_EQ(Expand("<S><DEFINE><BIG base_type='BOX' a='2' b='3'/></DEFINE><BIG a='1'><A/></BIG></S>"),
              "<S><BOX a='1' b='3' base_type='BOX'><A></A></BOX></S>");
}

TEST(Definitions, NearerLinkOfAChainWins)
{
    EXPECT_EQ(
        Expand(
            "<S><DEFINE><FAR base_type='BOX' a='1' b='1' c='1'/><NEAR base_type='FAR' a='2' b='2'/></DEFINE>"
            "<NEAR a='3'/></S>"),
        "<S><BOX a='3' b='2' base_type='FAR' c='1'></BOX></S>");
}

TEST(Definitions, VariablesArePutInWhenTheyAreMadeAndWhenTheyAreUsed)
{
    EXPECT_EQ(
        Expand("<S><VARIABLE id='v' value='1'/><DEFINE><D base_type='BOX' a='$v$' b='$later$'/></DEFINE>"
               "<VARIABLE id='v' value='2' override='true'/><VARIABLE id='later' value='3'/><D/></S>"),
        "<S><BOX a='1' b='3' base_type='BOX'></BOX></S>");
}

TEST(Definitions, LeadToTemplatesToo)
{
    EXPECT_EQ(Expand("<S><TEMPLATE id='T'><A x='$n$'/><TEMPLATE_INNER_CONTENT/></TEMPLATE>"
                     "<DEFINE><D base_type='T' n='7'/></DEFINE><D><B/></D></S>"),
              "<S><A x='7'></A><B></B></S>");
}

TEST(Definitions, ThatLeadNowhereEndAsUnknownTags)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse("<S><DEFINE><D base_type='NOWHERE'/></DEFINE><D/></S>"));
    EXPECT_EQ(rig.GetAllMessages(),
              (Messages{"2 Skipping 'S': unknown tag", "2 Skipping 'NOWHERE': unknown tag"}));
}

TEST(Definitions, NeedABaseType)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse("<S><DEFINE><D a='1'/></DEFINE><D/></S>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"0 D: invalid definition, the mandatory 'base_type' attribute is not defined"});
    EXPECT_EQ(rig.trace.text, "<S><D></D></S>");
}

TEST(Definitions, CannotStandForThemselves)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse("<S><DEFINE><D base_type='D'/></DEFINE><D/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 D: base_type cannot be the same as the defined element name."});
    EXPECT_EQ(rig.trace.text, "<S><D></D></S>");
}

TEST(Definitions, SecondOneIsWrittenOverTheFirst)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse(
        "<S><DEFINE><D base_type='BOX' a='1' b='1'/><D base_type='ROW' b='2' c='2'/></DEFINE><D/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"1 D: this element has already been defined. "
                                          "The new definition overrides the previous one."});
    EXPECT_EQ(rig.trace.text, "<S><ROW a='1' b='2' base_type='ROW' c='2'></ROW></S>");
}

TEST(Definitions, ReservedElementsAreRefused)
{
    for (const std::string name :
         {"INCLUDE", "INCLUDE_ONCE", "UNDEFINE", "VARIABLE", "LOCAL_VARIABLE", "SCRIPT", "HANDLED"})
    {
        CParserRig rig;
        rig.OnStart("HANDLED", [](const CNamedAttributes&) { return true; });
        EXPECT_FALSE(rig.Parse("<S><DEFINE><" + name + " base_type='BOX'/></DEFINE></S>"));
        EXPECT_EQ(rig.GetMessages(),
                  Messages{"0 " + name +
                           ": you cannot redefine reserved elements. Please choose another name "
                           "for your definition"});
    }
}

TEST(Definitions, EndOfARefusedElementReachesItsHandler)
{
    // The end tag of the refused DEFINE ends the defining.
    CParserRig rig;
    EXPECT_FALSE(rig.Parse("<S><DEFINE><DEFINE base_type='A'/><D base_type='BOX'/></DEFINE><D/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><D base_type='BOX'></D><D></D></S>");
    // Those of recordings that never began are harmless.
    for (const char* name : {"REPEAT", "TEMPLATE"})
    {
        EXPECT_FALSE(rig.Parse("<S><DEFINE><" + std::string(name) + "/></DEFINE><A/></S>"));
        EXPECT_EQ(rig.trace.text, "<S><A></A></S>");
    }
}

TEST(Definitions, HandlersNeverSeeTheDefinedName)
{
    CParserRig rig;
    std::string seen;
    rig.OnStart("BOX",
                [&](const CNamedAttributes& attributes)
                {
                    seen = StartTag("BOX", attributes);
                    return true;
                });
    EXPECT_TRUE(rig.Parse("<S><DEFINE><D base_type='BOX'/></DEFINE><D/></S>"));
    EXPECT_EQ(seen, "<BOX base_type='BOX'>");
    EXPECT_STREQ(rig.parser.GetCurrentElementName(), "D");
}

TEST(Definitions, UndefineEndsThemAtItsPlace)
{
    EXPECT_EQ(
        Expand("<S><DEFINE><D base_type='BOX'/></DEFINE><D/><UNDEFINE><D/><UNHEARD/></UNDEFINE><D/></S>"),
        "<S><BOX base_type='BOX'></BOX><D></D></S>");
}

TEST(Definitions, InsideATemplatesHoleLeaveItsUseAlone)
{
    // The child of DEFINE has the name of the template whose use is open.
    EXPECT_EQ(Expand("<S><TEMPLATE id='T'><BOX><TEMPLATE_INNER_CONTENT/></BOX></TEMPLATE>"
                     "<T><DEFINE><T base_type='A'/></DEFINE><UNDEFINE><T/></UNDEFINE><B/></T><A/></S>"),
              "<S><BOX><B></B></BOX><A></A></S>");
}

TEST(Definitions, AreForgottenAfterAParse)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse("<S><DEFINE><D base_type='BOX'/></DEFINE><D/></S>"));
    EXPECT_TRUE(rig.Parse("<S><D/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><D></D></S>");
}

TEST(Definitions, BrokenOffInTheMiddleDoNotReachTheNextFile)
{
    CParserRig rig;
    for (const char* broken :
         {"<S><DEFINE><D", "<S><UNDEFINE>", "<S><TEMPLATE id='T'><A>", "<S><REPEAT count='2'><A>",
          "<S><TEMPLATE id='T'><A><TEMPLATE_INNER_CONTENT/></A></TEMPLATE><T>"})
    {
        EXPECT_FALSE(rig.Parse(broken));
        EXPECT_TRUE(rig.Parse("<S><A><B/></A></S>")) << broken;
        EXPECT_EQ(rig.trace.text, "<S><A><B></B></A></S>") << broken;
    }
}

TEST(CDefineParser, IsReadBackFromADataObject)
{
    CMemMessageLog log;
    CDefineParser definitions(log);
    definitions.Define("D", Attributes({{"base_type", "BOX"}, {"a", "1"}}));
    definitions.Define("E", Attributes({{"base_type", "D"}}));
    Mirel::Serialization::CMemDataObject saved;
    EXPECT_TRUE(definitions.Serialize(saved));
    int count = 0;
    EXPECT_TRUE(saved.Read("itemsCount", count));
    EXPECT_EQ(count, 2);
    EXPECT_TRUE(saved.Exists("item1"));

    CDefineParser read(log);
    read.Define("OLD", Attributes({{"base_type", "BOX"}}));
    EXPECT_TRUE(read.Deserialize(saved));
    CNamedAttributes use;
    EXPECT_STREQ(read.TranslateStart("D", use), "BOX");
    EXPECT_EQ(StartTag("D", use), "<D a='1' base_type='BOX'>");
    EXPECT_STREQ(read.TranslateEnd("E"), "D");
    EXPECT_EQ(read.TranslateEnd("OLD"), nullptr);
    EXPECT_EQ(read.TranslateStart("OLD", use), nullptr);
}

TEST(CDefineParser, ReadsNothingFromAnEmptyDataObject)
{
    CMemMessageLog log;
    CDefineParser definitions(log);
    EXPECT_FALSE(definitions.Deserialize(Mirel::Serialization::CMemDataObject()));
    Mirel::Serialization::CMemDataObject huge;
    huge.Write("itemsCount", 2000000000);
    EXPECT_FALSE(definitions.Deserialize(huge));
}

} // namespace
