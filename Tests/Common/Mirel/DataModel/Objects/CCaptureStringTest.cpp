#include "Mirel/DataModel/Objects/CCaptureString.h"

#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace Mirel::DataModel::Objects;
using Tests::CEventCounter;
using Tests::CFunctionCommand;

namespace
{

/// Writes down the stored texts and what has been told of them by then.
class CHookedString : public CCaptureString
{
public:
    std::vector<std::string> stored;
    std::vector<std::string> held;

protected:
    void OnTextStored(const char* newText) override
    {
        stored.emplace_back(newText);
        held.emplace_back(GetValue());
    }
};

} // namespace

TEST(CCaptureString, TakesACopyOfTheDescriptionAndBeginsEmpty)
{
    CStringInfo info("Title", "What it says", "untitled");
    const CCaptureString string(info);
    info.SetName("other");

    const IConstCaptureString& readable = string;
    EXPECT_STREQ(readable.GetInfo().GetName(), "Title");
    EXPECT_STREQ(readable.GetInfo().GetDefault(), "untitled");
    EXPECT_STREQ(readable.GetValue(), "");
    EXPECT_FALSE(readable.IsCaptured());
}

TEST(CCaptureString, StoresACopyAndFiresOnAChange)
{
    CCaptureString string;
    CEventCounter changes(string.GetValueChangedEventProvider());
    std::string text = "one";
    string.SetValue(text.c_str());
    text = "two";

    EXPECT_STREQ(string.GetValue(), "one");
    EXPECT_EQ(changes.Take(), 1);
    string.SetValue(text.c_str());
    EXPECT_STREQ(string.GetValue(), "two");
    EXPECT_EQ(changes.Take(), 1);
}

TEST(CCaptureString, SetOfTheSameTextFiresNothing)
{
    CHookedString string;
    string.SetValue("one");
    string.stored.clear();
    CEventCounter changes(string.GetValueChangedEventProvider());

    string.SetValue("one");
    string.SetValue(string.GetValue());

    EXPECT_EQ(changes.Take(), 0);
    EXPECT_TRUE(string.stored.empty());
}

TEST(CCaptureString, NullTextComparesAsAnEmptyText)
{
    CHookedString string;
    CEventCounter changes(string.GetValueChangedEventProvider());
    string.SetValue(nullptr);
    string.SetValue("");
    string.SetValue(nullptr);
    EXPECT_EQ(changes.Take(), 0);
    EXPECT_STREQ(string.GetValue(), "");

    string.SetValue("one");
    string.SetValue(nullptr);
    EXPECT_EQ(changes.Take(), 2);
    EXPECT_STREQ(string.GetValue(), "");
    EXPECT_EQ(string.stored, (std::vector<std::string>{"one", ""}));
}

TEST(CCaptureString, CanBeSetToAPartOfItsOwnText)
{
    CCaptureString string;
    string.SetValue("a text that is too long to be kept inside the object itself");
    string.SetValue(string.GetValue() + 2);
    EXPECT_STREQ(string.GetValue(), "text that is too long to be kept inside the object itself");
}

TEST(CCaptureString, HookRunsBetweenTheStoringAndTheNotification)
{
    CHookedString string;
    std::size_t storedBeforeEvent = 0;
    std::string seen;
    CFunctionCommand listener(
        [&]
        {
            storedBeforeEvent = string.stored.size();
            seen = string.GetValue();
        });
    string.GetValueChangedEventProvider().Connect(listener);

    string.SetValue("one");

    EXPECT_EQ(storedBeforeEvent, 1U);
    EXPECT_EQ(seen, "one");
    EXPECT_EQ(string.stored, std::vector<std::string>{"one"});
    EXPECT_EQ(string.held, std::vector<std::string>{"one"});
}

TEST(CCaptureString, ListenerMaySetAnotherText)
{
    CCaptureString string;
    CFunctionCommand listener([&] { string.SetValue("last"); });
    string.GetValueChangedEventProvider().Connect(listener);
    CEventCounter changes(string.GetValueChangedEventProvider());
    string.SetValue("first");
    EXPECT_STREQ(string.GetValue(), "last");
    EXPECT_EQ(changes.Take(), 2);
}

TEST(CCaptureString, CapturesBeginAndEndOnce)
{
    CCaptureString string;
    ICaptureString& writable = string;
    CEventCounter begins(writable.GetBeginCaptureEventProvider());
    CEventCounter ends(writable.GetEndCaptureEventProvider());

    writable.EndCapture();
    EXPECT_EQ(ends.Take(), 0);
    writable.BeginCapture();
    writable.BeginCapture();
    EXPECT_TRUE(writable.IsCaptured());
    EXPECT_EQ(begins.Take(), 1);
    writable.EndCapture();
    EXPECT_FALSE(writable.IsCaptured());
    EXPECT_EQ(ends.Take(), 1);
}
