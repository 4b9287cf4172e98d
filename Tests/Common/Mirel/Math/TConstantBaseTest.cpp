#include "Mirel/Math/CConstant.h"
#include "Mirel/Math/CConstantBinaryFunction.h"
#include "Mirel/Math/CConstantFunction.h"

#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <memory>
#include <string>

using namespace Mirel::Math;
using namespace Mirel::Serialization;

namespace
{

/// Keeps floats by key and refuses every other kind.
class CFloatStream : public IReadWriteDataStream
{
public:
    std::map<std::string, float> floats;

    bool Read(const char*, bool&) const override { return false; }
    bool Read(const char*, int&) const override { return false; }

    bool Read(const char* key, float& value) const override
    {
        const auto found = floats.find(key);
        if (found == floats.end())
        {
            return false;
        }
        value = found->second;
        return true;
    }

    bool Read(const char*, double&) const override { return false; }
    bool Read(const char*, char*&) const override { return false; }
    bool Read(const char*, void*&, unsigned&) const override { return false; }
    bool Read(const char*, IDeSerialize&) const override { return false; }
    bool Exists(const char* key) const override { return floats.count(key) != 0; }

    bool Write(const char*, bool) override { return false; }
    bool Write(const char*, int) override { return false; }

    bool Write(const char* key, float value) override
    {
        floats[key] = value;
        return true;
    }

    bool Write(const char*, double) override { return false; }
    bool Write(const char*, const char*) override { return false; }
    bool Write(const char*, const void*, unsigned) override { return false; }
    bool Write(const char*, const ISerialize&) override { return false; }
    void Remove(const char* key) override { floats.erase(key); }
    void Clear() override { floats.clear(); }
};

template <class C>
class TConstantTest : public testing::Test
{
};

using Constants = testing::Types<CConstant, CConstantFunction, CConstantBinaryFunction>;
TYPED_TEST_SUITE(TConstantTest, Constants);

} // namespace

TYPED_TEST(TConstantTest, BeginsAtZeroOrAtTheGivenValue)
{
    EXPECT_EQ(TypeParam().GetValue(), 0.0F);
    EXPECT_EQ(TypeParam(-2.5F).GetValue(), -2.5F);
}

TYPED_TEST(TConstantTest, SavesItsValueAndReadsItBack)
{
    CFloatStream stream;
    EXPECT_TRUE(TypeParam(0.25F).Serialize(stream));
    EXPECT_EQ(stream.floats, (std::map<std::string, float>{{"value", 0.25F}}));

    TypeParam read;
    EXPECT_TRUE(read.Deserialize(stream));
    EXPECT_EQ(read.GetValue(), 0.25F);
}

TYPED_TEST(TConstantTest, MissingValueKeepsThePresentOne)
{
    TypeParam constant(3.0F);
    EXPECT_FALSE(constant.Deserialize(CFloatStream()));
    EXPECT_EQ(constant.GetValue(), 3.0F);
}

TYPED_TEST(TConstantTest, CloneIsIndependent)
{
    TypeParam constant(3.0F);
    const std::unique_ptr<TypeParam> clone(constant.Clone());
    constant.SetValue(4.0F);

    EXPECT_EQ(constant.GetValue(), 4.0F);
    EXPECT_EQ(clone->GetValue(), 3.0F);
}

TEST(CConstantFunction, IsTheValueForAnyX)
{
    const CConstantFunction constant(1.5F);
    const IFunction& function = constant;
    for (const float x : {-1.0F, 0.0F, 1e30F, std::numeric_limits<float>::quiet_NaN()})
    {
        EXPECT_EQ(function(x), 1.5F);
    }
    EXPECT_STREQ(function.GetTypeKey(), "{72E2E475-5248-41cb-BBE2-9E1F1E4BAF30}");
}

TEST(CConstantBinaryFunction, IsTheValueForAnyXAndY)
{
    const CConstantBinaryFunction constant(1.5F);
    const IBinaryFunction& function = constant;
    for (const float x : {-1.0F, 0.0F, 1e30F, std::numeric_limits<float>::quiet_NaN()})
    {
        EXPECT_EQ(function(x, -x), 1.5F);
    }
    EXPECT_STREQ(function.GetTypeKey(), "{D21815E0-885C-4996-B493-90E08E953055}");
}

TEST(CConstant, IsTheValueAndHasNoClassKey)
{
    const CConstant constant(1.5F);
    const IConstant& number = constant;
    EXPECT_EQ(number(), 1.5F);
    EXPECT_EQ(number.GetTypeKey(), nullptr);
}
