#include "ParserRig.h"
#include "Support/CommaLocale.h"

namespace
{

using namespace Tests;

TEST(Variables, NameBetweenDollarsBecomesTheValue)
{
    EXPECT_EQ(Expand("<S><VARIABLE id='w' value='120'/><BOX width='$w$' note='a$w$b$w$'/></S>"),
              "<S><BOX note='a120b120' width='120'></BOX></S>");
}

TEST(Variables, UnknownNamesAndSingleDollarsStay)
{
    EXPECT_EQ(
        Expand("<S><VARIABLE id='w' value='1'/><BOX a='$' b='5$' c='$x$' d='$x$w$' e='$w$w$' f='$$'/></S>"),
        "<S><BOX a='$' b='5$' c='$x$' d='$x1' e='11' f='$$'></BOX></S>");
}

TEST(Variables, DollarThatClosedAKnownNameOpensTheNextOne)
{
    EXPECT_EQ(Expand("<S><VARIABLE id='a' value='1'/><VARIABLE id='b' value='2'/><BOX x='-$a$b$-'/></S>"),
              "<S><BOX x='-12-'></BOX></S>");
}

TEST(Variables, ValuesAreNotScannedAgain)
{
    EXPECT_EQ(Expand("<S><VARIABLE id='b' value='$a$'/><VARIABLE id='a' value='1'/><BOX x='$b$'/></S>"),
              "<S><BOX x='$a$'></BOX></S>");
}

TEST(Variables, EmptyNameIsAName)
{
    CParserRig rig;
    rig.parser.SetVariable("", "e");
    EXPECT_TRUE(rig.Parse("<S><BOX x='$$'/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><BOX x='e'></BOX></S>");
}

TEST(Variables, WithoutFormulaAndValueIsEmpty)
{
    EXPECT_EQ(Expand("<S><VARIABLE id='w'/><BOX x='[$w$]'/></S>"), "<S><BOX x='[]'></BOX></S>");
}

TEST(Variables, FormulaGivesTheTextOfItsValue)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"2+3*4", "14"},  {"1/4", "0.25"},
        {"-5/2", "-2.5"}, {"1/3", "0.33333334327"}, // the float nearest to a third, in 11 digits
        {"0*(-1)", "0"},  {"10000000000", "10000000000"},
        {"1/0", "inf"},   {"pi", "3.141592741"},
    };
    for (const auto& [formula, text] : cases)
    {
        EXPECT_EQ(Expand("<S><VARIABLE id='v' formula='" + formula + "'/><BOX x='$v$'/></S>"),
                  "<S><BOX x='" + text + "'></BOX></S>")
            << formula;
    }
}

TEST(Variables, FormulaTakesTheValuesOfOthers)
{
    EXPECT_EQ(Expand("<S><VARIABLE id='a' value='3'/><VARIABLE id='b' formula='$a$*2'/><BOX x='$b$'/></S>"),
              "<S><BOX x='6'></BOX></S>");
}

TEST(Variables, FormulaWinsOverValue)
{
    EXPECT_EQ(Expand("<S><VARIABLE id='a' formula='1+1' value='9'/><BOX x='$a$'/></S>"),
              "<S><BOX x='2'></BOX></S>");
}

TEST(Variables, NumbersHaveAPointInEveryLocale)
{
    const Tests::CCommaLocale locale;
    EXPECT_EQ(Expand("<S><VARIABLE id='v' formula='5/2'/><BOX x='$v$'/></S>"), "<S><BOX x='2.5'></BOX></S>");
}

TEST(Variables, MissingOrEmptyIdFails)
{
    for (const char* element : {"<VARIABLE value='1'/>", "<VARIABLE id='' value='1'/>", "<LOCAL_VARIABLE/>"})
    {
        CParserRig rig;
        EXPECT_FALSE(rig.Parse(std::string("<S>") + element + "</S>"));
        EXPECT_EQ(rig.GetMessages(), Messages{"0 mandatory id for VARIABLE attribute empty or missing"});
    }
}

TEST(Variables, OverwritingWarnsUnlessAsked)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse("<S><VARIABLE id='v' value='1'/><VARIABLE id='v' value='2'/><BOX x='$v$'/>"
                          "<VARIABLE id='v' value='3' override='true'/><BOX x='$v$'/></S>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"1 v variable already in use. New definition will overwrite previous one."});
    EXPECT_EQ(rig.trace.text, "<S><BOX x='2'></BOX><BOX x='3'></BOX></S>");
}

