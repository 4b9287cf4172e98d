#include "Mirel/DataModel/Objects/CConstantToCaptureParamAdapter.h"

#include "Common/Mirel/DataModel/Objects/LinkRig.h"
#include "Mirel/Math/CConstant.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Mirel::DataModel::Objects;
using Mirel::Math::CConstant;
using Tests::CEventCounter;
using Tests::RangeInfo;

namespace
{

class CCountedConstant : public CConstant
{
public:
    explicit CCountedConstant(int& deaths_) : deaths(deaths_) {}
    CCountedConstant(const CCountedConstant&) = delete;
    CCountedConstant& operator=(const CCountedConstant&) = delete;
    ~CCountedConstant() override { ++deaths; }

private:
    int& deaths;
};

} // namespace

TEST(CConstantToCaptureParamAdapter, ShowsTheConstantAsAParameter)
{
    const CConstant constant(25.0f);
    const CConstantToCaptureParamAdapter adapter(RangeInfo(0.0f, 10.0f), &constant, false);
    const IConstCaptureParam& param = adapter;
    EXPECT_EQ(param.GetValue(), 25.0f);
    EXPECT_EQ(param.GetInfo().GetMax(), 10.0f);
    EXPECT_FALSE(param.IsCaptured());
    CEventCounter begins(param.GetBeginCaptureEventProvider());
    CEventCounter ends(param.GetEndCaptureEventProvider());
}

TEST(CConstantToCaptureParamAdapter, IsZeroWithoutAConstant)
{
    CConstantToCaptureParamAdapter adapter(RangeInfo(0.0f, 10.0f));
    EXPECT_EQ(adapter.GetValue(), 0.0f);
    adapter.Update();
    EXPECT_EQ(adapter.GetValue(), 0.0f);
}

TEST(CConstantToCaptureParamAdapter, AnUpdateFiresTheChangeIfThereIsOneAndTheSetAlways)
{
    CConstant constant(1.0f);
    CConstantToCaptureParamAdapter adapter(RangeInfo(0.0f, 10.0f), &constant, false);
    CEventCounter changes(adapter.GetValueChangedEventProvider());
    CEventCounter sets(adapter.GetSetEventProvider());
    constant.SetValue(2.0f);
    EXPECT_EQ(adapter.GetValue(), 1.0f);
    adapter.Update();
    EXPECT_EQ(adapter.GetValue(), 2.0f);
    adapter.Update();
    constant.SetValue(std::numeric_limits<float>::quiet_NaN());
    adapter.Update();
    EXPECT_EQ(adapter.GetValue(), 2.0f);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(sets.Take(), 3);
}

TEST(CConstantToCaptureParamAdapter, AnOwnedConstantDiesWithItOrWithItsSuccessor)
{
    int deaths = 0;
    const CConstant borrowed(7.0f);
    {
        CConstantToCaptureParamAdapter adapter(RangeInfo(0.0f, 10.0f), new CCountedConstant(deaths), true);
        adapter.SetConstant(&borrowed, false);
        EXPECT_EQ(deaths, 1);
        EXPECT_EQ(adapter.GetValue(), 7.0f);
        adapter.SetConstant(new CCountedConstant(deaths), true);
        EXPECT_EQ(adapter.GetValue(), 0.0f);
    }
    EXPECT_EQ(deaths, 2);
}
