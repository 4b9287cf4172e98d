#include "Mirel/DataModel/Objects/CParamInfo.h"

#include "Common/Mirel/DataModel/Objects/ValueText.h"
#include "Mirel/Containers/TDynamicCollection.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/CParamValueToText.h"
#include "Support/AllocationCounter.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::ValueText;

namespace
{

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

/// Prints a fixed text and counts the converters alive.
class CCountedConverter : public IParamValueToText
{
public:
    explicit CCountedConverter(int& alive_) : alive(alive_) { ++alive; }
    CCountedConverter(const CCountedConverter& other) : IParamValueToText(), alive(other.alive) { ++alive; }
    CCountedConverter& operator=(const CCountedConverter&) = delete;
    ~CCountedConverter() override { --alive; }

    void ToText(float, char*& text) const override { text = new char[2]{'c', '\0'}; }
    IParamValueToText* Clone() const override { return new CCountedConverter(*this); }

private:
    int& alive;
};

CParamInfo Delay()
{
    return {2, 0.0F, 300.0F, 5.0F, "Delay", "ms", "How late"};
}

void ExpectIsDelay(const CParamInfo& info)
{
    EXPECT_EQ(info.GetType(), 2);
    EXPECT_EQ(info.GetMin(), 0.0F);
    EXPECT_EQ(info.GetMax(), 300.0F);
    EXPECT_EQ(info.GetDefault(), 5.0F);
    EXPECT_STREQ(info.GetName(), "Delay");
    EXPECT_STREQ(info.GetUnit(), "ms");
    EXPECT_STREQ(info.GetComment(), "How late");
}

} // namespace

TEST(CParamInfo, EmptyFormIsARealOfZerosWithEmptyTexts)
{
    const CParamInfo info;

    EXPECT_EQ(info.GetType(), 2);
    EXPECT_EQ(info.GetMin(), 0.0F);
    EXPECT_EQ(info.GetMax(), 0.0F);
    EXPECT_EQ(info.GetDefault(), 0.0F);
    EXPECT_STREQ(info.GetName(), "");
    EXPECT_STREQ(info.GetUnit(), "");
    EXPECT_STREQ(info.GetComment(), "");
    EXPECT_EQ(ValueText(info.GetValueToText(), 2.6F), "2.60");
}

TEST(CParamInfo, ConstructionTakesTypeMinMaxDefaultNameUnitComment)
{
    ExpectIsDelay(Delay());
}

TEST(CParamInfo, TextsAreCopies)
{
    char name[] = "Delay";
    const CParamInfo info(2, 0.0F, 1.0F, 0.0F, name, name, name);
    name[0] = 'X';

    EXPECT_STREQ(info.GetName(), "Delay");
    EXPECT_STREQ(info.GetUnit(), "Delay");
    EXPECT_STREQ(info.GetComment(), "Delay");
}

TEST(CParamInfo, NullTextsStayNull)
{
    CParamInfo info(2, 0.0F, 1.0F, 0.0F, nullptr, nullptr, nullptr);
    EXPECT_EQ(info.GetName(), nullptr);
    EXPECT_EQ(info.GetUnit(), nullptr);
    EXPECT_EQ(info.GetComment(), nullptr);

    info.SetName("a");
    info.SetName(nullptr);
    EXPECT_EQ(info.GetName(), nullptr);
}

TEST(CParamInfo, WithoutAConverterWholeKindsPrintNoDecimalsAndOthersTwo)
{
    const struct
    {
        int type;
        const char* text;
    } cases[] = {{0, "3"}, {1, "3"}, {2, "2.60"}, {3, "3"}, {4, "2.60"}, {-1, "2.60"}};
    for (const auto& each : cases)
    {
        const CParamInfo info(each.type, 0.0F, 10.0F, 0.0F, "", "", "");
        EXPECT_EQ(ValueText(info.GetValueToText(), 2.6F), each.text) << "type " << each.type;
    }
}

