#include "Mirel/Serialization/CMemDataObject.h"

#include "Mirel/Serialization/IndexedKey.h"
#include "Mirel/Serialization/Limits.h"
#include "Support/ThreadTime.h"
#include "Values.h"

#include <gtest/gtest.h>

#include <string>

namespace Mirel::Serialization
{
namespace
{

TEST(CMemDataObject, ReadsNothingUnderAnUnknownOrNullKey)
{
    CMemDataObject object;
    object.Write("a", 1);
    EXPECT_EQ(ReadAs<int>(object, "b"), std::nullopt);
    EXPECT_EQ(ReadAs<int>(object, "A"), std::nullopt);
    EXPECT_EQ(ReadAs<int>(object, nullptr), std::nullopt);
    EXPECT_FALSE(object.Exists("b"));
    EXPECT_FALSE(object.Exists(nullptr));
    EXPECT_FALSE(object.Write(nullptr, 1));
    object.Remove(nullptr);
    EXPECT_EQ(object.GetCount(), 1);
}

TEST(CMemDataObject, DoesNotConvertBetweenKinds)
{
    CMemDataObject object;
    object.Write("d", 1.5);
    object.Write("i", 1);
    float value = 42.0F;
    EXPECT_FALSE(object.Read("d", value));
    EXPECT_EQ(value, 42.0F);
    EXPECT_EQ(ReadAs<bool>(object, "i"), std::nullopt);
    EXPECT_EQ(ReadText(object, "i"), std::nullopt);
}

TEST(CMemDataObject, KeepsOneEntryWithTheSecondValue)
{
    CMemDataObject object;
    object.Write("a", 1);
    object.Write("a", "two");
    EXPECT_EQ(object.GetCount(), 1);
    EXPECT_EQ(ReadText(object, "a"), "two");
    EXPECT_EQ(ReadAs<int>(object, "a"), std::nullopt);
}

TEST(CMemDataObject, ANullTextReadsAsNull)
{
    CMemDataObject object;
    EXPECT_TRUE(object.Write("a", static_cast<const char*>(nullptr)));
    ASSERT_NE(object.Find("a"), nullptr);
    EXPECT_EQ(object.Find("a")->GetKind(), 5);
    EXPECT_EQ(object.Find("a")->GetSize(), 0U);
    EXPECT_EQ(ReadText(object, "a"), "(null)");
}

TEST(CMemDataObject, RemovesAndClears)
{
    CMemDataObject object;
    object.Write("a", 1);
    object.Write("b", 2);
    object.Remove("a");
    EXPECT_FALSE(object.Exists("a"));
    EXPECT_TRUE(object.Exists("b"));
    object.Clear();
    EXPECT_EQ(object.GetCount(), 0);
}

TEST(CMemDataObject, HoldsNestedObjects)
{
    CMemDataObject object;
    EXPECT_TRUE(WriteObject(object, "inner", [](IWriteDataStream& stream) { return stream.Write("x", 5); }));
    EXPECT_TRUE(object.Exists("inner"));
    EXPECT_TRUE(ReadObject(object, "inner",
                           [](const IReadDataStream& stream) { return ReadAs<int>(stream, "x") == 5; }));
    EXPECT_FALSE(ReadObject(object, "inner", [](const IReadDataStream&) { return false; }));
    EXPECT_FALSE(ReadObject(object, "other", [](const IReadDataStream&) { return true; }));
    EXPECT_EQ(ReadAs<int>(object, "inner"), std::nullopt);
}

TEST(CMemDataObject, KeepsNothingOfAnObjectThatFailed)
{
    CMemDataObject object;
    object.Write("inner", 1);
    EXPECT_FALSE(WriteObject(object, "inner", [](IWriteDataStream&) { return false; }));
    EXPECT_FALSE(object.Exists("inner"));
}

TEST(CMemDataObject, WithoutEntriesSerializesItsCountAlone)
{
    CMemDataObject stream;
    EXPECT_TRUE(CMemDataObject().Serialize(stream));
    EXPECT_EQ(stream.GetCount(), 1);
    EXPECT_EQ(ReadAs<int>(stream, "ItemsCount"), 0);
}

TEST(CMemDataObject, SerializesEachEntryUnderItsNumber)
{
    CMemDataObject object;
    object.Write("a", 5);
    CMemDataObject stream;
    EXPECT_TRUE(object.Serialize(stream));
    EXPECT_EQ(stream.GetCount(), 3);
    EXPECT_EQ(ReadAs<int>(stream, "ItemsCount"), 1);
    EXPECT_EQ(ReadText(stream, "ItemName0"), "a");
    EXPECT_TRUE(ReadObject(stream, "Item0",
                           [](const IReadDataStream& item) {
                               return ReadAs<int>(item, "type") == 2 &&
                                      ReadBytes(item, "value")->bytes.size() == 4;
                           }));
}

CMemDataObject& FillNumbered(CMemDataObject& stream, int count)
{
    CMemDataObject object;
    for (int i = 0; i < count; ++i)
    {
        object.Write(IndexedKey("key", i).c_str(), i);
    }
    object.Serialize(stream);
    return stream;
}

TEST(CMemDataObject, ReadsBackWhatItWrote)
{
    CMemDataObject stream;
    CMemDataObject copy;
    copy.Write("old", 1);
    EXPECT_TRUE(copy.Deserialize(FillNumbered(stream, 12)));
    EXPECT_EQ(copy.GetCount(), 12);
    for (int i = 0; i < 12; ++i)
    {
        EXPECT_EQ(ReadAs<int>(copy, IndexedKey("key", i).c_str()), i);
    }
}

TEST(CMemDataObject, KeepsAllOtherItemsWhenOneIsMissing)
{
    CMemDataObject stream;
    FillNumbered(stream, 6);
    const std::string lost = ReadText(stream, "ItemName3").value();
    stream.Remove("Item3");
    CMemDataObject copy;
    EXPECT_TRUE(copy.Deserialize(stream));
    EXPECT_EQ(copy.GetCount(), 5);
    EXPECT_FALSE(copy.Exists(lost.c_str()));
}

TEST(CMemDataObject, AnItemWithoutANameIsMissing)
{
    CMemDataObject stream;
    FillNumbered(stream, 6);
    stream.Remove("ItemName0");
    stream.Write("ItemName1", static_cast<const char*>(nullptr));
    CMemDataObject copy;
    EXPECT_TRUE(copy.Deserialize(stream));
    EXPECT_EQ(copy.GetCount(), 4);
}

TEST(CMemDataObject, TellsByItsResultWhetherThereWasACount)
{
    CMemDataObject stream;
    CMemDataObject object;
    object.Write("old", 1);
    EXPECT_FALSE(object.Deserialize(stream));
    EXPECT_EQ(object.GetCount(), 0);
    for (const int count : {0, -1, -2147483647})
    {
        stream.Write("ItemsCount", count);
        EXPECT_TRUE(object.Deserialize(stream));
        EXPECT_EQ(object.GetCount(), 0);
    }
}

TEST(CMemDataObject, DoesNotWorkForACountThatNothingStandsFor)
{
    CMemDataObject stream;
    FillNumbered(stream, 2);
    CMemDataObject object;
    const double start = Tests::ThreadSeconds();
    for (const int count : {2000000000, CLimits::maxItems + 1, CLimits::maxItems})
    {
        stream.Write("ItemsCount", count);
        EXPECT_FALSE(object.Deserialize(stream)) << count;
        EXPECT_EQ(object.GetCount(), 0);
    }
    EXPECT_LT(Tests::ThreadSeconds() - start, 1.0);
}

TEST(CMemDataObject, ToleratesManyMissingItems)
{
    CMemDataObject stream;
    FillNumbered(stream, 2);
    stream.Write("ItemsCount", CLimits::maxMissingItems);
    CMemDataObject object;
    EXPECT_TRUE(object.Deserialize(stream));
    EXPECT_EQ(object.GetCount(), 2);
}

TEST(CMemDataObject, CanBeWrittenIntoItself)
{
    CMemDataObject object;
    object.Write("a", 1);
    EXPECT_TRUE(object.Write("self", static_cast<const ISerialize&>(object)));
    EXPECT_EQ(object.GetCount(), 2);
    CMemDataObject copy;
    EXPECT_TRUE(object.Read("self", static_cast<IDeSerialize&>(copy)));
    EXPECT_EQ(ReadAs<int>(copy, "a"), 1);
}

} // namespace
} // namespace Mirel::Serialization
