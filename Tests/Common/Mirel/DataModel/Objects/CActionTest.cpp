#include "Mirel/DataModel/Objects/CAction.h"

#include "Mirel/DataModel/Objects/TActionWrapper.h"
#include "Mirel/DataModel/Objects/TConstAsyncActionWrapper.h"
#include "Mirel/DataModel/TConnectablePointer.h"
#include "Support/CFakeThreadInvoker.h"
#include "Support/CFunctionCommand.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

using namespace Mirel::DataModel::Objects;
using Mirel::DataModel::TConnectablePointer;
using Tests::CEventCounter;
using Tests::CFunctionCommand;

namespace
{

/// Something that has an action.
class CEditor
{
public:
    void Undo() { ++undone; }

    int undone = 0;
};

} // namespace

TEST(CAction, RunsItsCommand)
{
    int runs = 0;
    CFunctionCommand command([&] { ++runs; });
    const CAction action("Undo", "Steps back", &command, false);
    const IConstAction& triggered = action;

    EXPECT_STREQ(triggered.GetInfo().GetName(), "Undo");
    EXPECT_STREQ(triggered.GetInfo().GetComment(), "Steps back");
    EXPECT_EQ(runs, 0);
    triggered.Execute();
    triggered.Execute();
    EXPECT_EQ(runs, 2);
}

TEST(CAction, WithoutACommandDoesNothing)
{
    const CAction action("Action not found");
    CEventCounter begins(action.GetBeginCaptureEventProvider());
    CEventCounter ends(action.GetEndCaptureEventProvider());
    action.Execute();
    EXPECT_EQ(action.GetInfo().GetAction(), nullptr);
    EXPECT_EQ(begins.Take(), 1);
    EXPECT_EQ(ends.Take(), 1);
}

TEST(CAction, DestroysItsCommandOnlyIfOwned)
{
    int deaths = 0;
    CFunctionCommand borrowed([] {}, &deaths);
    {
        const CAction first("", "", &borrowed, false);
        const CAction second("", "", new CFunctionCommand([] {}, &deaths), true);
    }
    EXPECT_EQ(deaths, 1);
}

TEST(CAction, RunsTheCommandThatItsDescriptionHas)
{
    std::string trace;
    CFunctionCommand first([&] { trace += "1"; });
    CFunctionCommand second([&] { trace += "2"; });
    CAction action("", "", &first, false);
    CEventCounter changes(action.GetInfo().GetChangedEventProvider());

    action.Execute();
    action.GetInfo().SetAction(&second, false);
    action.Execute();

    EXPECT_EQ(trace, "12");
    EXPECT_EQ(changes.Take(), 1);
}

TEST(CAction, IsCapturedWhileItRuns)
{
    std::string trace;
    const CAction* running = nullptr;
    CFunctionCommand command([&] { trace += running->IsCaptured() ? "run " : "loose "; });
    const CAction action("", "", &command, false);
    running = &action;
    CFunctionCommand begun([&] { trace += "begin "; });
    CFunctionCommand ended([&] { trace += "end"; });
    action.GetBeginCaptureEventProvider().Connect(begun);
    action.GetEndCaptureEventProvider().Connect(ended);

    EXPECT_FALSE(action.IsCaptured());
    action.Execute();

    EXPECT_EQ(trace, "begin run end");
    EXPECT_FALSE(action.IsCaptured());
}

TEST(CAction, TriggeredByItsOwnCommandStaysCapturedToTheEnd)
{
    int runs = 0;
    bool capturedAfterInner = false;
    const CAction* running = nullptr;
    CFunctionCommand command(
        [&]
        {
            if (++runs == 1)
            {
                running->Execute();
                capturedAfterInner = running->IsCaptured();
            }
        });
    const CAction action("", "", &command, false);
    running = &action;
    CEventCounter ends(action.GetEndCaptureEventProvider());

    action.Execute();

    EXPECT_EQ(runs, 2);
    EXPECT_TRUE(capturedAfterInner);
    EXPECT_EQ(ends.Take(), 1);
}

TEST(CAction, MayBeDestroyedByItsCommand)
{
    std::unique_ptr<CAction> action;
    CFunctionCommand command([&] { action.reset(); });
    action = std::make_unique<CAction>("", "", &command, false);
    action->Execute();
    EXPECT_EQ(action, nullptr);
}

TEST(TActionWrapper, CallsAMemberOfItsObject)
{
    CEditor editor;
    const TActionWrapper<CEditor> action("Undo", "Steps back", &editor, &CEditor::Undo);
    const IConstAction& triggered = action;
    EXPECT_STREQ(triggered.GetInfo().GetName(), "Undo");
    triggered.Execute();
    EXPECT_EQ(editor.undone, 1);
}

TEST(TConstAsyncActionWrapper, CallsTheMemberAfterTheCallerHasReturned)
{
    CEditor editor;
    Tests::CFakeThreadInvoker invoker;
    auto action = std::make_unique<TConstAsyncActionWrapper<CEditor>>("Undo", "Steps back", &invoker, &editor,
                                                                      &CEditor::Undo);
    action->Execute();
    action->Execute();
    EXPECT_EQ(editor.undone, 0);
    EXPECT_EQ(invoker.posted, 2);
    EXPECT_EQ(invoker.invoked, 0);
    action.reset();

    invoker.RunAll();

    EXPECT_EQ(editor.undone, 2);
}

TEST(TConnectablePointer, IsConnectedLaterAndFiresOnAChange)
{
    CAction action("Undo");
    TConnectablePointer<IConstAction> pointer;
    CEventCounter changes(pointer.GetChangedEventProvider());
    EXPECT_FALSE(pointer);
    EXPECT_EQ(pointer.Get(), nullptr);

    pointer.Connect(&action);
    pointer.Connect(&action);

    EXPECT_EQ(changes.Take(), 1);
    ASSERT_TRUE(pointer);
    EXPECT_EQ(pointer.Get(), &action);
    EXPECT_STREQ(pointer->GetInfo().GetName(), "Undo");
    EXPECT_EQ(&*pointer, &action);
    pointer.Connect(nullptr);
    EXPECT_EQ(changes.Take(), 1);
    EXPECT_FALSE(pointer);
    EXPECT_EQ(TConnectablePointer<IConstAction>(&action).Get(), &action);
}
