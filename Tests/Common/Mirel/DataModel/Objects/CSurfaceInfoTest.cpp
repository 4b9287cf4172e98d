#include "Mirel/DataModel/Objects/CSurfaceInfo.h"

#include "Mirel/Containers/TDynamicCollection.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>
#include <type_traits>

using namespace Mirel::DataModel::Objects;
using Mirel::Math::CConstantBinaryFunction;
using Mirel::Math::IBinaryFunction;
using Tests::CEventCounter;

namespace
{

CParamInfo Axis(const char* name, float defaultValue)
{
    return {2, -1.0F, 1.0F, defaultValue, name, "s", ""};
}

CSurfaceInfo Sample(const IBinaryFunction* defaultFunction = nullptr)
{
    return {Axis("x", 0.25F), Axis("y", 0.5F), Axis("z", 0.75F), "Surface", "A surface", defaultFunction};
}

float ValueOf(const IBinaryFunction& function)
{
    return function(0.0F, 1.0F);
}

void ExpectIsSample(const CSurfaceInfo& info)
{
    EXPECT_STREQ(info.GetXInfo().GetName(), "x");
    EXPECT_STREQ(info.GetYInfo().GetName(), "y");
    EXPECT_STREQ(info.GetZInfo().GetName(), "z");
    EXPECT_EQ(info.GetXInfo().GetDefault(), 0.25F);
    EXPECT_EQ(info.GetZInfo().GetDefault(), 0.75F);
    EXPECT_STREQ(info.GetName(), "Surface");
    EXPECT_STREQ(info.GetComment(), "A surface");
}

} // namespace

TEST(CSurfaceInfo, EmptyFormHasEmptyTextsAndEmptyAxes)
{
    const CSurfaceInfo info;

    EXPECT_STREQ(info.GetName(), "");
    EXPECT_STREQ(info.GetComment(), "");
    EXPECT_EQ(info.GetXInfo().GetType(), 2);
    EXPECT_STREQ(info.GetXInfo().GetName(), "");
    EXPECT_EQ(info.GetYInfo().GetType(), 2);
    EXPECT_STREQ(info.GetYInfo().GetName(), "");
    EXPECT_EQ(info.GetZInfo().GetType(), 2);
    EXPECT_STREQ(info.GetZInfo().GetName(), "");
    EXPECT_EQ(info.GetExplicitDefaultFunction(), nullptr);
    EXPECT_EQ(ValueOf(info.GetDefaultFunction()), 0.0F);
}

TEST(CSurfaceInfo, ConstructionCopiesAxesAndTexts)
{
    ExpectIsSample(Sample());
}

TEST(CSurfaceInfo, NullTextsStayNull)
{
    CSurfaceInfo info(Axis("x", 0.25F), Axis("y", 0.5F), Axis("z", 0.75F), nullptr, nullptr);
    EXPECT_EQ(info.GetName(), nullptr);
    EXPECT_EQ(info.GetComment(), nullptr);

    CSurfaceInfo target = Sample();
    target.CopyFrom(info);
    EXPECT_EQ(target.GetName(), nullptr);
    EXPECT_EQ(target.GetComment(), nullptr);
}

