#include "Mirel/DataModel/Objects/CCaptureStringLink.h"

#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;

TEST(CCaptureStringLink, HandsTheTextOnUnchanged)
{
    CCaptureString source;
    CCaptureString target;
    CCaptureStringLink link;
    link.SetSource(&source);
    link.SetTarget(&target);
    link.Enable(true);

    source.SetValue(" {value} %d \xC2\xB5 ");
    EXPECT_STREQ(target.GetValue(), " {value} %d \xC2\xB5 ");
    source.SetValue(nullptr);
    EXPECT_STREQ(target.GetValue(), "");
}

TEST(CCaptureStringLink, TheSameTextAgainFiresNothing)
{
    CCaptureString source;
    CCaptureString target;
    CCaptureStringLink link;
    link.SetSource(&source);
    link.SetTarget(&target);
    target.SetValue("one");
    link.Enable(true);
    target.SetValue("one");
    CEventCounter changes(target.GetValueChangedEventProvider());
    source.SetValue("one");
    EXPECT_EQ(changes.Take(), 0);
}
