#include "Mirel/DataModel/Objects/CCurveInfo.h"

#include "Mirel/Containers/TDynamicCollection.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

using namespace Mirel::DataModel::Objects;
using Mirel::Math::CConstantFunction;
using Mirel::Math::IFunction;
using Tests::CEventCounter;

namespace
{

CParamInfo Axis(const char* name, float defaultValue)
{
    return {2, -1.0F, 1.0F, defaultValue, name, "s", ""};
}

CCurveInfo Sample(const IFunction* defaultFunction = nullptr)
{
    return {Axis("x", 0.25F), Axis("y", 0.5F), "Curve", "A curve", defaultFunction};
}

float ValueOf(const IFunction& function)
{
    return function(0.0F);
}

void ExpectIsSample(const CCurveInfo& info)
{
    EXPECT_STREQ(info.GetXInfo().GetName(), "x");
    EXPECT_STREQ(info.GetYInfo().GetName(), "y");
    EXPECT_EQ(info.GetXInfo().GetDefault(), 0.25F);
    EXPECT_EQ(info.GetYInfo().GetDefault(), 0.5F);
    EXPECT_STREQ(info.GetName(), "Curve");
    EXPECT_STREQ(info.GetComment(), "A curve");
}

} // namespace

TEST(CCurveInfo, EmptyFormHasEmptyTextsAndEmptyAxes)
{
    const CCurveInfo info;

    EXPECT_STREQ(info.GetName(), "");
    EXPECT_STREQ(info.GetComment(), "");
    EXPECT_EQ(info.GetXInfo().GetType(), 2);
    EXPECT_STREQ(info.GetXInfo().GetName(), "");
    EXPECT_EQ(info.GetYInfo().GetType(), 2);
    EXPECT_STREQ(info.GetYInfo().GetName(), "");
    EXPECT_EQ(info.GetExplicitDefaultFunction(), nullptr);
    EXPECT_EQ(ValueOf(info.GetDefaultFunction()), 0.0F);
}

TEST(CCurveInfo, ConstructionCopiesAxesAndTexts)
{
    ExpectIsSample(Sample());
}

TEST(CCurveInfo, NullTextsStayNull)
{
    CCurveInfo info(Axis("x", 0.25F), Axis("y", 0.5F), nullptr, nullptr);
    EXPECT_EQ(info.GetName(), nullptr);
    EXPECT_EQ(info.GetComment(), nullptr);

    CCurveInfo target = Sample();
    target.CopyFrom(info);
    EXPECT_EQ(target.GetName(), nullptr);
    EXPECT_EQ(target.GetComment(), nullptr);
}

TEST(CCurveInfo, ChangeOfAnAxisFiresTheDescription)
{
    CCurveInfo info = Sample();
    CEventCounter changes(info.GetChangedEventProvider());
    for (CParamInfo* axis : {&info.GetXInfo(), &info.GetYInfo()})
    {
        axis->SetMax(2.0F);
        EXPECT_EQ(changes.Take(), 1);
        axis->SetMax(2.0F);
        EXPECT_EQ(changes.Take(), 0);
        axis->SetName("t");
        EXPECT_EQ(changes.Take(), 1);
        axis->CopyFrom(Axis("t", 0.0F));
        EXPECT_EQ(changes.Take(), 1);
    }
}

TEST(CCurveInfo, EverySetterFires)
{
    const CConstantFunction function(1.0F);
    CCurveInfo info = Sample();
    CEventCounter changes(info.GetChangedEventProvider());

    info.SetName("Curve");
    EXPECT_EQ(changes.Take(), 1);
    info.SetComment("A curve");
    EXPECT_EQ(changes.Take(), 1);
    info.SetDefaultFunction(&function);
    EXPECT_EQ(changes.Take(), 1);
    ExpectIsSample(info);
    EXPECT_EQ(&info.GetDefaultFunction(), &function);
}