TEST(CSurfaceInfo, ChangeOfAnAxisFiresTheDescription)
{
    CSurfaceInfo info = Sample();
    CEventCounter changes(info.GetChangedEventProvider());
    for (CParamInfo* axis : {&info.GetXInfo(), &info.GetYInfo(), &info.GetZInfo()})
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

TEST(CSurfaceInfo, EverySetterFires)
{
    const CConstantBinaryFunction function(1.0F);
    CSurfaceInfo info = Sample();
    CEventCounter changes(info.GetChangedEventProvider());

    info.SetName("Surface");
    EXPECT_EQ(changes.Take(), 1);
    info.SetComment("A surface");
    EXPECT_EQ(changes.Take(), 1);
    info.SetDefaultFunction(&function);
    EXPECT_EQ(changes.Take(), 1);
    ExpectIsSample(info);
    EXPECT_EQ(&info.GetDefaultFunction(), &function);
}

TEST(CSurfaceInfo, DefaultFunctionIsTheConstantAtTheDefaultOfZAndStaysTheSameObject)
{
    CSurfaceInfo info = Sample();

    const IBinaryFunction& function = info.GetDefaultFunction();
    EXPECT_EQ(function(0.0F, 1.0F), 0.75F);
    EXPECT_NE(dynamic_cast<const CConstantBinaryFunction*>(&function), nullptr);
    EXPECT_EQ(&info.GetDefaultFunction(), &function);

    info.SetName("other");
    info.SetComment("other");
    info.GetZInfo().SetDefault(0.75F);
    EXPECT_EQ(&info.GetDefaultFunction(), &function);
}

TEST(CSurfaceInfo, DefaultFunctionFollowsTheDefaultOfZ)
{
    CSurfaceInfo info = Sample();
    EXPECT_EQ(ValueOf(info.GetDefaultFunction()), 0.75F);

    info.GetZInfo().SetDefault(-0.5F);
    EXPECT_EQ(ValueOf(info.GetDefaultFunction()), -0.5F);
    info.GetXInfo().SetDefault(0.125F);
    EXPECT_EQ(ValueOf(info.GetDefaultFunction()), -0.5F);
    info.GetZInfo().CopyFrom(Axis("z", 1.0F));
    EXPECT_EQ(ValueOf(info.GetDefaultFunction()), 1.0F);
}

TEST(CSurfaceInfo, ListenerOfAChangeOfZSeesTheNewDefaultFunction)
{
    CSurfaceInfo info = Sample();
    class CReader : public Mirel::Core::ICommand
    {
    public:
        explicit CReader(const CSurfaceInfo& info_) : info(info_) {}
        void Execute() override { seen = ValueOf(info.GetDefaultFunction()); }
        const CSurfaceInfo& info;
        float seen = 0.0F;
    } reader(info);
    reader.Execute();
    info.GetChangedEventProvider().Connect(reader);

    info.GetZInfo().SetDefault(-0.5F);

    EXPECT_EQ(reader.seen, -0.5F);
}

TEST(CSurfaceInfo, ExplicitDefaultFunctionIsNeitherOwnedNorCloned)
{
    const CConstantBinaryFunction function(3.0F);
    {
        CSurfaceInfo info = Sample(&function);
        EXPECT_EQ(&info.GetDefaultFunction(), &function);
        EXPECT_EQ(info.GetExplicitDefaultFunction(), &function);
        info.GetZInfo().SetDefault(-0.5F);
        EXPECT_EQ(&info.GetDefaultFunction(), &function);

        info.SetDefaultFunction(nullptr);
        EXPECT_EQ(ValueOf(info.GetDefaultFunction()), -0.5F);
        info.SetDefaultFunction(&function);
        EXPECT_EQ(&info.GetDefaultFunction(), &function);
    }
    EXPECT_EQ(ValueOf(function), 3.0F);
}

TEST(CSurfaceInfo, CopyFromTakesEverythingAndFiresOnce)
{
    const CConstantBinaryFunction function(3.0F);
    const CSurfaceInfo source = Sample(&function);
    CSurfaceInfo target;
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

TEST(CSurfaceInfo, CopyFromDropsTheCachedDefaultFunction)
{
    CSurfaceInfo target;
    EXPECT_EQ(ValueOf(target.GetDefaultFunction()), 0.0F);

    target.CopyFrom(Sample());

    EXPECT_EQ(target.GetExplicitDefaultFunction(), nullptr);
    EXPECT_EQ(ValueOf(target.GetDefaultFunction()), 0.75F);
}

TEST(CSurfaceInfo, CopyOutlivesADescriptionWithACachedDefaultFunction)
{
    auto source = std::make_unique<CSurfaceInfo>(Sample());
    EXPECT_EQ(ValueOf(source->GetDefaultFunction()), 0.75F);
    CSurfaceInfo target;
    target.CopyFrom(*source);
    source.reset();

    EXPECT_EQ(ValueOf(target.GetDefaultFunction()), 0.75F);
}

TEST(CSurfaceInfo, AxesStillFireTheDescriptionAfterCopyFrom)
{
    CSurfaceInfo info;
    info.CopyFrom(Sample());
    CEventCounter changes(info.GetChangedEventProvider());
    for (CParamInfo* axis : {&info.GetXInfo(), &info.GetYInfo(), &info.GetZInfo()})
    {
        axis->SetMin(-7.0F);
        EXPECT_EQ(changes.Take(), 1);
    }
}

TEST(CSurfaceInfo, ListenerThatCopiesAgainEndsTheRound)
{
    const CSurfaceInfo source = Sample();
    CSurfaceInfo target;
    class CRestorer : public Mirel::Core::ICommand
    {
    public:
        CRestorer(CSurfaceInfo& target_, const CSurfaceInfo& source_) : target(target_), source(source_) {}

        void Execute() override
        {
            ++count;
            target.CopyFrom(source);
        }

        CSurfaceInfo& target;
        const CSurfaceInfo& source;
        int count = 0;
    } restorer(target, source);
    target.GetChangedEventProvider().Connect(restorer);

    target.GetXInfo().SetMax(9.0F);

    EXPECT_EQ(restorer.count, 1);
    ExpectIsSample(target);
    target.GetXInfo().SetMax(9.0F);
    EXPECT_EQ(restorer.count, 2);
}

TEST(CSurfaceInfo, CopyFromItselfKeepsEverything)
{
    CSurfaceInfo info = Sample();
    info.CopyFrom(info);
    ExpectIsSample(info);
    EXPECT_EQ(ValueOf(info.GetDefaultFunction()), 0.75F);
}

TEST(CSurfaceInfo, CopyHasEverythingButTheListenersAndForwardsItsOwnAxes)
{
    CSurfaceInfo source = Sample();
    CEventCounter sourceChanges(source.GetChangedEventProvider());

    CSurfaceInfo copy(source);
    CSurfaceInfo viaInterface(static_cast<const IConstSurfaceInfo&>(source));
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

TEST(CSurfaceInfo, AssignmentKeepsTheListenersAndFiresOnce)
{
    const CSurfaceInfo source = Sample();
    CSurfaceInfo target;
    CEventCounter changes(target.GetChangedEventProvider());

    target = source;

    EXPECT_EQ(changes.Take(), 1);
    ExpectIsSample(target);
    target.GetXInfo().SetMax(9.0F);
    EXPECT_EQ(changes.Take(), 1);
}

TEST(CSurfaceInfo, TablesOfThemAreShownAsConstAndCopied)
{
    using Infos = Mirel::Containers::TDynamicCollection<CSurfaceInfo, IConstSurfaceInfo>;
    Infos table;
    table.Add(Sample());
    const Infos copy(table);
    table.Clear();

    const Mirel::Containers::TIConstVector<IConstSurfaceInfo>& shown = copy;
    ASSERT_EQ(shown.GetCount(), 1);
    EXPECT_STREQ(shown[0].GetXInfo().GetName(), "x");
}

TEST(CSurfaceInfo, WritableInterfaceGivesWritableAxes)
{
    CSurfaceInfo info;
    ISurfaceInfo& writable = info;
    const IConstSurfaceInfo& readable = writable;

    static_assert(std::is_same_v<decltype(writable.GetXInfo()), IParamInfo&>);
    static_assert(std::is_same_v<decltype(readable.GetXInfo()), const IConstParamInfo&>);
    writable.GetXInfo().SetName("x");
    EXPECT_STREQ(readable.GetXInfo().GetName(), "x");
    writable.GetYInfo().SetName("y");
    EXPECT_STREQ(readable.GetYInfo().GetName(), "y");
    writable.GetZInfo().SetName("z");
    EXPECT_STREQ(readable.GetZInfo().GetName(), "z");
}
