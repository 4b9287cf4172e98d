#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/SkinEngine/Limits.h"
#include "ParserRig.h"

#include <memory>

namespace
{

using namespace Tests;
using namespace Mirel::SkinEngine;

TEST(Templates, AreReplayedAtEachUseWithItsParameters)
{
    EXPECT_EQ(
        Expand("<S><TEMPLATE id='T' w='10' h='20'><BOX size='$w$x$h$'><A/></BOX></TEMPLATE>"
               "<T/><T w='1'/><T w='2' h='3'/></S>"),
        "<S><BOX size='10x20'><A></A></BOX><BOX size='1x20'><A></A></BOX><BOX size='2x3'><A></A></BOX></S>");
}

TEST(Templates, WithoutElementsExpandToNothing)
{
    EXPECT_EQ(Expand("<S><TEMPLATE id='T'/><T/><T><A/></T><B/></S>"), "<S><A></A><B></B></S>");
}

TEST(Templates, HoleTakesTheContentOfTheUse)
{
    EXPECT_EQ(
        Expand("<S><TEMPLATE id='T'><X/><BOX><ROW><TEMPLATE_INNER_CONTENT/><Y/></ROW></BOX><Z/></TEMPLATE>"
               "<T><A/><B><C/></B></T></S>"),
        "<S><X></X><BOX><ROW><A></A><B><C></C></B><Y></Y></ROW></BOX><Z></Z></S>");
}

TEST(Templates, WithoutAHoleRunBeforeTheContentOfTheUse)
{
    EXPECT_EQ(Expand("<S><TEMPLATE id='T'><BOX/></TEMPLATE><T><A/></T></S>"), "<S><BOX></BOX><A></A></S>");
}

TEST(Templates, ElementsInsideTheHoleAreNotEmitted)
{
    EXPECT_EQ(
        Expand("<S><TEMPLATE id='T'><TEMPLATE_INNER_CONTENT><LOST/></TEMPLATE_INNER_CONTENT><X/></TEMPLATE>"
               "<T><A/></T></S>"),
        "<S><A></A><X></X></S>");
}

TEST(Templates, HoleMayLieInTheUseOfAnother)
{
    EXPECT_EQ(
        Expand("<S><TEMPLATE id='IN'><ROW><TEMPLATE_INNER_CONTENT/><Y/></ROW></TEMPLATE>"
               "<TEMPLATE id='OUT'><BOX><IN><X/><TEMPLATE_INNER_CONTENT/></IN></BOX></TEMPLATE>"
               "<OUT><A/><OUT><B/></OUT></OUT></S>"),
        "<S><BOX><ROW><X></X><A></A><BOX><ROW><X></X><B></B><Y></Y></ROW></BOX><Y></Y></ROW></BOX></S>");
}

TEST(Templates, SecondHoleIsAnElementWithAWarning)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse("<S><TEMPLATE id='T'><TEMPLATE_INNER_CONTENT/><TEMPLATE_INNER_CONTENT/></TEMPLATE>"
                          "<T><A/></T></S>"));
    EXPECT_EQ(rig.GetAllMessages(),
              (Messages{"2 Skipping 'S': unknown tag",
                        "1 TEMPLATE_INNER_CONTENT: cannot be used multiple times within a TEMPLATE",
                        "2 Skipping 'A': unknown tag", "2 Skipping 'TEMPLATE_INNER_CONTENT': unknown tag"}));
}

TEST(Templates, HoleElementOutsideOfATemplateIsUnknown)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse("<S><TEMPLATE_INNER_CONTENT/></S>"));
    EXPECT_EQ(rig.GetAllMessages().back(), "2 Skipping 'TEMPLATE_INNER_CONTENT': unknown tag");
}

TEST(Templates, ParametersComeBeforeGlobalVariables)
{
    EXPECT_EQ(Expand("<S><VARIABLE id='n' value='global'/><VARIABLE id='g' value='G'/>"
                     "<TEMPLATE id='T' n='default'><A x='$n$ $g$ $none$'/></TEMPLATE><T n='use'/></S>"),
              "<S><A x='use G $none$'></A></S>");
}

