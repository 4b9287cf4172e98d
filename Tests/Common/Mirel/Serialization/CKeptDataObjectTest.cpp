#include "Mirel/Serialization/CKeptDataObject.h"

#include "Mirel/Serialization/CIniDataObject.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Values.h"

#include <gtest/gtest.h>

#include <string>

namespace Mirel::Serialization
{
namespace
{

std::string TextOf(const ISerialize& object, int mode = CXmlMode::Elements)
{
    CXmlDataObject document("R", mode);
    EXPECT_TRUE(object.Serialize(document));
    std::string text;
    EXPECT_TRUE(document.SaveToText(text));
    const std::size_t start = text.find("<R");
    return text.substr(start);
}

void LoadXml(CXmlDataObject& document, const std::string& text)
{
    ASSERT_TRUE(document.LoadFromMemory(text.data(), text.size()));
}

TEST(CKeptDataObject, WritesBackWhatItGotFromADocument)
{
    const std::string text =
        "<R><b>1</b><a>x &amp; y</a><list><valueCount>2</valueCount><value0>1</value0><value1>2</value1>"
        "</list><deep><er><est>0.10000000149</est></er></deep><empty /></R>";
    CXmlDataObject document("R");
    LoadXml(document, text);
    CKeptDataObject kept;
    EXPECT_TRUE(kept.Deserialize(document));
    EXPECT_EQ(TextOf(kept), text);
}

TEST(CKeptDataObject, HandsValuesToAReaderThatComesLater)
{
    CMemDataObject source;
    source.Write("bool", true);
    source.Write("int", -5);
    source.Write("float", 0.1f);
    source.Write("double", 0.1);
    source.Write("text", "a < b");
    source.Write("data", static_cast<const void*>("\0\1\2"), 3U);
    WriteObject(source, "object", [](IWriteDataStream& stream) { return stream.Write("inner", 7); });
    CKeptDataObject kept;
    EXPECT_TRUE(kept.Deserialize(source));

    const IReadDataStream& content = kept.GetContent();
    EXPECT_EQ(ReadAs<bool>(content, "bool"), true);
    EXPECT_EQ(ReadAs<int>(content, "int"), -5);
    EXPECT_EQ(ReadAs<float>(content, "float"), 0.1f);
    EXPECT_EQ(ReadAs<double>(content, "double"), 0.1);
    EXPECT_EQ(ReadText(content, "text"), "a < b");
    EXPECT_EQ(ReadBytes(content, "data"), (CBytes{false, std::string("\0\1\2", 3)}));
    EXPECT_TRUE(ReadObject(content, "object",
                           [](const IReadDataStream& nested) { return ReadAs<int>(nested, "inner") == 7; }));
}

TEST(CKeptDataObject, GoesThroughMemoryWithoutALoss)
{
    const std::string text = "<R><a>1.5</a><o><b>text</b><c /></o></R>";
    CXmlDataObject document("R");
    LoadXml(document, text);
    CKeptDataObject kept;
    kept.Deserialize(document);
    CMemDataObject memory;
    EXPECT_TRUE(kept.Serialize(memory));
    CKeptDataObject again;
    EXPECT_TRUE(again.Deserialize(memory));
    EXPECT_EQ(TextOf(again), text);
    EXPECT_EQ(ReadAs<float>(again.GetContent(), "a"), 1.5f);
}

TEST(CKeptDataObject, OfSeveralValuesUnderOneKeyKeepsTheOneThatIsRead)
{
    CXmlDataObject document("R");
    LoadXml(document, "<R><a>1</a><b>2</b><a>3</a></R>");
    CKeptDataObject kept;
    kept.Deserialize(document);
    EXPECT_EQ(TextOf(kept), "<R><a>1</a><b>2</b></R>");
}

TEST(CKeptDataObject, TakesTheOtherModesOfXml)
{
    CXmlDataObject attributes("R", CXmlMode::Attributes);
    LoadXml(attributes, "<R a=\"1\" b=\"x\"><o c=\"2\" /></R>");
    CKeptDataObject kept;
    EXPECT_TRUE(kept.Deserialize(attributes));
    EXPECT_EQ(TextOf(kept), "<R><a>1</a><b>x</b><o><c>2</c></o></R>");
    EXPECT_EQ(TextOf(kept, CXmlMode::Attributes), "<R a=\"1\" b=\"x\"><o c=\"2\" /></R>");

    CXmlDataObject named("R", CXmlMode::NamedElements);
    LoadXml(named, "<R><INTEGER name=\"a\">1</INTEGER><OBJECT name=\"o\"><BOOL name=\"c\">1</BOOL></OBJECT>"
                   "<STRING>nameless</STRING></R>");
    EXPECT_TRUE(kept.Deserialize(named));
    EXPECT_EQ(TextOf(kept), "<R><a>1</a><o><c>1</c></o></R>");
}

TEST(CKeptDataObject, ANewStateReplacesTheOldOneWhole)
{
    CMemDataObject first;
    first.Write("a", 1);
    CMemDataObject second;
    second.Write("b", 2);
    CKeptDataObject kept;
    kept.Deserialize(first);
    kept.Deserialize(second);
    EXPECT_EQ(TextOf(kept), "<R><b>2</b></R>");
    kept.Clear();
    EXPECT_EQ(TextOf(kept), "<R />");
}

TEST(CKeptDataObject, KeepsTheRestOfWhatCannotBeKeptWhole)
{
    CMemDataObject source;
    source.Write("no name", 1);
    source.Write("text", "\xFF");
    source.Write("x", 2);
    CKeptDataObject kept;
    EXPECT_FALSE(kept.Deserialize(source));
    EXPECT_EQ(TextOf(kept), "<R><x>2</x></R>");
}

TEST(CKeptDataObject, IsEmptyAfterAFormThatCannotBeWalked)
{
    CMemDataObject source;
    source.Write("x", 2);
    CKeptDataObject kept;
    kept.Deserialize(source);
    EXPECT_FALSE(kept.Deserialize(CIniDataObject()));
    EXPECT_EQ(TextOf(kept), "<R />");
}

TEST(CXmlBaseDataObject, WithoutAnElementThereIsNoContentToCopy)
{
    CXmlDataObject document("R");
    EXPECT_FALSE(document.LoadFromMemory("broken", 6));
    CMemDataObject target;
    EXPECT_FALSE(document.CopyContentTo(target));
    EXPECT_EQ(target.GetCount(), 0);
}

} // namespace
} // namespace Mirel::Serialization
