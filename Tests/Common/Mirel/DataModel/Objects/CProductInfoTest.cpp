#include "Mirel/DataModel/Objects/CProductInfo.h"

#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;

namespace
{

void ExpectTexts(const IConstProductInfo& info, const char* name, const char* version, const char* legal,
                 const char* description)
{
    EXPECT_STREQ(info.GetName(), name);
    EXPECT_STREQ(info.GetVersion(), version);
    EXPECT_STREQ(info.GetLegal(), legal);
    EXPECT_STREQ(info.GetDescription(), description);
}

} // namespace

TEST(CProductInfo, HoldsNameVersionLegalLineAndDescription)
{
    ExpectTexts(CProductInfo("Oscilloscope", "2.0", "No rights", "Audio"), "Oscilloscope", "2.0", "No rights",
                "Audio");
    ExpectTexts(CProductInfo(), "", "", "", "");
    ExpectTexts(CProductInfo(nullptr, nullptr, nullptr, nullptr), nullptr, nullptr, nullptr, nullptr);
}

TEST(CProductInfo, CopyFromTakesAllTextsAndFiresOnce)
{
    const CProductInfo source("a", "b", nullptr, "d");
    CProductInfo target("w", "x", "y", "z");
    CEventCounter changes(target.GetChangedEventProvider());

    target.CopyFrom(source);

    EXPECT_EQ(changes.Take(), 1);
    ExpectTexts(target, "a", "b", nullptr, "d");
    target.CopyFrom(target);
    ExpectTexts(target, "a", "b", nullptr, "d");
}

TEST(CProductInfo, CopiesHaveNoListenersAndAssignmentKeepsThem)
{
    CProductInfo source("a", "b", "c", "d");
    CEventCounter changes(source.GetChangedEventProvider());
    CProductInfo copy(source);
    CProductInfo viaInterface(static_cast<const IConstProductInfo&>(source));
    copy.CopyFrom(CProductInfo("w", "x", "y", "z"));
    EXPECT_EQ(changes.Take(), 0);
    ExpectTexts(viaInterface, "a", "b", "c", "d");

    source = copy;
    EXPECT_EQ(changes.Take(), 1);
    ExpectTexts(source, "w", "x", "y", "z");
}
