#include "Mirel/Serialization/CTypeSerializer.h"

#include "Mirel/Math/IFunction.h"
#include "Mirel/Runtime/TClassRegistration.h"
#include "Mirel/Serialization/CMemDataObject.h"
#include "Mirel/Serialization/TRuntimeDeSerializer.h"
#include "Values.h"

#include <gtest/gtest.h>

#include <memory>

namespace Mirel::Serialization
{
namespace
{

class CScale : public Math::IFunction
{
public:
    static constexpr const char* classKey = "{scale}";

    explicit CScale(float factor_ = 1.0F) : factor(factor_) {}
    const char* GetTypeKey() const override { return classKey; }
    CScale* Clone() const override { return new CScale(*this); }
    float operator()(float x) const override { return factor * x; }
    bool Serialize(IWriteDataStream& stream) const override { return stream.Write("factor", factor); }
    bool Deserialize(const IReadDataStream& stream) override { return stream.Read("factor", factor); }

private:
    float factor;
};

class CNameless : public CScale
{
public:
    const char* GetTypeKey() const override { return nullptr; }
};

class CUnknown : public CScale
{
public:
    const char* GetTypeKey() const override { return "{never registered}"; }
};

class CSum : public Math::IBinaryFunction
{
public:
    static constexpr const char* classKey = "{sum}";
    const char* GetTypeKey() const override { return classKey; }
    CSum* Clone() const override { return new CSum(*this); }
    float operator()(float x, float y) const override { return x + y; }
    bool Serialize(IWriteDataStream&) const override { return true; }
    bool Deserialize(const IReadDataStream&) override { return true; }
};

class CNine : public Math::IConstant
{
public:
    static constexpr const char* classKey = "{nine}";
    const char* GetTypeKey() const override { return classKey; }
    CNine* Clone() const override { return new CNine(*this); }
    float operator()() const override { return 9.0F; }
    bool Serialize(IWriteDataStream&) const override { return true; }
    bool Deserialize(const IReadDataStream&) override { return true; }
};

const Runtime::TClassRegistration<CScale, Math::IFunction> scaleRegistration;
const Runtime::TClassRegistration<CSum, Math::IBinaryFunction> sumRegistration;
const Runtime::TClassRegistration<CNine, Math::IConstant> nineRegistration;

TEST(CTypeSerializer, WritesClassAndContent)
{
    CMemDataObject stream;
    const CScale scale(3.0F);
    EXPECT_TRUE(CTypeSerializer(&scale).Serialize(stream));
    EXPECT_EQ(stream.GetCount(), 3);
    EXPECT_EQ(ReadAs<bool>(stream, "isNull"), false);
    EXPECT_EQ(ReadText(stream, "type"), "{scale}");
    EXPECT_TRUE(ReadObject(stream, "content",
                           [](const IReadDataStream& content)
                           { return ReadAs<float>(content, "factor") == 3.0F; }));
}

TEST(CTypeSerializer, ANullObjectIsWrittenAsSuchAndReadsBackNull)
{
    CMemDataObject stream;
    EXPECT_TRUE(CTypeSerializer(nullptr).Serialize(stream));
    EXPECT_EQ(stream.GetCount(), 1);
    EXPECT_EQ(ReadAs<bool>(stream, "isNull"), true);
    TRuntimeDeSerializer<Math::IFunction> reader;
    EXPECT_TRUE(reader.Deserialize(stream));
    EXPECT_EQ(reader.Get(), nullptr);
}

TEST(CTypeSerializer, AnObjectWithoutAKeyIsWrittenAndCannotBeRead)
{
    CMemDataObject stream;
    const CNameless nameless;
    EXPECT_TRUE(CTypeSerializer(&nameless).Serialize(stream));
    EXPECT_EQ(stream.GetCount(), 1);
    EXPECT_EQ(ReadAs<bool>(stream, "isNull"), false);
    TRuntimeDeSerializer<Math::IFunction> reader;
    EXPECT_FALSE(reader.Deserialize(stream));
    EXPECT_EQ(reader.Get(), nullptr);
}

TEST(CTypeSerializer, FailsWithTheContent)
{
    struct CFailing : CScale
    {
        bool Serialize(IWriteDataStream&) const override { return false; }
    };
    CMemDataObject stream;
    const CFailing failing;
    EXPECT_FALSE(CTypeSerializer(&failing).Serialize(stream));
}

TEST(TRuntimeDeSerializer, MakesTheObjectAndReadsItsContent)
{
    CMemDataObject stream;
    const CScale scale(3.0F);
    CTypeSerializer(&scale).Serialize(stream);
    TRuntimeDeSerializer<Math::IFunction> reader;
    ASSERT_TRUE(reader.Deserialize(stream));
    EXPECT_EQ((*reader.Get())(2.0F), 6.0F);
    const std::unique_ptr<Math::IFunction> detached(reader.Detach());
    EXPECT_NE(detached, nullptr);
    EXPECT_EQ(reader.Get(), nullptr);
}

TEST(TRuntimeDeSerializer, WorksForEachFunctionInterface)
{
    CMemDataObject stream;
    const CSum sum;
    CTypeSerializer(&sum).Serialize(stream);
    TRuntimeDeSerializer<Math::IBinaryFunction> binary;
    ASSERT_TRUE(binary.Deserialize(stream));
    ASSERT_NE(binary.Get(), nullptr);
    EXPECT_EQ((*binary.Get())(1.0F, 2.0F), 3.0F);

    stream.Clear();
    const CNine nine;
    CTypeSerializer(&nine).Serialize(stream);
    TRuntimeDeSerializer<Math::IConstant> constant;
    ASSERT_TRUE(constant.Deserialize(stream));
    ASSERT_NE(constant.Get(), nullptr);
    EXPECT_EQ((*constant.Get())(), 9.0F);
}

TEST(TRuntimeDeSerializer, RefusesAClassThatIsNotRegisteredAsTheInterface)
{
    CMemDataObject stream;
    const CSum sum;
    CTypeSerializer(&sum).Serialize(stream);
    TRuntimeDeSerializer<Math::IFunction> reader;
    EXPECT_FALSE(reader.Deserialize(stream));

    stream.Clear();
    const CUnknown unknown;
    CTypeSerializer(&unknown).Serialize(stream);
    EXPECT_FALSE(reader.Deserialize(stream));
    EXPECT_EQ(reader.Get(), nullptr);
}

TEST(TRuntimeDeSerializer, HasNoResultWhereAnythingIsMissing)
{
    CMemDataObject whole;
    const CScale scale;
    CTypeSerializer(&scale).Serialize(whole);
    TRuntimeDeSerializer<Math::IFunction> reader;
    for (const char* key : {"isNull", "type", "content"})
    {
        EXPECT_TRUE(reader.Deserialize(whole));
        CMemDataObject part;
        CTypeSerializer(&scale).Serialize(part);
        part.Remove(key);
        EXPECT_FALSE(reader.Deserialize(part)) << key;
        EXPECT_EQ(reader.Get(), nullptr) << key;
    }
    // Content that the class cannot read.
    CMemDataObject empty;
    CTypeSerializer(&scale).Serialize(empty);
    WriteObject(empty, "content", [](IWriteDataStream&) { return true; });
    EXPECT_FALSE(reader.Deserialize(empty));
    // A null text for a key.
    whole.Write("type", static_cast<const char*>(nullptr));
    EXPECT_FALSE(reader.Deserialize(whole));
}

} // namespace
} // namespace Mirel::Serialization
