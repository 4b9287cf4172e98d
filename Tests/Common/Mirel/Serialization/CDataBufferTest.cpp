#include "Mirel/Serialization/CDataBuffer.h"

#include "Mirel/Runtime/CObjectsFactory.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Values.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>

namespace Mirel::Serialization
{
namespace
{

/// Which of the typed reads of a buffer succeed, by the code of the kind.
std::string ReadableKinds(const CDataBuffer& buffer)
{
    std::string kinds;
    bool flag = false;
    int number = 0;
    float single = 0.0F;
    double wide = 0.0;
    char* text = nullptr;
    void* bytes = nullptr;
    unsigned size = 0;
    CMemDataObject object;
    kinds += buffer.Get(flag) ? "1" : "";
    kinds += buffer.Get(number) ? "2" : "";
    kinds += buffer.Get(single) ? "3" : "";
    kinds += buffer.Get(wide) ? "4" : "";
    kinds += buffer.Get(text) ? "5" : "";
    kinds += buffer.Get(bytes, size) ? "6" : "";
    delete[] text;
    delete[] static_cast<char*>(bytes);
    return kinds;
}

TEST(CDataBuffer, HoldsNoValueAtFirst)
{
    const CDataBuffer empty;
    EXPECT_EQ(empty.GetKind(), -1);
    EXPECT_EQ(empty.GetSize(), 0U);
    const CDataBuffer sized(4);
    EXPECT_EQ(sized.GetKind(), -1);
    EXPECT_EQ(sized.GetSize(), 4U);
    EXPECT_EQ(ReadableKinds(sized), "");
}

TEST(CDataBuffer, StoresEachKindWithItsCodeAndSizeAndNoOther)
{
    CDataBuffer buffer;
    EXPECT_TRUE(buffer.Set(true));
    EXPECT_EQ(std::make_pair(buffer.GetKind(), buffer.GetSize()), std::make_pair(1, 1U));
    EXPECT_EQ(ReadableKinds(buffer), "1");
    EXPECT_TRUE(buffer.Set(7));
    EXPECT_EQ(std::make_pair(buffer.GetKind(), buffer.GetSize()), std::make_pair(2, 4U));
    EXPECT_EQ(ReadableKinds(buffer), "2");
    EXPECT_TRUE(buffer.Set(7.0F));
    EXPECT_EQ(std::make_pair(buffer.GetKind(), buffer.GetSize()), std::make_pair(3, 4U));
    EXPECT_EQ(ReadableKinds(buffer), "3");
    EXPECT_TRUE(buffer.Set(7.0));
    EXPECT_EQ(std::make_pair(buffer.GetKind(), buffer.GetSize()), std::make_pair(4, 8U));
    EXPECT_EQ(ReadableKinds(buffer), "4");
    EXPECT_TRUE(buffer.Set("seven"));
    EXPECT_EQ(std::make_pair(buffer.GetKind(), buffer.GetSize()), std::make_pair(5, 6U));
    EXPECT_EQ(ReadableKinds(buffer), "5");
    EXPECT_TRUE(buffer.Set("1234567", 7));
    EXPECT_EQ(std::make_pair(buffer.GetKind(), buffer.GetSize()), std::make_pair(6, 7U));
    EXPECT_EQ(ReadableKinds(buffer), "6");
    EXPECT_TRUE(buffer.Set(static_cast<const ISerialize&>(CMemDataObject())));
    EXPECT_EQ(buffer.GetKind(), 0);
    EXPECT_NE(buffer.GetSize(), 0U);
    EXPECT_EQ(ReadableKinds(buffer), "");
}

TEST(CDataBuffer, GivesTheStoredValueBack)
{
    CMemDataObject object; // the keyed form of the same reads
    const char bytes[] = {0, 1, 2};
    object.Write("b", true);
    object.Write("i", -5);
    object.Write("f", 0.1F);
    object.Write("d", 0.1);
    object.Write("s", "text");
    object.Write("x", bytes, 3);
    EXPECT_EQ(ReadAs<bool>(object, "b"), true);
    EXPECT_EQ(ReadAs<int>(object, "i"), -5);
    EXPECT_EQ(ReadAs<float>(object, "f"), 0.1F);
    EXPECT_EQ(ReadAs<double>(object, "d"), 0.1);
    EXPECT_EQ(ReadText(object, "s"), "text");
    EXPECT_EQ(ReadBytes(object, "x"), (CBytes{false, std::string(bytes, 3)}));
}

TEST(CDataBuffer, ANullTextIsStoredAsSuch)
{
    CDataBuffer buffer;
    EXPECT_TRUE(buffer.Set(static_cast<const char*>(nullptr)));
    EXPECT_EQ(buffer.GetKind(), CValueKind::String);
    EXPECT_EQ(buffer.GetSize(), 0U);
    char dummy = 'x';
    char* text = &dummy;
    EXPECT_TRUE(buffer.Get(text));
    EXPECT_EQ(text, nullptr);
}

TEST(CDataBuffer, AnEmptyTextIsNotNull)
{
    CDataBuffer buffer;
    buffer.Set("");
    EXPECT_EQ(buffer.GetSize(), 1U);
    char* text = nullptr;
    EXPECT_TRUE(buffer.Get(text));
    EXPECT_STREQ(text, "");
    delete[] text;
}

TEST(CDataBuffer, BinaryWithoutBytesIsNull)
{
    CDataBuffer buffer;
    EXPECT_TRUE(buffer.Set("abc", 0));
    unsigned size = 5;
    char dummy = 'x';
    void* data = &dummy;
    EXPECT_TRUE(buffer.Get(data, size));
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(size, 0U);
}

TEST(CDataBuffer, TakesItsOwnTextAsANewOne)
{
    CDataBuffer buffer;
    buffer.Set(static_cast<const ISerialize&>(CMemDataObject()));
    buffer.Set("text");
    EXPECT_TRUE(buffer.IsEqual("text"));
}

TEST(CDataBuffer, ComparesNumbersByKindAndValue)
{
    CDataBuffer buffer;
    buffer.Set(5);
    EXPECT_TRUE(buffer.IsEqual(5));
    EXPECT_FALSE(buffer.IsEqual(6));
    EXPECT_FALSE(buffer.IsEqual(5.0F));
    EXPECT_FALSE(buffer.IsEqual(5.0));
    EXPECT_FALSE(buffer.IsEqual(true));
    buffer.Set(true);
    EXPECT_TRUE(buffer.IsEqual(true));
    EXPECT_FALSE(buffer.IsEqual(false));
    EXPECT_FALSE(buffer.IsEqual(1));
    buffer.Set(2.5);
    EXPECT_TRUE(buffer.IsEqual(2.5));
    EXPECT_FALSE(buffer.IsEqual(2.5F));
    EXPECT_FALSE(CDataBuffer(4).IsEqual(0));
}

TEST(CDataBuffer, TakesNaNForEqualToAnyNumber)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    CDataBuffer buffer;
    buffer.Set(nan);
    EXPECT_TRUE(buffer.IsEqual(5.0F));
    EXPECT_TRUE(buffer.IsEqual(nan));
    EXPECT_FALSE(buffer.IsEqual(5.0));
    buffer.Set(5.0F);
    EXPECT_TRUE(buffer.IsEqual(nan));
    buffer.Set(static_cast<double>(nan));
    EXPECT_TRUE(buffer.IsEqual(5.0));
}

TEST(CDataBuffer, ComparesTexts)
{
    const auto* null = static_cast<const char*>(nullptr);
    CDataBuffer buffer;
    buffer.Set("text");
    EXPECT_TRUE(buffer.IsEqual("text"));
    EXPECT_FALSE(buffer.IsEqual("texts"));
    EXPECT_FALSE(buffer.IsEqual(null));
    buffer.Set(null);
    EXPECT_TRUE(buffer.IsEqual(null));
    EXPECT_FALSE(buffer.IsEqual(""));
    buffer.Set("text", 5);
    EXPECT_FALSE(buffer.IsEqual("text"));
    EXPECT_FALSE(CDataBuffer().IsEqual(null));
}

TEST(CDataBuffer, ComparesBinariesByLengthThenBytes)
{
    const auto* null = static_cast<const void*>(nullptr);
    CDataBuffer buffer;
    buffer.Set("abc", 3);
    EXPECT_TRUE(buffer.IsEqual("abc", 3));
    EXPECT_FALSE(buffer.IsEqual("abc", 2));
    EXPECT_FALSE(buffer.IsEqual("abd", 3));
    EXPECT_FALSE(buffer.IsEqual(null, 3));
    buffer.Set(null, 0);
    // Null with null is equal before the size is looked at.
    EXPECT_TRUE(buffer.IsEqual(null, 0));
    EXPECT_TRUE(buffer.IsEqual(null, 9));
    EXPECT_FALSE(buffer.IsEqual("a", 0));
    buffer.Set("abc");
    EXPECT_FALSE(buffer.IsEqual("abc", 4));
}

TEST(CDataBuffer, AFailedObjectLeavesNothingHeld)
{
    CDataBuffer buffer;
    buffer.Set(5);
    const CScripted failing([](IWriteDataStream&) { return false; });
    EXPECT_FALSE(buffer.Set(static_cast<const ISerialize&>(failing)));
    EXPECT_EQ(buffer.GetSize(), 0U);
    CMemDataObject object;
    EXPECT_FALSE(buffer.Get(static_cast<IDeSerialize&>(object)));
}

TEST(CDataBuffer, SerializesItsKindAndMachineBytes)
{
    CDataBuffer buffer;
    buffer.Set(0x01020304);
    CMemDataObject stream;
    EXPECT_TRUE(buffer.Serialize(stream));
    EXPECT_EQ(ReadAs<int>(stream, "type"), 2);
    EXPECT_EQ(ReadBytes(stream, "value"), (CBytes{false, "\4\3\2\1"}));
    EXPECT_EQ(stream.GetCount(), 2);
}

TEST(CDataBuffer, SerializesATextWithItsZero)
{
    CDataBuffer buffer;
    buffer.Set("ab");
    CMemDataObject stream;
    EXPECT_TRUE(buffer.Serialize(stream));
    EXPECT_EQ(ReadBytes(stream, "value"), (CBytes{false, std::string("ab\0", 3)}));
}

TEST(CDataBuffer, SerializesAnObjectAsANestedOne)
{
    CMemDataObject inner;
    inner.Write("x", 5);
    CDataBuffer buffer;
    buffer.Set(static_cast<const ISerialize&>(inner));
    CMemDataObject stream;
    EXPECT_TRUE(buffer.Serialize(stream));
    CDataBuffer copy;
    EXPECT_TRUE(copy.Deserialize(stream));
    CMemDataObject read;
    EXPECT_TRUE(copy.Get(static_cast<IDeSerialize&>(read)));
    EXPECT_EQ(ReadAs<int>(read, "x"), 5);
}

TEST(CDataBuffer, ReadsBackWhatItWroteOfEveryKind)
{
    const auto passOn = [](const CDataBuffer& buffer)
    {
        CMemDataObject stream;
        EXPECT_TRUE(buffer.Serialize(stream));
        auto copy = std::make_unique<CDataBuffer>();
        EXPECT_TRUE(copy->Deserialize(stream));
        EXPECT_EQ(copy->GetKind(), buffer.GetKind());
        EXPECT_EQ(copy->GetSize(), buffer.GetSize());
        return copy;
    };
    CDataBuffer buffer;
    buffer.Set(true);
    EXPECT_TRUE(passOn(buffer)->IsEqual(true));
    buffer.Set(1.5F);
    EXPECT_TRUE(passOn(buffer)->IsEqual(1.5F));
    buffer.Set(1.5);
    EXPECT_TRUE(passOn(buffer)->IsEqual(1.5));
    buffer.Set("text");
    EXPECT_TRUE(passOn(buffer)->IsEqual("text"));
    buffer.Set(static_cast<const char*>(nullptr));
    EXPECT_TRUE(passOn(buffer)->IsEqual(static_cast<const char*>(nullptr)));
    buffer.Set("ab", 2);
    EXPECT_TRUE(passOn(buffer)->IsEqual("ab", 2));
    EXPECT_EQ(passOn(CDataBuffer(3))->GetKind(), -1);
}

TEST(CDataBuffer, KeepsItsKindWhereTheStreamNamesNone)
{
    CMemDataObject stream;
    stream.Write("value", "\5\0\0\0", 4);
    CDataBuffer buffer;
    buffer.Set(9);
    EXPECT_FALSE(buffer.Deserialize(stream));
    EXPECT_EQ(buffer.GetKind(), 2);
    EXPECT_TRUE(buffer.IsEqual(5));
}

TEST(CDataBuffer, IsEmptyAfterAValueThatIsNotThere)
{
    CMemDataObject stream;
    stream.Write("type", 5);
    CDataBuffer buffer;
    buffer.Set(9);
    EXPECT_FALSE(buffer.Deserialize(stream));
    EXPECT_EQ(buffer.GetKind(), 5);
    EXPECT_EQ(buffer.GetSize(), 0U);
}

TEST(CDataBuffer, ReadsNoObjectWhereThereIsNone)
{
    CMemDataObject stream;
    stream.Write("type", 0);
    stream.Write("value", 5);
    CDataBuffer buffer;
    EXPECT_FALSE(buffer.Deserialize(stream));
    CMemDataObject object;
    EXPECT_FALSE(buffer.Get(static_cast<IDeSerialize&>(object)));
}

TEST(CDataBuffer, RefusesATextWithoutItsZero)
{
    CMemDataObject stream;
    stream.Write("type", 5);
    stream.Write("value", "abc", 3);
    CDataBuffer buffer;
    EXPECT_FALSE(buffer.Deserialize(stream));
    EXPECT_EQ(buffer.GetSize(), 0U);
}

TEST(CDataBuffer, TakesAnyByteButZeroForTrue)
{
    CMemDataObject stream;
    stream.Write("type", 1);
    stream.Write("value", "\7", 1);
    CDataBuffer buffer;
    EXPECT_TRUE(buffer.Deserialize(stream));
    EXPECT_TRUE(buffer.IsEqual(true));
}

TEST(CDataBuffer, ANumberOfAnotherSizeIsNone)
{
    CMemDataObject stream;
    stream.Write("type", 2);
    stream.Write("value", "\1\2\3", 3);
    CDataBuffer buffer;
    EXPECT_TRUE(buffer.Deserialize(stream));
    int number = 42;
    EXPECT_FALSE(buffer.Get(number));
    EXPECT_EQ(number, 42);
}

TEST(CDataBuffer, AdoptsAKindThatItDoesNotKnow)
{
    CMemDataObject stream;
    stream.Write("type", 77);
    stream.Write("value", "ab", 2);
    CDataBuffer buffer;
    EXPECT_TRUE(buffer.Deserialize(stream));
    EXPECT_EQ(buffer.GetKind(), 77);
    EXPECT_EQ(ReadableKinds(buffer), "");
}

TEST(CDataBuffer, IsMadeByTheFactoryUnderItsKey)
{
    const std::unique_ptr<IDataHolder> holder(
        static_cast<IDataHolder*>(Runtime::CObjectsFactory::Instance().Create(
            "{E39EF26D-BED5-40a7-8E3F-F563B4FC5CCE}", IDataHolder::classKey)));
    ASSERT_NE(holder, nullptr);
    EXPECT_TRUE(holder->Set(5));
    EXPECT_TRUE(holder->IsEqual(5));
    EXPECT_STREQ(CDataBuffer().GetTypeKey(), "{E39EF26D-BED5-40a7-8E3F-F563B4FC5CCE}");
}

} // namespace
} // namespace Mirel::Serialization