TEST(CCurveInfo, DefaultFunctionIsTheConstantAtTheDefaultOfYAndStaysTheSameObject)
{
    CCurveInfo info = Sample();

    const IFunction& function = info.GetDefaultFunction();
    EXPECT_EQ(function(0.0F), 0.5F);
    EXPECT_NE(dynamic_cast<const CConstantFunction*>(&function), nullptr);
    EXPECT_EQ(&info.GetDefaultFunction(), &function);

    info.SetName("other");
    info.SetComment("other");
    info.GetYInfo().SetDefault(0.5F);
    EXPECT_EQ(&info.GetDefaultFunction(), &function);
}

TEST(CCurveInfo, DefaultFunctionFollowsTheDefaultOfY)
{
    CCurveInfo info = Sample();
    EXPECT_EQ(ValueOf(info.GetDefaultFunction()), 0.5F);

    info.GetYInfo().SetDefault(-0.5F);
    EXPECT_EQ(ValueOf(info.GetDefaultFunction()), -0.5F);
    info.GetXInfo().SetDefault(0.125F);
    EXPECT_EQ(ValueOf(info.GetDefaultFunction()), -0.5F);
    info.GetYInfo().CopyFrom(Axis("y", 1.0F));
    EXPECT_EQ(ValueOf(info.GetDefaultFunction()), 1.0F);
}

TEST(CCurveInfo, ListenerOfAChangeOfYSeesTheNewDefaultFunction)
{
    CCurveInfo info = Sample();
    class CReader : public Mirel::Core::ICommand
    {
    public:
        explicit CReader(const CCurveInfo& info_) : info(info_) {}
        void Execute() override { seen = ValueOf(info.GetDefaultFunction()); }
        const CCurveInfo& info;
        float seen = 0.0F;
    } reader(info);
    reader.Execute();
    info.GetChangedEventProvider().Connect(reader);

    info.GetYInfo().SetDefault(-0.5F);

    EXPECT_EQ(reader.seen, -0.5F);
}

TEST(CCurveInfo, ExplicitDefaultFunctionIsNeitherOwnedNorCloned)
{
    const CConstantFunction function(3.0F);
    {
        CCurveInfo info = Sample(&function);
        EXPECT_EQ(&info.GetDefaultFunction(), &function);
        EXPECT_EQ(info.GetExplicitDefaultFunction(), &function);
        info.GetYInfo().SetDefault(-0.5F);
        EXPECT_EQ(&info.GetDefaultFunction(), &function);

        info.SetDefaultFunction(nullptr);
        EXPECT_EQ(ValueOf(info.GetDefaultFunction()), -0.5F);
        info.SetDefaultFunction(&function);
        EXPECT_EQ(&info.GetDefaultFunction(), &function);
    }
    EXPECT_EQ(ValueOf(function), 3.0F);
}

TEST(CCurveInfo, CopyFromTakesEverythingAndFiresOnce)
{
    const CConstantFunction function(3.0F);
    const CCurveInfo source = Sample(&function);
    CCurveInfo target;
    EXPECT_EQ(ValueOf(target.GetDefaultFunction()), 0.0F);
    CEventCounter changes(target.GetChangedEventProvider());
    CEventCounter axisChanges(target.GetXInfo().GetChangedEventProvider());
    CEventCounter sourceChanges(source.GetChangedEventProvider());

    target.CopyFrom(source);

    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(axisChanges.Take(), 1);
    EXPECT_EQ(sourceChanges.Take(), 0);
    ExpectIsSample(target);
    EXPECT_EQ(&target.GetDefaultFunction(), &function);
}

TEST(CCurveInfo, CopyFromDropsTheCachedDefaultFunction)
{
    CCurveInfo target;
    EXPECT_EQ(ValueOf(target.GetDefaultFunction()), 0.0F);

    target.CopyFrom(Sample());

    EXPECT_EQ(target.GetExplicitDefaultFunction(), nullptr);
    EXPECT_EQ(ValueOf(target.GetDefaultFunction()), 0.5F);
}

TEST(CCurveInfo, CopyOutlivesADescriptionWithACachedDefaultFunction)
{
    auto source = std::make_unique<CCurveInfo>(Sample());
    EXPECT_EQ(ValueOf(source->GetDefaultFunction()), 0.5F);
    CCurveInfo target;
    target.CopyFrom(*source);
    source.reset();

    EXPECT_EQ(ValueOf(target.GetDefaultFunction()), 0.5F);
}

