// The small parts of the reader that stand alone.

#include "Mirel/SkinEngine/Language/CBoundedLog.h"
#include "Mirel/SkinEngine/Language/CXMLNamedAttributes.h"
#include "Mirel/SkinEngine/Language/MessagePresentation.h"
#include "Mirel/SkinEngine/Language/Utf16.h"
#include "Mirel/SkinEngine/Language/VariableSubstitution.h"
#include "Mirel/SkinEngine/Language/XmlPrescan.h"
#include "Mirel/SkinEngine/Limits.h"
#include "ParserRig.h"

#include <cstddef>

namespace
{

using namespace Tests;
using namespace Mirel::SkinEngine;

TEST(Utf16, BecomesUtf8)
{
    EXPECT_EQ(ToUtf8(nullptr), "");
    EXPECT_EQ(ToUtf8(u""), "");
    EXPECT_EQ(ToUtf8(u"plain"), "plain");
    EXPECT_EQ(ToUtf8(u"\u007F\u0080\u07FF\u0800\uFFFD"), "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBD");
    EXPECT_EQ(ToUtf8(u"a\U00010000\U0010FFFFz"), "a\xF0\x90\x80\x80\xF4\x8F\xBF\xBFz");
}

TEST(Utf16, HalfAPairBecomesTheReplacement)
{
    const std::u16string high = {0xD800, u'a'};
    const std::u16string low = {0xDC00};
    const std::u16string last = {u'a', 0xDBFF};
    EXPECT_EQ(ToUtf8(high.c_str()), "\xEF\xBF\xBD"
                                    "a");
    EXPECT_EQ(ToUtf8(low.c_str()), "\xEF\xBF\xBD");
    EXPECT_EQ(ToUtf8(last.c_str()), "a\xEF\xBF\xBD");
}

TEST(CXMLNamedAttributes, StoresWideTextsNarrow)
{
    CXMLNamedAttributes attributes;
    attributes.Add(u"\u00E9", u"\u20AC");
    attributes.Add(u"x", u"1");
    attributes.Add(u"x", nullptr);
    EXPECT_EQ(Sorted(attributes), (TextMap{{"\xC3\xA9", "\xE2\x82\xAC"}, {"x", ""}}));
}

TEST(VariableSubstitution, LeavesTooLongTextsAlone)
{
    const std::string half(CLimits::maxAttributeBytes / 2, 'x');
    const CNamedAttributes variables = Attributes({{"v", half}, {"w", "1"}});
    std::string text = "$v$$v$";
    EXPECT_TRUE(SubstituteVariables(variables, text));
    EXPECT_EQ(text.size(), CLimits::maxAttributeBytes);
    text = "$v$$v$$w$";
    EXPECT_FALSE(SubstituteVariables(variables, text));
    EXPECT_EQ(text, "$v$$v$$w$");
    text = "$v$$v$!";
    EXPECT_FALSE(SubstituteVariables(variables, text));
}

TEST(VariableSubstitution, BoundsTheElementAsAWhole)
{
    const CNamedAttributes variables = Attributes({{"v", std::string(CLimits::maxAttributeBytes, 'x')}});
    CNamedAttributes attributes;
    const std::size_t fitting = CLimits::maxElementBytes / CLimits::maxAttributeBytes;
    for (std::size_t i = 0; i <= fitting; ++i)
    {
        attributes.Assign(std::to_string(i), "$v$");
    }
    EXPECT_FALSE(SubstituteVariables(variables, attributes));
    std::size_t replaced = 0;
    attributes.Visit([&](const std::string&, const std::string& value)
                     { replaced += value == "$v$" ? 0U : 1U; });
    EXPECT_EQ(replaced, fitting);
}

TEST(XmlPrescan, LetsEverythingElsePass)
{
    for (const char* text : {"",
                             "   ",
                             "<S/>",
                             "<S a='1' b=\"2\" c = '>'><!-- <A --><![CDATA[<B]]><?p <C?></S>",
                             "<S",
                             "<S a",
                             "<S a=",
                             "<S a='",
                             "<S a=1>",
                             "<S></S></S></S>",
                             "<!DOCTYPE S [ <!ENTITY e ']>'> <!-- ] --> <?p ]?> ]><S/>",
                             "<!DOCTYPE S",
                             "<!-- ",
                             "<![CDATA[",
                             "<?",
                             "</",
                             "<",
                             "<!",
                             "<S /",
                             "<S a='<'/>",
                             "<?xml version='1.0'?><S/>",
                             "<?xml encoding='Windows-1252'?><S/>",
                             "\xEF\xBB\xBF<S/>"})
    {
        EXPECT_EQ(PrescanXml(text).reason, "") << text;
    }
}

/// The text in 16-bit units.
std::string Widen(const std::string& text, bool bigEndian)
{
    std::string wide = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : text)
    {
        wide += bigEndian ? std::string{'\0', c} : std::string{c, '\0'};
    }
    return wide;
}