TEST(CParamInfo, OwnConverterHasThePlainPatternAndNoPrefix)
{
    const CParamInfo info(1, 0.0F, 10.0F, 0.0F, "", "", "");
    const auto* converter = dynamic_cast<const CParamValueToText*>(&info.GetValueToText());

    ASSERT_NE(converter, nullptr);
    EXPECT_STREQ(converter->GetPattern(), "{value}");
    EXPECT_STREQ(converter->GetFormat(), "%.0f");
    EXPECT_FALSE(converter->IsMetric());
    EXPECT_EQ(converter->GetSignificantDigits(), -1);
}

TEST(CParamInfo, ConverterIsDestroyedWithTheDescriptionOnlyIfOwned)
{
    int alive = 0;
    CCountedConverter borrowed(alive);
    {
        const CParamInfo first(2, 0.0F, 1.0F, 0.0F, "", "", "", new CCountedConverter(alive), true);
        const CParamInfo second(2, 0.0F, 1.0F, 0.0F, "", "", "", &borrowed, false);
        EXPECT_EQ(alive, 2);
        EXPECT_EQ(&second.GetValueToText(), &borrowed);
        EXPECT_EQ(ValueText(first.GetValueToText(), 0.0F), "c");
    }
    EXPECT_EQ(alive, 1);
}

TEST(CParamInfo, NumbersFireOnAChangeOnly)
{
    const struct
    {
        void (CParamInfo::*set)(float);
        float (CParamInfo::*get)() const;
    } numbers[] = {{&CParamInfo::SetMin, &CParamInfo::GetMin},
                   {&CParamInfo::SetDefault, &CParamInfo::GetDefault},
                   {&CParamInfo::SetMax, &CParamInfo::GetMax}};
    for (const auto& number : numbers)
    {
        CParamInfo info;
        CEventCounter changes(info.GetChangedEventProvider());

        (info.*number.set)(0.0F);
        EXPECT_EQ(changes.Take(), 0);
        (info.*number.set)(-0.0F);
        EXPECT_EQ(changes.Take(), 0);
        (info.*number.set)(notANumber);
        EXPECT_EQ(changes.Take(), 0);
        EXPECT_EQ((info.*number.get)(), 0.0F);

        (info.*number.set)(1.0F);
        EXPECT_EQ(changes.Take(), 1);
        EXPECT_EQ((info.*number.get)(), 1.0F);
        (info.*number.set)(-infinity);
        EXPECT_EQ(changes.Take(), 1);
        EXPECT_EQ((info.*number.get)(), -infinity);
    }
}

TEST(CParamInfo, EachNumberHasItsOwnPlace)
{
    CParamInfo info;
    info.SetMin(1.0F);
    info.SetDefault(2.0F);
    info.SetMax(3.0F);

    EXPECT_EQ(info.GetMin(), 1.0F);
    EXPECT_EQ(info.GetDefault(), 2.0F);
    EXPECT_EQ(info.GetMax(), 3.0F);
}

TEST(CParamInfo, ListenerSeesTheNewNumber)
{
    CParamInfo info;
    class CReader : public Mirel::Core::ICommand
    {
    public:
        explicit CReader(const CParamInfo& info_) : info(info_) {}
        void Execute() override { seen = info.GetMax(); }
        const CParamInfo& info;
        float seen = 0.0F;
    } reader(info);
    info.GetChangedEventProvider().Connect(reader);

    info.SetMax(7.0F);

    EXPECT_EQ(reader.seen, 7.0F);
}

TEST(CParamInfo, TypeFiresOnAChangeOnlyAndKeepsTheConverter)
{
    CParamInfo info;
    CEventCounter changes(info.GetChangedEventProvider());

    info.SetType(2);
    EXPECT_EQ(changes.Take(), 0);
    info.SetType(1);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(info.GetType(), 1);
    EXPECT_EQ(ValueText(info.GetValueToText(), 2.6F), "2.60");
}