TEST(CCurveInfo, AxesStillFireTheDescriptionAfterCopyFrom)
{
    CCurveInfo info;
    info.CopyFrom(Sample());
    CEventCounter changes(info.GetChangedEventProvider());
    for (CParamInfo* axis : {&info.GetXInfo(), &info.GetYInfo()})
    {
        axis->SetMin(-7.0F);
        EXPECT_EQ(changes.Take(), 1);
    }
}

TEST(CCurveInfo, ListenerThatCopiesAgainEndsTheRound)
{
    const CCurveInfo source = Sample();
    CCurveInfo target;
    class CRestorer : public Mirel::Core::ICommand
    {
    public:
        CRestorer(CCurveInfo& target_, const CCurveInfo& source_) : target(target_), source(source_) {}

        void Execute() override
        {
            ++count;
            target.CopyFrom(source);
        }

        CCurveInfo& target;
        const CCurveInfo& source;
        int count = 0;
    } restorer(target, source);
    target.GetChangedEventProvider().Connect(restorer);

    target.GetXInfo().SetMax(9.0F);

    EXPECT_EQ(restorer.count, 1);
    ExpectIsSample(target);
    target.GetXInfo().SetMax(9.0F);
    EXPECT_EQ(restorer.count, 2);
}

TEST(CCurveInfo, CopyFromItselfKeepsEverything)
{
    CCurveInfo info = Sample();
    info.CopyFrom(info);
    ExpectIsSample(info);
    EXPECT_EQ(ValueOf(info.GetDefaultFunction()), 0.5F);
}

TEST(CCurveInfo, CopyHasEverythingButTheListenersAndForwardsItsOwnAxes)
{
    CCurveInfo source = Sample();
    CEventCounter sourceChanges(source.GetChangedEventProvider());

    CCurveInfo copy(source);
    CCurveInfo viaInterface(static_cast<const IConstCurveInfo&>(source));
    ExpectIsSample(copy);
    ExpectIsSample(viaInterface);

    CEventCounter copyChanges(copy.GetChangedEventProvider());
    copy.GetXInfo().SetMax(5.0F);
    EXPECT_EQ(copyChanges.Take(), 1);
    EXPECT_EQ(sourceChanges.Take(), 0);
    EXPECT_EQ(source.GetXInfo().GetMax(), 1.0F);
    source.GetXInfo().SetMax(6.0F);
    EXPECT_EQ(copyChanges.Take(), 0);
}

TEST(CCurveInfo, AssignmentKeepsTheListenersAndFiresOnce)
{
    const CCurveInfo source = Sample();
    CCurveInfo target;
    CEventCounter changes(target.GetChangedEventProvider());

    target = source;

    EXPECT_EQ(changes.Take(), 1);
    ExpectIsSample(target);
    target.GetXInfo().SetMax(9.0F);
    EXPECT_EQ(changes.Take(), 1);
}

TEST(CCurveInfo, TablesOfThemAreShownAsConstAndCopied)
{
    using Infos = Mirel::Containers::TDynamicCollection<CCurveInfo, IConstCurveInfo>;
    Infos table;
    table.Add(Sample());
    const Infos copy(table);
    table.Clear();

    const Mirel::Containers::TIConstVector<IConstCurveInfo>& shown = copy;
    ASSERT_EQ(shown.GetCount(), 1);
    EXPECT_STREQ(shown[0].GetXInfo().GetName(), "x");
}

TEST(CCurveInfo, WritableInterfaceGivesWritableAxes)
{
    CCurveInfo info;
    ICurveInfo& writable = info;
    const IConstCurveInfo& readable = writable;

    static_assert(std::is_same_v<decltype(writable.GetXInfo()), IParamInfo&>);
    static_assert(std::is_same_v<decltype(readable.GetXInfo()), const IConstParamInfo&>);
    writable.GetXInfo().SetName("x");
    EXPECT_STREQ(readable.GetXInfo().GetName(), "x");
    writable.GetYInfo().SetName("y");
    EXPECT_STREQ(readable.GetYInfo().GetName(), "y");
}