TEST(XmlPrescan, ReadsWideTexts)
{
    std::string deep;
    for (std::size_t i = 0; i <= CLimits::maxFileDepth; ++i)
    {
        deep += "<A>\n";
    }
    EXPECT_EQ(PrescanXml(deep).reason, "elements nested deeper than 256");
    EXPECT_EQ(PrescanXml(deep).line, CLimits::maxFileDepth + 1);
    for (const bool bigEndian : {false, true})
    {
        const std::string wide = Widen(deep, bigEndian);
        EXPECT_EQ(PrescanXml(wide).reason, "elements nested deeper than 256");
        EXPECT_EQ(PrescanXml(wide.substr(2)).reason, "elements nested deeper than 256");
        EXPECT_EQ(PrescanXml(Widen("<S a='1'/>", bigEndian)).reason, "");
    }
}

TEST(XmlPrescan, RefusesOtherWideTexts)
{
    using namespace std::string_literals;
    for (const std::string& text :
         {"\0\0\0<"s, "<\0\0\0"s, "\0\0\xFE\xFF"s, "\xFF\xFE\0\0"s, "\x4C\x6F\xA7\x94"s, "+ADw-S/+AD4-"s})
    {
        EXPECT_NE(PrescanXml(text).reason, "") << ::testing::PrintToString(text);
    }
}

TEST(XmlPrescan, CountsDepthAsTheLibraryDoes)
{
    std::string deepest;
    std::string ends;
    for (std::size_t i = 0; i + 1 < CLimits::maxFileDepth; ++i)
    {
        deepest += "<A>";
        ends += "</A>";
    }
    EXPECT_EQ(PrescanXml(deepest + "<A/><A></A><A/>" + ends).reason, "");
    EXPECT_NE(PrescanXml(deepest + "<A><A/></A>" + ends).reason, "");
}

TEST(CBoundedLog, SaysOnceThatItDropsMessages)
{
    CMemMessageLog target;
    CBoundedLog log(target);
    const std::string text(CLimits::maxMessageBytes / 4, 'x');
    for (int i = 0; i < 6; ++i)
    {
        log.Post(1, text.c_str(), 0);
    }
    ASSERT_EQ(target.GetMessages().size(), 4U);
    EXPECT_EQ(target.GetMessages()[3].kind, 0);
    EXPECT_EQ(target.GetMessages()[3].text, "Too many messages: the others are not shown");
    log.PostLast(0, "end");
    EXPECT_EQ(target.GetMessages().back().text, "end");
    log.Reset();
    log.Post(1, "new", 0);
    EXPECT_EQ(target.GetMessages().back().text, "new");
}

/// A log with the given messages.
CMemMessageLog LogOf(const std::vector<std::pair<int, const char*>>& messages)
{
    CMemMessageLog log;
    for (const auto& [kind, text] : messages)
    {
        log.Post(kind, text, 0);
    }
    return log;
}

TEST(MessagePresentation, ErrorsAreAlwaysShown)
{
    CMemMessageLog log = LogOf({{2, "i"}, {0, "e"}, {1, "w"}, {0, "f"}});
    const std::string begin = "There were errors while parsing the skin:";
    EXPECT_EQ(PresentMessages(log, false, false).title, "Skin Parsing Error");
    EXPECT_EQ(PresentMessages(log, false, false).text, begin + "\n- error: e\n- error: f");
    EXPECT_EQ(PresentMessages(log, false, true).text, begin + "\n- error: e\n- warning: w\n- error: f");
    EXPECT_EQ(PresentMessages(log, true, false).text, begin + "\n- info: i\n- error: e\n- error: f");
    EXPECT_EQ(PresentMessages(log, true, true).text,
              begin + "\n- info: i\n- error: e\n- warning: w\n- error: f");
    EXPECT_EQ(log.GetMessages().size(), 4U);
}

TEST(MessagePresentation, WarningsAreShownIfAsked)
{
    CMemMessageLog log = LogOf({{2, "i"}, {1, "w"}});
    const std::string begin = "There were warnings while parsing the skin:";
    EXPECT_EQ(PresentMessages(log, false, true).title, "Skin Parsing Warning");
    EXPECT_EQ(PresentMessages(log, false, true).text, begin + "\n- warning: w");
    EXPECT_EQ(PresentMessages(log, true, true).text, begin + "\n- info: i\n- warning: w");
}

TEST(MessagePresentation, SuccessIsPostedAndShownWithTheInfos)
{
    CMemMessageLog log = LogOf({{2, "i"}, {1, "w"}});
    const CMessagePresentation shown = PresentMessages(log, true, false);
    EXPECT_EQ(shown.title, "Skin Parsing Info");
    EXPECT_EQ(shown.text,
              "Information logged during skin parsing:\n- info: i\n- info: Skin parsing successful");
    CMemMessageLog empty;
    EXPECT_EQ(PresentMessages(empty, false, true).text, "");
    ASSERT_EQ(empty.GetMessages().size(), 1U);
    EXPECT_EQ(empty.GetMessages()[0].kind, 2);
    EXPECT_EQ(empty.GetMessages()[0].text, "Skin parsing successful");
}

} // namespace
