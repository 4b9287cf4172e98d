#include "Mirel/Serialization/XmlText.h"

#include "Mirel/Serialization/CXmlDataObject.h"
#include "Values.h"

#include <gtest/gtest.h>

#include <string>

namespace Mirel::Serialization
{
namespace
{

class CLoaded : public CXmlDataObject
{
public:
    CLoaded(int mode_, const std::string& text) : CXmlDataObject("Root", mode_)
    {
        EXPECT_TRUE(LoadFromMemory(text.data(), text.size())) << text;
    }
};

TEST(XmlText, EveryTextSurvivesOrIsRefused)
{
    struct
    {
        const char* name;
        std::string text;
        bool elementKeeps;
        bool attributeKeeps;
    } const cases[] = {
        {"outer and double blanks", "  a  b  ", true, true},
        {"only blanks", "   ", true, true},
        {"line breaks", "a\nb\r\nc\rd", true, true},
        {"only line feeds and tabs", "\n\t\n", true, true},
        {"only a carriage return", "\r", false, true},
        {"blanks and a carriage return", " \r\n ", false, true},
        {"control bytes", "a\x01\x02\x1F\x7F z", true, true},
        {"only vertical blanks", "\v\f", true, true},
        {"markup", "<a k='v'>&amp;]]></a>", true, true},
        {"non-ASCII", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\xB5", true, true},
        {"byte order mark alone", "\xEF\xBB\xBF", true, true},
        {"byte order mark before text", "\xEF\xBB\xBF a", true, true},
        {"noncharacter alone", "\xEF\xBF\xBF", true, true},
        {"like a reference", "&#x41;", true, false},
        {"like two references", "x&#x41;&#x42", true, false},
        {"unended reference before markup", "&#x<b>", true, false},
        {"blank pieces around a reference", " &#x20; ", true, false},
        {"decimal reference", "&#65;", true, true},
        {"CDATA end among blanks", " ]]> ", true, true},
        {"broken UTF-8", "a\xE2\x82", false, false},
        {"stray byte", "\x80", false, false},
    };
    for (const auto& c : cases)
    {
        for (const int mode : {0, 1, 2})
        {
            CXmlDataObject object("Root", mode);
            object.Write("v", "old");
            const bool keeps = mode == 2 ? c.attributeKeeps : c.elementKeeps;
            EXPECT_EQ(object.Write("v", c.text.c_str()), keeps) << c.name << mode;
            EXPECT_EQ(object.Exists("v"), keeps) << c.name << mode;
            std::string text;
            ASSERT_TRUE(object.SaveToText(text)) << c.name << mode;
            const CLoaded loaded(mode, text);
            const std::optional<std::string> expected = keeps ? std::optional(c.text) : std::nullopt;
            EXPECT_EQ(ReadText(object, "v"), expected) << c.name << mode;
            EXPECT_EQ(ReadText(loaded, "v"), expected) << c.name << mode;
        }
    }
}

TEST(XmlText, JoinsTheTextsThatAnElementBeginsWith)
{
    const CLoaded object(0, "<r><v>a<![CDATA[<b>]]>c<w/>d</v></r>");
    EXPECT_EQ(ReadText(object, "v"), "a<b>c");
}

} // namespace
} // namespace Mirel::Serialization
