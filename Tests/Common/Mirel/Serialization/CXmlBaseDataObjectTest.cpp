#include "Mirel/Serialization/CXmlBaseDataObject.h"

#include "Mirel/Serialization/CXmlDataObject.h"
#include "Mirel/Serialization/IndexedKey.h"
#include "Values.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

namespace Mirel::Serialization
{
namespace
{

constexpr const char* header = "<?xml version=\"1.0\" encoding=\"utf-8\" ?>";

std::string Saved(const CXmlDataObject& object)
{
    std::string text;
    EXPECT_TRUE(object.SaveToText(text));
    EXPECT_TRUE(std::string_view(text).starts_with(header));
    return text.substr(std::string_view(header).size());
}

class CLoaded : public CXmlDataObject
{
public:
    CLoaded(int mode_, const std::string& text) : CXmlDataObject("Root", mode_)
    {
        EXPECT_TRUE(LoadFromMemory(text.data(), text.size())) << text;
    }
};

void WriteOfEachKind(IWriteDataStream& stream)
{
    EXPECT_TRUE(stream.Write("b", true));
    EXPECT_TRUE(stream.Write("i", -7));
    EXPECT_TRUE(stream.Write("f", 0.1F));
    EXPECT_TRUE(stream.Write("d", 0.1));
    EXPECT_TRUE(stream.Write("s", "a<b & c"));
    EXPECT_TRUE(stream.Write("x", "ABC", 3));
    EXPECT_TRUE(WriteObject(stream, "o", [](IWriteDataStream& nested) { return nested.Write("n", 5); }));
}

TEST(CXmlBaseDataObject, Mode0StoresElementsNamedByTheKey)
{
    CXmlDataObject object("Root", 0);
    WriteOfEachKind(object);
    EXPECT_EQ(Saved(object), "<Root><b>1</b><i>-7</i><f>0.10000000149</f><d>0.10000000000000000555</d>"
                             "<s>a&lt;b &amp; c</s><x>QUJD</x><o><n>5</n></o></Root>");
}

TEST(CXmlBaseDataObject, Mode1StoresElementsNamedByTheKind)
{
    CXmlDataObject object("Root", 1);
    WriteOfEachKind(object);
    EXPECT_EQ(
        Saved(object),
        "<Root><BOOL name=\"b\">1</BOOL><INTEGER name=\"i\">-7</INTEGER><FLOAT "
        "name=\"f\">0.10000000149</FLOAT>"
        "<DOUBLE name=\"d\">0.10000000000000000555</DOUBLE><STRING name=\"s\">a&lt;b &amp; c</STRING>"
        "<DATA name=\"x\">QUJD</DATA><OBJECT name=\"o\"><INTEGER name=\"n\">5</INTEGER></OBJECT></Root>");
}

TEST(CXmlBaseDataObject, Mode2StoresAttributesAndNestedElements)
{
    CXmlDataObject object("Root", 2);
    WriteOfEachKind(object);
    EXPECT_EQ(Saved(object), "<Root b=\"1\" i=\"-7\" f=\"0.10000000149\" d=\"0.10000000000000000555\""
                             " s=\"a&lt;b &amp; c\" x=\"QUJD\"><o n=\"5\" /></Root>");
}

TEST(CXmlBaseDataObject, ReadsEachKindBackInEveryMode)
{
    for (const int mode : {0, 1, 2})
    {
        CXmlDataObject object("Root", mode);
        WriteOfEachKind(object);
        std::string text;
        ASSERT_TRUE(object.SaveToText(text));
        const CLoaded loaded(mode, text);
        EXPECT_EQ(ReadAs<bool>(loaded, "b"), true);
        EXPECT_EQ(ReadAs<int>(loaded, "i"), -7);
        EXPECT_EQ(ReadAs<float>(loaded, "f"), 0.1F);
        EXPECT_EQ(ReadAs<double>(loaded, "d"), 0.1);
        EXPECT_EQ(ReadText(loaded, "s"), "a<b & c");
        EXPECT_EQ(ReadBytes(loaded, "x"), (CBytes{false, "ABC"}));
        EXPECT_TRUE(ReadObject(loaded, "o",
                               [](const IReadDataStream& nested) { return ReadAs<int>(nested, "n") == 5; }));
        EXPECT_FALSE(ReadObject(loaded, "o", [](const IReadDataStream&) { return false; }));
        for (const char* key : {"b", "i", "f", "d", "s", "x", "o"})
        {
            EXPECT_TRUE(loaded.Exists(key)) << key;
        }
    }
}

TEST(CXmlBaseDataObject, TextLetsEveryNumberReadAsEveryOther)
{
    const CLoaded object(0, "<r><v>2.5</v></r>");
    EXPECT_EQ(ReadAs<int>(object, "v"), 2);
    EXPECT_EQ(ReadAs<float>(object, "v"), 2.5F);
    EXPECT_EQ(ReadText(object, "v"), "2.5");
    EXPECT_EQ(ReadAs<bool>(object, "v"), true);
}

TEST(CXmlBaseDataObject, AMalformedNumberReadsTrueAndLeavesTheValue)
{
    for (const int mode : {0, 2})
    {
        const CLoaded object(mode, mode == 0 ? "<r><v>abc</v></r>" : "<r v='abc'/>");
        int number = 42;
        EXPECT_TRUE(object.Read("v", number));
        EXPECT_EQ(number, 42);
        float single = 4.5F;
        EXPECT_TRUE(object.Read("v", single));
        EXPECT_EQ(single, 4.5F);
    }
}

TEST(CXmlBaseDataObject, WhatIsNotFiniteLeavesTheReadersValue)
{
    CXmlDataObject object("Root");
    EXPECT_TRUE(object.Write("v", std::numeric_limits<float>::infinity()));
    EXPECT_EQ(ReadText(object, "v"), "inf");
    float value = 4.5F;
    EXPECT_TRUE(object.Read("v", value));
    EXPECT_EQ(value, 4.5F);
}

TEST(CXmlBaseDataObject, AnElementWithoutTextIsAnEmptyTextAndNoNumber)
{
    for (const char* text : {"<r><v/></r>", "<r><v></v></r>", "<r><v><w/></v></r>", "<r><v> </v></r>"})
    {
        const CLoaded object(0, text);
        EXPECT_EQ(ReadText(object, "v"), "") << text;
        EXPECT_EQ(ReadAs<float>(object, "v"), std::nullopt) << text;
        EXPECT_EQ(ReadBytes(object, "v"), (CBytes{false, ""})) << text;
    }
    CXmlDataObject written("Root");
    EXPECT_TRUE(written.Write("v", ""));
    EXPECT_EQ(ReadText(written, "v"), "");
    EXPECT_EQ(ReadAs<float>(written, "v"), std::nullopt);
}

TEST(CXmlBaseDataObject, ANullTextIsStoredAsTheEmptyText)
{
    for (const int mode : {0, 1, 2})
    {
        CXmlDataObject object("Root", mode);
        EXPECT_TRUE(object.Write("v", static_cast<const char*>(nullptr)));
        EXPECT_EQ(ReadText(object, "v"), "");
    }
}

TEST(CXmlBaseDataObject, Mode1FindsAnElementByItsNameAttributeWhateverItIsCalled)
{
    const CLoaded object(1, "<r><v>1</v><ANYTHING name='v'>2</ANYTHING><INTEGER name='v'>3</INTEGER></r>");
    EXPECT_EQ(ReadAs<int>(object, "v"), 2);
    EXPECT_TRUE(object.Exists("v"));
    EXPECT_FALSE(object.Exists("ANYTHING"));
}

TEST(CXmlBaseDataObject, Mode2KnowsChildrenBesideAttributes)
{
    CLoaded object(2, "<r a='1'><b x='2'/></r>");
    EXPECT_TRUE(object.Exists("a"));
    EXPECT_TRUE(object.Exists("b"));
    EXPECT_FALSE(object.Exists("c"));
    EXPECT_EQ(ReadAs<int>(object, "b"), std::nullopt);
    EXPECT_EQ(ReadText(object, "b"), "");
    EXPECT_TRUE(
        ReadObject(object, "b", [](const IReadDataStream& nested) { return ReadAs<int>(nested, "x") == 2; }));
    EXPECT_FALSE(ReadObject(object, "a", [](const IReadDataStream&) { return true; }));
    object.Remove("b");
    object.Remove("a");
    EXPECT_FALSE(object.Exists("a"));
    EXPECT_FALSE(object.Exists("b"));
    std::string text;
    EXPECT_TRUE(object.SaveToText(text));
    EXPECT_EQ(text, "<r />");
}

TEST(CXmlBaseDataObject, AnEmptyAttributeIsTextThatHoldsNoNumber)
{
    const CLoaded object(2, "<r v=''/>");
    int number = 42;
    EXPECT_TRUE(object.Read("v", number));
    EXPECT_EQ(number, 42);
    EXPECT_EQ(ReadText(object, "v"), "");
}

TEST(CXmlBaseDataObject, WritingAKeyTwiceLeavesOneElementAtTheEnd)
{
    CXmlDataObject object("Root");
    object.Write("a", 1);
    object.Write("b", 2);
    object.Write("a", 3);
    EXPECT_EQ(Saved(object), "<Root><b>2</b><a>3</a></Root>");
}

TEST(CXmlBaseDataObject, AValueReplacesAnObjectAndBack)
{
    for (const int mode : {0, 1, 2})
    {
        CXmlDataObject object("Root", mode);
        WriteObject(object, "a", [](IWriteDataStream& nested) { return nested.Write("x", 1); });
        object.Write("a", 2);
        EXPECT_FALSE(
            ReadObject(object, "a", [](const IReadDataStream& nested) { return nested.Exists("x"); }));
        EXPECT_EQ(ReadAs<int>(object, "a"), 2);
        WriteObject(object, "a", [](IWriteDataStream& nested) { return nested.Write("x", 1); });
        EXPECT_EQ(ReadAs<int>(object, "a"), std::nullopt);
    }
}

TEST(CXmlBaseDataObject, AWriteHidesNoRepeatedElement)
{
    CLoaded object(0, "<r><a>1</a><b/><a>2</a></r>");
    EXPECT_EQ(ReadAs<int>(object, "a"), 1);
    object.Write("a", 3);
    EXPECT_EQ(ReadAs<int>(object, "a"), 3);
}

TEST(CXmlBaseDataObject, RemovesTheFirstElementOfAKey)
{
    CLoaded object(0, "<r><a>1</a><b>5</b><a>2</a></r>");
    object.Remove("a");
    EXPECT_EQ(ReadAs<int>(object, "a"), 2);
    object.Remove("a");
    EXPECT_FALSE(object.Exists("a"));
    object.Remove("a");
    EXPECT_EQ(ReadAs<int>(object, "b"), 5);
}

TEST(CXmlBaseDataObject, ClearsChildrenAndInMode2Attributes)
{
    CLoaded object(2, "<r a='1' b='2'>text<c/></r>");
    object.Clear();
    EXPECT_FALSE(object.Exists("a"));
    EXPECT_FALSE(object.Exists("c"));
    std::string text;
    EXPECT_TRUE(object.SaveToText(text));
    EXPECT_EQ(text, "<r />");
    CLoaded elements(0, "<r a='1'><c/></r>");
    elements.Clear();
    EXPECT_TRUE(elements.SaveToText(text));
    EXPECT_EQ(text, "<r a=\"1\" />");
}

TEST(CXmlBaseDataObject, KeepsItsFirstOfRepeatedKeysInALongList)
{
    std::string text = "<r>";
    for (int i = 0; i < 100; ++i)
    {
        text +=
            "<k" + std::to_string(i % 50) + ">" + std::to_string(i) + "</k" + std::to_string(i % 50) + ">";
    }
    CLoaded object(0, text + "</r>");
    EXPECT_EQ(ReadAs<int>(object, "k40"), 40);
    object.Remove("k40");
    EXPECT_EQ(ReadAs<int>(object, "k40"), 90);
    object.Write("k41", -1);
    EXPECT_EQ(ReadAs<int>(object, "k41"), -1);
    object.Remove("k41");
    EXPECT_FALSE(object.Exists("k41"));
    EXPECT_EQ(ReadAs<int>(object, "k49"), 49);
}

TEST(CXmlBaseDataObject, TwoObjectsOnOneElementSeeEachOthersChanges)
{
    CXmlDataObject object("Root");
    for (int i = 0; i < 40; ++i)
    {
        object.Write(IndexedKey("k", i).c_str(), i);
    }
    const CXmlBaseDataObject& base = object;
    CXmlBaseDataObject other = base;
    EXPECT_EQ(ReadAs<int>(object, "k39"), 39);
    EXPECT_EQ(ReadAs<int>(other, "k39"), 39);
    other.Write("k39", 100);
    EXPECT_EQ(ReadAs<int>(object, "k39"), 100);
    object.Remove("k39");
    EXPECT_FALSE(other.Exists("k39"));
}

TEST(CXmlBaseDataObject, ABase64TextOfAnOddLengthIsNull)
{
    const CLoaded object(0, "<r><v>QUJ</v></r>");
    EXPECT_EQ(ReadBytes(object, "v"), (CBytes{true, ""}));
    EXPECT_EQ(ReadBytes(object, "w"), std::nullopt);
}

TEST(CXmlBaseDataObject, WithoutAnElementNothingSucceeds)
{
    CXmlBaseDataObject object(nullptr, 0);
    EXPECT_EQ(ReadAs<int>(object, "a"), std::nullopt);
    EXPECT_EQ(ReadText(object, "a"), std::nullopt);
    EXPECT_EQ(ReadBytes(object, "a"), std::nullopt);
    EXPECT_FALSE(object.Exists("a"));
    EXPECT_FALSE(object.Write("a", 1));
    EXPECT_FALSE(object.Write("a", "text"));
    EXPECT_FALSE(object.Write("a", "bytes", 5));
    EXPECT_FALSE(WriteObject(object, "a", [](IWriteDataStream&) { return true; }));
    EXPECT_FALSE(ReadObject(object, "a", [](const IReadDataStream&) { return true; }));
    object.Remove("a");
    object.Clear();
}

TEST(CXmlBaseDataObject, ANullKeyIsNone)
{
    for (const int mode : {0, 1, 2})
    {
        CXmlDataObject object("Root", mode);
        EXPECT_FALSE(object.Write(nullptr, 1));
        EXPECT_EQ(ReadAs<int>(object, nullptr), std::nullopt);
        EXPECT_FALSE(object.Exists(nullptr));
        object.Remove(nullptr);
    }
}

TEST(CXmlBaseDataObject, RefusesAKeyThatIsNoXmlName)
{
    for (const char* key : {"", "a b", "1a", "a=b", "<a", "a&b", "a\"b", "a\nb", "\xC3"})
    {
        for (const int mode : {0, 2})
        {
            CXmlDataObject object("Root", mode);
            EXPECT_FALSE(object.Write(key, 1)) << key;
            EXPECT_FALSE(WriteObject(object, key, [](IWriteDataStream&) { return true; })) << key;
            EXPECT_FALSE(object.Exists(key)) << key;
        }
    }
}

TEST(CXmlBaseDataObject, Mode1TakesAnyUtf8KeyThatAnAttributeKeeps)
{
    for (const char* key : {"", "a b", "1a", "a=b", "<a>'\"&amp;", " \t\n", "\xE2\x82\xAC"})
    {
        CXmlDataObject object("Root", 1);
        EXPECT_TRUE(object.Write(key, 5)) << key;
        std::string text;
        EXPECT_TRUE(object.SaveToText(text)) << key;
        const CLoaded loaded(1, text);
        EXPECT_EQ(ReadAs<int>(loaded, key), 5) << key;
    }
    CXmlDataObject object("Root", 1);
    EXPECT_FALSE(object.Write("&#x41;", 1));
    EXPECT_FALSE(object.Write("\xFF", 1));
}

} // namespace
} // namespace Mirel::Serialization