TEST(Templates, ParameterMayHoldTheNameOfAVariable)
{
    // The value of the parameter is scanned for globals, since the element is, once it is emitted.
    EXPECT_EQ(
        Expand("<S><TEMPLATE id='T'><A x='$$n$$'/></TEMPLATE><VARIABLE id='w' value='1'/><T n='w'/></S>"),
        "<S><A x='1'></A></S>");
}

TEST(Templates, DefaultsAndUsesTakeGlobalVariablesWhereTheyStand)
{
    EXPECT_EQ(Expand("<S><VARIABLE id='v' value='1'/><TEMPLATE id='T$v$' a='$v$'><A a='$a$' b='$b$' "
                     "v='$v$'/></TEMPLATE>"
                     "<VARIABLE id='v' value='2' override='true'/><T1 b='$v$'/></S>"),
              "<S><A a='1' b='2' v='2'></A></S>");
}

TEST(Templates, BodyIsResolvedAtItsUse)
{
    EXPECT_EQ(Expand("<S><TEMPLATE id='T'><D/></TEMPLATE><T/><DEFINE><D base_type='BOX'/></DEFINE><T/></S>"),
              "<S><D></D><BOX base_type='BOX'></BOX></S>");
}

TEST(Templates, HideAHandlersElement)
{
    CParserRig rig;
    int calls = 0;
    rig.OnStart("BOX",
                [&](const CNamedAttributes&)
                {
                    ++calls;
                    return true;
                });
    EXPECT_TRUE(rig.Parse("<S><TEMPLATE id='BOX'><A/></TEMPLATE><BOX/></S>"));
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(rig.trace.text, "<S><A></A></S>");
}

TEST(Templates, NeedAnId)
{
    CParserRig rig;
    EXPECT_FALSE(rig.Parse("<S><TEMPLATE><A/><TEMPLATE id='N'/></TEMPLATE><B/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 id attribute missing in template definition."});
    EXPECT_EQ(rig.trace.text, "<S><B></B></S>");
}

TEST(Templates, FirstOfAnIdStays)
{
    CParserRig rig;
    EXPECT_FALSE(rig.Parse("<S><TEMPLATE id='T'><A/></TEMPLATE><TEMPLATE id='T'><B/></TEMPLATE><T/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 'T': template already defined."});
    EXPECT_EQ(rig.trace.text, "<S><A></A></S>");
}