TEST(CParamInfo, TextsFireEvenIfTheyAreTheSame)
{
    const struct
    {
        void (CParamInfo::*set)(const char*);
        const char* (CParamInfo::*get)() const;
    } texts[] = {{&CParamInfo::SetName, &CParamInfo::GetName},
                 {&CParamInfo::SetUnit, &CParamInfo::GetUnit},
                 {&CParamInfo::SetComment, &CParamInfo::GetComment}};
    for (const auto& text : texts)
    {
        CParamInfo info;
        CEventCounter changes(info.GetChangedEventProvider());

        (info.*text.set)("a");
        (info.*text.set)("a");
        EXPECT_EQ(changes.Take(), 2);
        EXPECT_STREQ((info.*text.get)(), "a");
        (info.*text.set)((info.*text.get)());
        EXPECT_EQ(changes.Take(), 1);
        EXPECT_STREQ((info.*text.get)(), "a");
        (info.*text.set)(nullptr);
        (info.*text.set)(nullptr);
        EXPECT_EQ(changes.Take(), 2);
        EXPECT_EQ((info.*text.get)(), nullptr);
    }
}

TEST(CParamInfo, NewConverterFiresAndTheOldOneGoesIfOwned)
{
    int alive = 0;
    CCountedConverter borrowed(alive);
    CParamInfo info(2, 0.0F, 1.0F, 0.0F, "", "", "", new CCountedConverter(alive), true);
    CEventCounter changes(info.GetChangedEventProvider());

    info.SetValueToText(&borrowed, false);
    EXPECT_EQ(alive, 1);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(&info.GetValueToText(), &borrowed);

    info.SetValueToText(new CCountedConverter(alive), true);
    EXPECT_EQ(alive, 2);
    EXPECT_EQ(changes.Take(), 1);
}

TEST(CParamInfo, GivingTheHeldConverterAgainOnlyChangesItsOwner)
{
    int alive = 0;
    auto* converter = new CCountedConverter(alive);
    {
        CParamInfo info(2, 0.0F, 1.0F, 0.0F, "", "", "", converter, false);
        CEventCounter changes(info.GetChangedEventProvider());
        info.SetValueToText(converter, true);
        EXPECT_EQ(alive, 1);
        EXPECT_EQ(changes.Take(), 1);
        EXPECT_EQ(ValueText(info.GetValueToText(), 0.0F), "c");
    }
    EXPECT_EQ(alive, 0);
}

TEST(CParamInfo, NullConverterBringsBackThePlainOneOfTheType)
{
    int alive = 0;
    CParamInfo info(1, 0.0F, 1.0F, 0.0F, "", "", "", new CCountedConverter(alive), true);

    info.SetValueToText(nullptr, false);

    EXPECT_EQ(alive, 0);
    EXPECT_EQ(ValueText(info.GetValueToText(), 2.6F), "3");
}

TEST(CParamInfo, CopyFromTakesEverythingAndFiresOnce)
{
    CParamInfo source = Delay();
    CEnumToText names({"Up", "Down"});
    source.SetValueToText(&names, false);
    CParamInfo target(1, -1.0F, 1.0F, 0.5F, "a", "b", "c");
    CEventCounter changes(target.GetChangedEventProvider());
    CEventCounter sourceChanges(source.GetChangedEventProvider());

    target.CopyFrom(source);

    EXPECT_EQ(changes.Take(), 1);
    EXPECT_EQ(sourceChanges.Take(), 0);
    ExpectIsDelay(target);
    EXPECT_NE(&target.GetValueToText(), &names);
    EXPECT_EQ(ValueText(target.GetValueToText(), 1.0F), "Down");
}

TEST(CParamInfo, CopyFromOwnsTheClone)
{
    int alive = 0;
    CCountedConverter borrowed(alive);
    {
        const CParamInfo source(2, 0.0F, 1.0F, 0.0F, "", "", "", &borrowed, false);
        CParamInfo target(2, 0.0F, 1.0F, 0.0F, "", "", "", new CCountedConverter(alive), true);
        target.CopyFrom(source);
        EXPECT_EQ(alive, 2);
    }
    EXPECT_EQ(alive, 1);
}

