#include "Mirel/Containers/TDynamicVector.h"
#include "Mirel/Core/TOwnership.h"
#include "Mirel/Runtime/TClassRegistration.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/TLookupTableSerializer.h"
#include "Mirel/Serialization/TSerializableNamedValue.h"
#include "Mirel/Serialization/TStdContainerSerializer.h"
#include "Mirel/Serialization/TVectorSerializer.h"
#include "Values.h"

#include <gtest/gtest.h>

#include <list>
#include <memory>
#include <vector>

namespace Mirel::Serialization
{
namespace
{

using CFloats = Containers::TDynamicVector<float>;

CFloats Floats(std::initializer_list<float> values)
{
    CFloats vector;
    for (const float value : values)
    {
        vector.Add(value);
    }
    return vector;
}

std::vector<float> Listed(const CFloats& vector)
{
    return {vector.GetData(), vector.GetData() + vector.GetCount()};
}

TEST(TVectorSerializer, WritesTheCountAndEachElementUnderItsIndex)
{
    const CFloats vector = Floats({1.5F, -2.0F});
    CMemDataObject stream;
    EXPECT_TRUE(TVectorSerializer(vector, "value").Serialize(stream));
    EXPECT_EQ(stream.GetCount(), 3);
    EXPECT_EQ(ReadAs<int>(stream, "valueCount"), 2);
    EXPECT_EQ(ReadAs<float>(stream, "value0"), 1.5F);
    EXPECT_EQ(ReadAs<float>(stream, "value1"), -2.0F);
}

TEST(TVectorSerializer, AnEmptyVectorIsItsCount)
{
    const CFloats vector;
    CMemDataObject stream;
    EXPECT_TRUE(TVectorSerializer(vector, "time").Serialize(stream));
    EXPECT_EQ(stream.GetCount(), 1);
    EXPECT_EQ(ReadAs<int>(stream, "timeCount"), 0);
}

TEST(TVectorDeSerializer, SizesTheVectorAndReadsItsElements)
{
    CMemDataObject stream;
    const CFloats written = Floats({1.0F, 2.0F, 3.0F});
    TVectorSerializer(written, "value").Serialize(stream);
    CFloats longer = Floats({9.0F, 9.0F, 9.0F, 9.0F});
    EXPECT_TRUE(TVectorDeSerializer(longer, "value").Deserialize(stream));
    EXPECT_EQ(Listed(longer), Listed(written));
    CFloats shorter;
    EXPECT_TRUE(TVectorDeSerializer(shorter, "value").Deserialize(stream));
    EXPECT_EQ(Listed(shorter), Listed(written));
}

TEST(TVectorDeSerializer, LeavesTheVectorAloneWithoutACount)
{
    const CMemDataObject stream;
    CFloats vector = Floats({7.0F});
    EXPECT_FALSE(TVectorDeSerializer(vector, "value").Deserialize(stream));
    EXPECT_EQ(Listed(vector), std::vector<float>{7.0F});
}

TEST(TVectorDeSerializer, AMissingElementKeepsTheVectorsValue)
{
    CMemDataObject stream;
    TVectorSerializer(Floats({1.0F, 2.0F, 3.0F}), "value").Serialize(stream);
    stream.Remove("value1");
    stream.Write("value2", 3); // not a float
    CFloats vector = Floats({8.0F, 9.0F});
    EXPECT_TRUE(TVectorDeSerializer(vector, "value").Deserialize(stream));
    EXPECT_EQ(Listed(vector), (std::vector<float>{1.0F, 9.0F, 0.0F}));
}

TEST(TVectorDeSerializer, ReadsMoreThanItGrowsByAtOnce)
{
    CFloats written(3000);
    for (int i = 0; i < 3000; ++i)
    {
        written[i] = static_cast<float>(i);
    }
    CMemDataObject stream;
    EXPECT_TRUE(TVectorSerializer(written, "value").Serialize(stream));
    CFloats vector;
    EXPECT_TRUE(TVectorDeSerializer(vector, "value").Deserialize(stream));
    EXPECT_EQ(Listed(vector), Listed(written));
}

TEST(TVectorDeSerializer, RefusesACountThatNothingStandsFor)
{
    CMemDataObject stream;
    CFloats vector = Floats({7.0F});
    stream.Write("valueCount", 2000000000);
    EXPECT_FALSE(TVectorDeSerializer(vector, "value").Deserialize(stream));
    EXPECT_EQ(Listed(vector), std::vector<float>{7.0F});
    stream.Write("valueCount", CLimits::maxItems);
    EXPECT_FALSE(TVectorDeSerializer(vector, "value").Deserialize(stream));
    EXPECT_LT(vector.GetCount(), 1000);
    stream.Write("valueCount", -3);
    EXPECT_TRUE(TVectorDeSerializer(vector, "value").Deserialize(stream));
    EXPECT_EQ(vector.GetCount(), 0);
}

struct CPoint : ISerializable
{
    explicit CPoint(int x_ = 0) : x(x_) {}
    bool Serialize(IWriteDataStream& stream) const override { return stream.Write("x", x); }
    bool Deserialize(const IReadDataStream& stream) override { return stream.Read("x", x); }
    int x;
};

TEST(TVectorSerializer, SavesObjectsAsNestedOnes)
{
    Containers::TDynamicVector<CPoint> vector;
    vector.Add(CPoint(4));
    vector.Add(CPoint(5));
    CMemDataObject stream;
    EXPECT_TRUE(TVectorSerializer(vector, "point").Serialize(stream));
    EXPECT_TRUE(ReadObject(stream, "point1",
                           [](const IReadDataStream& point) { return ReadAs<int>(point, "x") == 5; }));
    Containers::TDynamicVector<CPoint> copy;
    EXPECT_TRUE(TVectorDeSerializer(copy, "point").Deserialize(stream));
    ASSERT_EQ(copy.GetCount(), 2);
    EXPECT_EQ(copy[0].x, 4);
}

class IShape : public ITypeSerializable
{
public:
    static constexpr const char* classKey = "{shape}";
    virtual int GetArea() const = 0;
};

class CSquare : public IShape
{
public:
    static constexpr const char* classKey = "{square}";
    explicit CSquare(int side_ = 0, std::shared_ptr<int> life_ = {}) : side(side_), life(std::move(life_)) {}
    const char* GetTypeKey() const override { return classKey; }
    int GetArea() const override { return side * side; }
    bool Serialize(IWriteDataStream& stream) const override { return stream.Write("side", side); }
    bool Deserialize(const IReadDataStream& stream) override { return stream.Read("side", side); }

private:
    int side;
    std::shared_ptr<int> life;
};

const Runtime::TClassRegistration<CSquare, IShape> squareRegistration;

class CShapes : public Containers::TDynamicVector<IShape*>
{
public:
    CShapes() = default;
    ~CShapes() override
    {
        for (int i = 0; i < GetCount(); ++i)
        {
            delete (*this)[i];
        }
    }
};

TEST(TDynamicVectorDeSerializer, MakesTheObjectsByTheirKeys)
{
    CShapes written;
    written.Add(new CSquare(3));
    written.Add(nullptr);
    written.Add(new CSquare(4));
    CMemDataObject stream;
    EXPECT_TRUE(TVectorSerializer(written, "shape").Serialize(stream));
    CShapes read;
    EXPECT_TRUE(TDynamicVectorDeSerializer(read, "shape").Deserialize(stream));
    ASSERT_EQ(read.GetCount(), 3);
    EXPECT_EQ(read[0]->GetArea(), 9);
    EXPECT_EQ(read[1], nullptr);
    EXPECT_EQ(read[2]->GetArea(), 16);
}

TEST(TDynamicVectorDeSerializer, DestroysWhatItReplacesAndKeepsWhatIsMissing)
{
    const auto life = std::make_shared<int>();
    CMemDataObject stream;
    {
        CShapes written;
        written.Add(new CSquare(3));
        written.Add(new CSquare(4));
        TVectorSerializer(written, "shape").Serialize(stream);
    }
    stream.Remove("shape1");
    CShapes read;
    read.Add(new CSquare(7, life));
    read.Add(new CSquare(8, life));
    read.Add(new CSquare(9, life));
    EXPECT_TRUE(TDynamicVectorDeSerializer(read, "shape").Deserialize(stream));
    ASSERT_EQ(read.GetCount(), 2);
    EXPECT_EQ(read[0]->GetArea(), 9);
    EXPECT_EQ(read[1]->GetArea(), 64);
    EXPECT_EQ(life.use_count(), 2);
}

TEST(TDynamicVectorDeSerializer, LeavesTheVectorAloneWithoutACount)
{
    const CMemDataObject stream;
    CShapes read;
    read.Add(new CSquare(7));
    EXPECT_FALSE(TDynamicVectorDeSerializer(read, "shape").Deserialize(stream));
    ASSERT_EQ(read.GetCount(), 1);
    EXPECT_EQ(read[0]->GetArea(), 49);
}

TEST(TVectorSerializer, SavesWhatIsHeldInOwnershipWithItsClass)
{
    Containers::TDynamicVector<Core::TOwnership<const IShape>> written;
    const CSquare borrowed(4);
    written.Add({new CSquare(3), true});
    written.Add({});
    written.Add({&borrowed, false});
    CMemDataObject stream;
    EXPECT_TRUE(TVectorSerializer(written, "shape").Serialize(stream));

    Containers::TDynamicVector<Core::TOwnership<const IShape>> read;
    EXPECT_TRUE(TVectorDeSerializer(read, "shape").Deserialize(stream));
    ASSERT_EQ(read.GetCount(), 3);
    EXPECT_EQ(read[0]->GetArea(), 9);
    EXPECT_EQ(read[1].Get(), nullptr);
    EXPECT_EQ(read[2]->GetArea(), 16);
    EXPECT_TRUE(read[2].IsOwned());
}

TEST(TVectorDeSerializer, DestroysWhatAnOwnershipHeldAndKeepsWhatIsMissing)
{
    const auto life = std::make_shared<int>();
    const CSquare borrowed(5, life);
    CMemDataObject stream;
    {
        CShapes written;
        written.Add(new CSquare(3));
        written.Add(new CSquare(4));
        written.Add(nullptr);
        TVectorSerializer(written, "shape").Serialize(stream);
    }
    stream.Remove("shape1");
    Containers::TDynamicVector<Core::TOwnership<const IShape>> read;
    read.Add({new CSquare(7, life), true});
    read.Add({&borrowed, false});
    read.Add({new CSquare(9, life), true});
    EXPECT_TRUE(TVectorDeSerializer(read, "shape").Deserialize(stream));
    ASSERT_EQ(read.GetCount(), 3);
    EXPECT_EQ(read[0]->GetArea(), 9);
    EXPECT_EQ(read[1].Get(), &borrowed);
    EXPECT_EQ(read[2].Get(), nullptr);
    EXPECT_EQ(life.use_count(), 2);
}

TEST(TStdContainerSerializer, SavesAListOfNamedValues)
{
    std::list<TSerializableNamedValue<int>> list;
    list.emplace_back("low", 1);
    list.emplace_back("high", 2);
    CMemDataObject stream;
    EXPECT_TRUE(TStdContainerSerializer(list, "item").Serialize(stream));
    EXPECT_EQ(ReadAs<int>(stream, "itemCount"), 2);
    EXPECT_TRUE(ReadObject(stream, "item1",
                           [](const IReadDataStream& item) { return ReadAs<int>(item, "high") == 2; }));
    for (auto& item : list)
    {
        item.GetValue() = 0;
    }
    EXPECT_TRUE(TStdContainerSerializer(list, "item").Deserialize(stream));
    EXPECT_EQ(list.front().GetValue(), 1);
    EXPECT_EQ(list.back().GetValue(), 2);
    EXPECT_FALSE(TStdContainerSerializer(list, "other").Deserialize(stream));
}

TEST(TStdContainerSerializer, SavesItemsOfUnrelatedKindsBehindPointers)
{
    TSerializableNamedValue<bool> flag("flag", true);
    CPoint point(6);
    TSerializableNamedPointer<CPoint> where("where", &point);
    std::list<ISerializable*> list{&flag, &where};
    CMemDataObject stream;
    EXPECT_TRUE(TStdContainerSerializer(list, "item").Serialize(stream));
    flag.GetValue() = false;
    point.x = 0;
    EXPECT_TRUE(TStdContainerSerializer(list, "item").Deserialize(stream));
    EXPECT_TRUE(flag.GetValue());
    EXPECT_EQ(point.x, 6);
}

TEST(TSerializableNamedValue, WritesItsValueUnderItsKey)
{
    CMemDataObject stream;
    TSerializableNamedValue<float> gain("gain", 0.5F);
    EXPECT_TRUE(gain.Serialize(stream));
    EXPECT_EQ(ReadAs<float>(stream, "gain"), 0.5F);
    gain.GetValue() = 1.0F;
    EXPECT_TRUE(gain.Deserialize(stream));
    EXPECT_EQ(gain.GetValue(), 0.5F);
    EXPECT_FALSE(gain.Deserialize(CMemDataObject()));
    EXPECT_EQ(gain.GetValue(), 0.5F);
}

TEST(TSerializableNamedPointer, WritesWhatSomebodyElseHolds)
{
    CMemDataObject stream;
    int number = 5;
    TSerializableNamedPointer<int> item("number", &number);
    EXPECT_TRUE(item.Serialize(stream));
    number = 0;
    EXPECT_TRUE(item.Deserialize(stream));
    EXPECT_EQ(number, 5);
    TSerializableNamedPointer<int> none("none", nullptr);
    EXPECT_TRUE(none.Serialize(stream));
    EXPECT_TRUE(none.Deserialize(stream));
    EXPECT_FALSE(stream.Exists("none"));
}

TEST(TSerializableNamedTypedPointer, SavesAnObjectWithItsClass)
{
    CMemDataObject stream;
    const TSerializableNamedTypedPointer<IShape> written("shape", new CSquare(5));
    EXPECT_TRUE(written.Serialize(stream));
    TSerializableNamedTypedPointer<IShape> read("shape");
    EXPECT_TRUE(read.Deserialize(stream));
    ASSERT_NE(read.GetPointer(), nullptr);
    EXPECT_EQ(read.GetPointer()->GetArea(), 25);
    EXPECT_FALSE(read.Deserialize(CMemDataObject()));
    EXPECT_EQ(read.GetPointer()->GetArea(), 25);
    TSerializableNamedTypedPointer<IShape>("shape").Serialize(stream);
    EXPECT_TRUE(read.Deserialize(stream));
    EXPECT_EQ(read.GetPointer(), nullptr);
}

/// A table with one guard entry on either side.
class CTable
{
public:
    explicit CTable(int size) { SetSize(size); }
    void SetSize(int size) { entries.assign(static_cast<std::size_t>(size) + 2, -1.0F); }
    int GetSize() const { return static_cast<int>(entries.size()) - 2; }
    float* GetPositions() { return entries.data() + 1; }
    const float* GetPositions() const { return entries.data() + 1; }

private:
    std::vector<float> entries;
};

TEST(TLookupTableSerializer, SavesThePositionsOfATable)
{
    CTable table(2);
    table.GetPositions()[0] = 1.0F;
    table.GetPositions()[1] = 2.0F;
    CMemDataObject stream;
    EXPECT_TRUE(TLookupTableSerializer(table, "value").Serialize(stream));
    EXPECT_EQ(stream.GetCount(), 3);
    EXPECT_EQ(ReadAs<float>(stream, "value1"), 2.0F);
    CTable copy(5);
    EXPECT_TRUE(TLookupTableDeSerializer(copy, "value").Deserialize(stream));
    ASSERT_EQ(copy.GetSize(), 2);
    EXPECT_EQ(copy.GetPositions()[0], 1.0F);
    EXPECT_EQ(copy.GetPositions()[1], 2.0F);
}

TEST(TLookupTableDeSerializer, KeepsWhatIsMissing)
{
    CTable table(2);
    table.GetPositions()[0] = 1.0F;
    CMemDataObject stream;
    EXPECT_FALSE(TLookupTableDeSerializer(table, "value").Deserialize(stream));
    EXPECT_EQ(table.GetPositions()[0], 1.0F);
    stream.Write("valueCount", 3);
    stream.Write("value2", 5.0F);
    EXPECT_TRUE(TLookupTableDeSerializer(table, "value").Deserialize(stream));
    ASSERT_EQ(table.GetSize(), 3);
    EXPECT_EQ(table.GetPositions()[0], 1.0F);
    EXPECT_EQ(table.GetPositions()[2], 5.0F);
}

} // namespace
} // namespace Mirel::Serialization