TEST(Templates, InsideATemplateAreDefinedAtItsUse)
{
    CParserRig rig;
    const std::string outer =
        "<S><TEMPLATE id='OUT'><TEMPLATE id='$inner$'><BOX><TEMPLATE_INNER_CONTENT/></BOX></TEMPLATE>"
        "<ROW><TEMPLATE_INNER_CONTENT/></ROW></TEMPLATE>";
    EXPECT_TRUE(
        rig.Parse(outer + "<IN1/><OUT inner='IN1'><A/></OUT><IN1><B/></IN1><OUT inner='IN2'/><IN2/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><IN1></IN1><ROW><A></A></ROW><BOX><B></B></BOX><ROW></ROW><BOX></BOX></S>");
    EXPECT_EQ(rig.GetMessages(), Messages());
    EXPECT_FALSE(rig.Parse(outer + "<OUT inner='IN'/><OUT inner='IN'/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 'IN': template already defined."});
}

TEST(Templates, InsideARepeatAreDefinedOncePerPass)
{
    EXPECT_EQ(Expand("<S><REPEAT count='2'><TEMPLATE id='T$index$'><A "
                     "i='$index$'/></TEMPLATE></REPEAT><T1/><T0/></S>"),
              "<S><A i='1'></A><A i='0'></A></S>");
}

TEST(Templates, StopAt256InstancesOfThemselves)
{
    CParserRig rig;
    int opened = 0;
    rig.OnStart("BOX",
                [&](const CNamedAttributes&)
                {
                    ++opened;
                    return true;
                });
    EXPECT_FALSE(rig.Parse("<S><TEMPLATE id='T'><BOX/><T/></TEMPLATE><T/><A/></S>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"1 Recursion detected: 'T has been recursively instantiated more than 256 times."});
    EXPECT_EQ(opened, 256);
    EXPECT_TRUE(rig.trace.text.ends_with("<BOX></BOX><A></A></S>"));
}

TEST(Templates, WarnOfRecursionForEachAttempt)
{
    CParserRig rig;
    EXPECT_FALSE(rig.Parse("<S><TEMPLATE id='T'><T/></TEMPLATE><T/><T/><T/></S>"));
    EXPECT_EQ(rig.GetMessages().size(), 3U);
    EXPECT_FALSE(rig.Parse("<S><TEMPLATE id='T'><BOX><T><A/></T></BOX></TEMPLATE><T/><B/></S>"));
    EXPECT_EQ(rig.GetMessages().size(), 1U);
    EXPECT_TRUE(rig.trace.text.ends_with("</BOX><B></B></S>"));
}

TEST(Templates, SuspendedUsesAreNotInProgress)
{
    // 300 uses inside the holes of one another: none of them is running any more.
    std::string xml = "<S><TEMPLATE id='T'><TEMPLATE_INNER_CONTENT/><A/></TEMPLATE>";
    std::string ends;
    std::string expected;
    for (int i = 0; i < 250; ++i)
    {
        xml += "<T>";
        ends += "</T>";
        expected += "<A></A>";
    }
    EXPECT_EQ(Expand(xml + ends + "</S>"), "<S>" + expected + "</S>");
}

TEST(Templates, AreForgottenAfterAParse)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse("<S><TEMPLATE id='T'><A/></TEMPLATE></S>"));
    EXPECT_TRUE(rig.Parse("<S><T/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><T></T></S>");
}

TEST(Repeat, ReplaysItsBodyWithTheIndex)
{
    EXPECT_EQ(Expand("<S><REPEAT count='3'><A i='$index$'><B/></A></REPEAT></S>"),
              "<S><A i='0'><B></B></A><A i='1'><B></B></A><A i='2'><B></B></A></S>");
    EXPECT_EQ(Expand("<S><REPEAT count='2' start='-1' index_name='n'><A i='$n$$index$'/></REPEAT></S>"),
              "<S><A i='-1$index$'></A><A i='0$index$'></A></S>");
}

TEST(Repeat, OfNoCountOrLessEmitsNothing)
{
    for (const char* count : {"count='0'", "count='-3'", "", "count=''"})
    {
        EXPECT_EQ(Expand(std::string("<S><REPEAT ") + count + "><A/></REPEAT><B/></S>"), "<S><B></B></S>");
    }
}

TEST(Repeat, CountMayBeAFormula)
{
    EXPECT_EQ(Expand("<S><REPEAT count='2+3'><A/></REPEAT></S>"),
              "<S><A></A><A></A><A></A><A></A><A></A></S>");
    EXPECT_EQ(Expand("<S><REPEAT count='2.9' start='0-1.9'><A i='$index$'/></REPEAT></S>"),
              "<S><A i='-1'></A><A i='0'></A></S>");
    EXPECT_EQ(Expand("<S><VARIABLE id='n' value='1'/><REPEAT count='$n$+1'><A/></REPEAT></S>"),
              "<S><A></A><A></A></S>");
}

TEST(Repeat, InvalidCountNamesItsLine)
{
    CParserRig rig;
    EXPECT_FALSE(rig.Parse("<S>\n\n<REPEAT count='xyz'><A/></REPEAT><B/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Line 3:'xyz' is an invalid formula."});
    EXPECT_EQ(rig.trace.text, "<S><B></B></S>");
}

TEST(Repeat, InvalidStartCountsFromZero)
{
    CParserRig rig;
    EXPECT_FALSE(rig.Parse("<S><REPEAT count='2' start='12abc'><A i='$index$'/></REPEAT></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 Line 1:'12abc' is an invalid formula."});
    EXPECT_EQ(rig.trace.text, "<S><A i='0'></A><A i='1'></A></S>");
}

TEST(Repeat, RunsThroughAList)
{
    EXPECT_EQ(Expand("<S><REPEAT index_list='a;;b;'><A i='$index$'/></REPEAT></S>"),
              "<S><A i='a'></A><A i=''></A><A i='b'></A><A i=''></A></S>");
    EXPECT_EQ(Expand("<S><REPEAT index_list='one'><A i='$index$'/></REPEAT></S>"), "<S><A i='one'></A></S>");
}

TEST(Repeat, ListWinsOverCount)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse("<S><REPEAT index_list='a' count='5'><A i='$index$'/></REPEAT></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"1 REPEAT: index_list attribute overrides count attribute"});
    EXPECT_EQ(rig.trace.text, "<S><A i='a'></A></S>");
    // An empty list is there, but has nothing to win with.
    EXPECT_TRUE(rig.Parse("<S><REPEAT index_list='' count='1'><A i='$index$'/></REPEAT></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"1 REPEAT: index_list attribute overrides count attribute"});
    EXPECT_EQ(rig.trace.text, "<S><A i='0'></A></S>");
}

TEST(Repeat, InsideAnotherSeesBothIndices)
{
    EXPECT_EQ(Expand("<S><REPEAT count='2' index_name='i'><ROW><REPEAT index_list='a;b' index_name='j'>"
                     "<A x='$i$$j$'/></REPEAT></ROW></REPEAT><B/></S>"),
              "<S><ROW><A x='0a'></A><A x='0b'></A></ROW><ROW><A x='1a'></A><A x='1b'></A></ROW><B></B></S>");
}

TEST(Repeat, InnerCountMayDependOnTheOuterIndex)
{
    EXPECT_EQ(Expand("<S><REPEAT count='3' index_name='i'><REPEAT count='$i$'><A "
                     "x='$i$$index$'/></REPEAT></REPEAT></S>"),
              "<S><A x='10'></A><A x='20'></A><A x='21'></A></S>");
}

TEST(Repeat, InsideATemplateTakesItsParameters)
{
    EXPECT_EQ(
        Expand("<S><TEMPLATE id='T' n='1'><REPEAT count='$n$'><A/></REPEAT></TEMPLATE><T/><T n='2'/></S>"),
        "<S><A></A><A></A><A></A></S>");
}

TEST(Repeat, UsesTemplatesWithHoles)
{
    EXPECT_EQ(Expand("<S><TEMPLATE id='T'><BOX><TEMPLATE_INNER_CONTENT/></BOX></TEMPLATE>"
                     "<REPEAT count='2'><T><A i='$index$'/></T></REPEAT></S>"),
              "<S><BOX><A i='0'></A></BOX><BOX><A i='1'></A></BOX></S>");
}

TEST(Repeat, GreatestIndexDoesNotWrap)
{
    EXPECT_EQ(Expand("<S><REPEAT count='2' start='2147483647'><A i='$index$'/></REPEAT></S>"),
              "<S><A i='2147483647'></A><A i='2147483648'></A></S>");
}

/// Writes down what a template emits.
class CTextHandler : public IParserElementHandler
{
public:
    bool StartElement(const char* name, CNamedAttributes& attributes) override
    {
        text += StartTag(name, attributes);
        return true;
    }
    bool EndElement(const char* name) override
    {
        text.append("</").append(name).append(">");
        return true;
    }
    void RefuseText(const char* name) override { refused.emplace_back(name); }

    std::string text;
    std::vector<std::string> refused;
};

/// <A x='$p$'><HOLE/></A><B/> with the parameter p.
void Record(CTemplateParser& recorder)
{
    recorder.StartTemplate(Attributes({{"id", "T"}, {"p", "1"}}));
    recorder.StartElement("A", Attributes({{"x", "$p$"}}));
    recorder.StartElement("HOLE", {});
    recorder.EndElement("HOLE");
    recorder.EndElement("A");
    recorder.StartElement("B", {});
    recorder.EndElement("B");
    recorder.EndTemplate();
}

TEST(CTemplateParser, DetachedTemplateOutlivesItsParser)
{
    CMemMessageLog log;
    std::unique_ptr<IParsedTemplate> detached;
    {
        CTemplateParser recorder(log, "TEMPLATE", "HOLE");
        Record(recorder);
        detached.reset(recorder.GetTemplatesMap().Detach("T"));
        EXPECT_EQ(recorder.GetTemplatesMap().Find("T"), nullptr);
        EXPECT_EQ(recorder.GetTemplatesMap().Detach("T"), nullptr);
    }
    CTextHandler handler;
    const std::unique_ptr<IParsedTemplateInstance> instance(
        detached->Instantiate(Attributes({{"p", "2"}}), handler));
    EXPECT_EQ(handler.text, "<A x='2'>");
    EXPECT_EQ(detached->GetInstanceCount(), 0);
    ASSERT_NE(instance, nullptr);
    EXPECT_TRUE(instance->Continue());
    EXPECT_EQ(handler.text, "<A x='2'></A><B></B>");
    EXPECT_TRUE(instance->Continue());
    EXPECT_EQ(handler.text, "<A x='2'></A><B></B>");
}

TEST(CTemplateParser, TemplateWithoutAHoleRunsToItsEnd)
{
    CMemMessageLog log;
    CTemplateParser recorder(log, "", "");
    Record(recorder);
    CTextHandler handler;
    EXPECT_EQ(recorder.GetTemplatesMap().Find("T")->Instantiate({}, handler), nullptr);
    EXPECT_EQ(handler.text, "<A x='1'><HOLE></HOLE></A><B></B>");
}

TEST(CTemplateParser, CountsRunningInstances)
{
    CMemMessageLog log;
    CTemplateParser recorder(log, "", "");
    Record(recorder);
    IParsedTemplate& recorded = *recorder.GetTemplatesMap().Find("T");
    class CCounter : public CTextHandler
    {
    public:
        explicit CCounter(const IParsedTemplate& watched_) : watched(&watched_) {}
        bool EndElement(const char*) override
        {
            counts.push_back(watched->GetInstanceCount());
            return true;
        }
        std::vector<int> counts;

    private:
        const IParsedTemplate* watched;
    };
    CCounter counter(recorded);
    EXPECT_EQ(recorded.Instantiate({}, counter), nullptr);
    EXPECT_EQ(counter.counts, (std::vector<int>{1, 1, 1}));
    EXPECT_EQ(recorded.GetInstanceCount(), 0);
}

TEST(CTemplateParser, ParameterThatMakesAnElementTooLongIsLeftOut)
{
    CMemMessageLog log;
    CTemplateParser recorder(log, "", "");
    recorder.StartTemplate(Attributes({{"id", "T"}}));
    recorder.StartElement("A", Attributes({{"x", "$p$$p$"}}));
    recorder.EndTemplate();
    CTextHandler handler;
    const std::string half(CLimits::maxAttributeBytes / 2 + 1, 'p');
    EXPECT_EQ(recorder.GetTemplatesMap().Find("T")->Instantiate(Attributes({{"p", half}}), handler), nullptr);
    EXPECT_EQ(handler.refused, std::vector<std::string>{"A"});
    EXPECT_EQ(handler.text, "<A x='$p$$p$'></A>");
}

TEST(CTemplateNode, IsReadBackFromADataObject)
{
    CMemMessageLog log;
    CTemplateParser recorder(log, "TEMPLATE", "HOLE");
    Record(recorder);
    Mirel::Serialization::CMemDataObject saved;
    EXPECT_TRUE(recorder.GetTemplatesMap().Find("T")->Serialize(saved));
    CTemplateRootNode read;
    EXPECT_TRUE(read.Deserialize(saved));
    EXPECT_EQ(read.GetName(), "T");
    CTextHandler handler;
    const std::unique_ptr<IParsedTemplateInstance> instance(read.Instantiate({}, handler));
    ASSERT_NE(instance, nullptr);
    instance->Continue();
    EXPECT_EQ(handler.text, "<A x='1'></A><B></B>");
    EXPECT_FALSE(read.Deserialize(Mirel::Serialization::CMemDataObject()));
}

TEST(CTemplateNode, NestedTooDeepIsNotSaved)
{
    CMemMessageLog log;
    CTemplateParser recorder(log, "", "");
    recorder.StartTemplate(Attributes({{"id", "T"}}));
    for (int i = 0; i < CLimits::maxSavedDepth - 1; ++i)
    {
        recorder.StartElement("A", {});
    }
    Mirel::Serialization::CMemDataObject saved;
    EXPECT_TRUE(recorder.GetTemplatesMap().Find("T")->Serialize(saved));
    recorder.StartElement("A", {});
    EXPECT_FALSE(recorder.GetTemplatesMap().Find("T")->Serialize(saved));
}

} // namespace