TEST(Variables, OverrideMustBeTrueInLetters)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse("<S><VARIABLE id='v'/><VARIABLE id='v' override='1'/></S>"));
    EXPECT_EQ(rig.GetMessages(),
              Messages{"1 v variable already in use. New definition will overwrite previous one."});
}

TEST(Variables, InvalidFormulaFails)
{
    CParserRig rig;
    EXPECT_FALSE(rig.Parse("<S><VARIABLE id='v' formula='2+'/><BOX x='$v$'/></S>"));
    EXPECT_EQ(rig.GetMessages(), Messages{"0 v:'2+' is an invalid formula."});
    EXPECT_EQ(rig.trace.text, "<S><BOX x='$v$'></BOX></S>");
}

TEST(Variables, ClientsVariablesHoldForOneParse)
{
    CParserRig rig;
    rig.parser.SetVariable("v", "1");
    EXPECT_TRUE(rig.Parse("<S x='$v$'/>"));
    EXPECT_EQ(rig.trace.text, "<S x='1'></S>");
    EXPECT_TRUE(rig.Parse("<S x='$v$'/>"));
    EXPECT_EQ(rig.trace.text, "<S x='$v$'></S>");
}

TEST(LocalVariables, LiveToTheEndOfTheEnclosingElement)
{
    EXPECT_EQ(
        Expand("<S><BOX><LOCAL_VARIABLE id='v' value='1'/><A x='$v$'><B x='$v$'/></A></BOX><A x='$v$'/></S>"),
        "<S><BOX><A x='1'><B x='1'></B></A></BOX><A x='$v$'></A></S>");
}

TEST(LocalVariables, UnderTheRootLiveToTheEnd)
{
    EXPECT_EQ(Expand("<S><LOCAL_VARIABLE id='v' value='1'/><BOX/><A x='$v$'/></S>"),
              "<S><BOX></BOX><A x='1'></A></S>");
}

TEST(LocalVariables, OverwritingAnExistingVariableLasts)
{
    CParserRig rig;
    EXPECT_TRUE(rig.Parse("<S><VARIABLE id='v' value='1'/>"
                          "<BOX><LOCAL_VARIABLE id='v' value='2' override='true'/></BOX><A x='$v$'/></S>"));
    EXPECT_EQ(rig.trace.text, "<S><BOX></BOX><A x='2'></A></S>");
    EXPECT_EQ(rig.GetMessages(), Messages());
}

TEST(LocalVariables, MayBeSetAgainInTheNextElement)
{
    EXPECT_EQ(Expand("<S><BOX><LOCAL_VARIABLE id='v' value='1'/><A x='$v$'/></BOX>"
                     "<BOX><LOCAL_VARIABLE id='v' value='2'/><A x='$v$'/></BOX></S>"),
              "<S><BOX><A x='1'></A></BOX><BOX><A x='2'></A></BOX></S>");
}

TEST(LocalVariables, OfATemplateEndWithItsUse)
{
    EXPECT_EQ(Expand("<S><TEMPLATE id='T'><LOCAL_VARIABLE id='v' formula='$n$+1'/><A x='$v$'/></TEMPLATE>"
                     "<T n='1'/><T n='2'/><A x='$v$'/></S>"),
              "<S><A x='2'></A><A x='3'></A><A x='$v$'></A></S>");
}

TEST(LocalVariables, OfARepeatEndWithEachPass)
{
    EXPECT_EQ(Expand("<S><REPEAT count='2'><LOCAL_VARIABLE id='v' formula='$index$*10'/><A x='$v$'/></REPEAT>"
                     "<A x='$v$'/></S>"),
              "<S><A x='0'></A><A x='10'></A><A x='$v$'></A></S>");
}

TEST(LocalVariables, OfATemplateEndAtItsHole)
{
    EXPECT_EQ(
        Expand(
            "<S><TEMPLATE id='T'><BOX><LOCAL_VARIABLE id='v' value='1'/><A x='$v$'/><TEMPLATE_INNER_CONTENT/>"
            "</BOX></TEMPLATE><T><A x='$v$'/></T></S>"),
        "<S><BOX><A x='1'></A><A x='$v$'></A></BOX></S>");
}

TEST(LocalVariables, OfAHoleEndWithTheElementAroundIt)
{
    EXPECT_EQ(
        Expand("<S><TEMPLATE id='T'><BOX><TEMPLATE_INNER_CONTENT/><A x='$v$'/></BOX><A x='$v$'/></TEMPLATE>"
               "<T><LOCAL_VARIABLE id='v' value='1'/></T></S>"),
        "<S><BOX><A x='1'></A></BOX><A x='$v$'></A></S>");
}

} // namespace