TEST(CParamInfo, CopyFromFiresEvenIfNothingDiffers)
{
    CParamInfo info = Delay();
    CEventCounter changes(info.GetChangedEventProvider());

    info.CopyFrom(Delay());

    EXPECT_EQ(changes.Take(), 1);
}

TEST(CParamInfo, CopyFromANullUnitLeavesANullUnit)
{
    const CParamInfo source(2, 0.0F, 1.0F, 0.0F, nullptr, nullptr, nullptr);
    CParamInfo target = Delay();

    target.CopyFrom(source);

    EXPECT_EQ(target.GetUnit(), nullptr);
    EXPECT_EQ(target.GetName(), nullptr);
    EXPECT_EQ(target.GetComment(), nullptr);
}

TEST(CParamInfo, CopyFromTakesNaN)
{
    CParamInfo target;
    target.CopyFrom(CParamInfo(2, notANumber, 1.0F, 0.0F, "", "", ""));
    EXPECT_NE(target.GetMin(), target.GetMin());
}

TEST(CParamInfo, CopyFromItselfKeepsEverything)
{
    CParamInfo info = Delay();
    info.CopyFrom(info);
    ExpectIsDelay(info);
    EXPECT_EQ(ValueText(info.GetValueToText(), 1.0F), "1.00");
}

TEST(CParamInfo, CopyHasEverythingButTheListeners)
{
    int alive = 0;
    {
        CParamInfo source(2, 0.0F, 300.0F, 5.0F, "Delay", "ms", "How late", new CCountedConverter(alive),
                          true);
        CEventCounter changes(source.GetChangedEventProvider());

        CParamInfo copy(source);
        CParamInfo viaInterface(static_cast<const IConstParamInfo&>(source));
        EXPECT_EQ(alive, 3);
        ExpectIsDelay(copy);
        ExpectIsDelay(viaInterface);

        copy.SetMax(1.0F);
        viaInterface.SetMax(1.0F);
        EXPECT_EQ(changes.Take(), 0);
        ExpectIsDelay(source);
    }
    EXPECT_EQ(alive, 0);
}

TEST(CParamInfo, AssignmentKeepsTheListenersAndFiresOnce)
{
    const CParamInfo source = Delay();
    CParamInfo target;
    CEventCounter changes(target.GetChangedEventProvider());

    target = source;

    EXPECT_EQ(changes.Take(), 1);
    ExpectIsDelay(target);
}

TEST(CParamInfo, CopyWithShortTextsAllocatesTheConverterAlone)
{
    const CParamInfo source = Delay();

    const Tests::CAllocationCounter allocations;
    CParamInfo copy(source);

    EXPECT_EQ(allocations.GetCount(), 1U);
    ExpectIsDelay(copy);
    copy.SetType(1);
    ExpectIsDelay(source);
}

TEST(CParamInfo, TablesOfThemAreShownAsConstAndCopied)
{
    using Infos = Mirel::Containers::TDynamicCollection<CParamInfo, IConstParamInfo>;
    Infos table;
    table.Add(2, 0.0F, 300.0F, 5.0F, "Delay", "ms", "How late");
    table.Add();
    const Infos copy(table);
    table.Clear();

    const Mirel::Containers::TIConstVector<IConstParamInfo>& shown = copy;
    ASSERT_EQ(shown.GetCount(), 2);
    EXPECT_STREQ(shown[0].GetName(), "Delay");
    EXPECT_STREQ(shown[1].GetName(), "");
}

TEST(CParamInfo, WritableInterfaceIsReadThroughTheConstOnes)
{
    CParamInfo info;
    IParamInfo& writable = info;
    const IConstParamInfo& readable = writable;
    const Mirel::DataModel::IConstObjectInfo& object = readable;

    writable.SetName("a");

    EXPECT_STREQ(readable.GetName(), "a");
    EXPECT_STREQ(object.GetName(), "a");
}
