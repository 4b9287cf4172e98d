#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Support/CManualTickSource.h"
#include "Support/ThreadState.h"

#include <array>
#include <atomic>
#include <gtest/gtest.h>
#include <memory>
#include <poll.h>
#include <string>
#include <thread>
#include <unistd.h>
#include <utility>

using Mirel::GUI::CNativeRunLoop;
using Tests::CManualTickSource;

namespace
{

/// A pipe that closes itself.
class CPipe
{
public:
    CPipe() { EXPECT_EQ(pipe(ends.data()), 0); }
    CPipe(const CPipe&) = delete;
    CPipe& operator=(const CPipe&) = delete;
    ~CPipe()
    {
        close(ends[0]);
        CloseWriter();
    }
    int GetReader() const { return ends[0]; }
    void Write() const { EXPECT_EQ(write(ends[1], "x", 1), 1); }
    void Read() const
    {
        char byte = 0;
        EXPECT_EQ(read(ends[0], &byte, 1), 1);
    }
    void CloseWriter()
    {
        if (ends[1] != -1)
        {
            close(ends[1]);
            ends[1] = -1;
        }
    }

private:
    std::array<int, 2> ends{-1, -1};
};

bool IsReadable(const CNativeRunLoop& loop, int timeoutMs)
{
    pollfd entry{loop.GetDescriptor(), POLLIN, 0};
    return poll(&entry, 1, timeoutMs) == 1;
}

class CNativeRunLoopTest : public testing::Test
{
protected:
    void PumpAfter(int milliseconds)
    {
        clock.AdvanceMilliseconds(milliseconds);
        loop.OnIdle();
    }

    CManualTickSource clock;
    CNativeRunLoop loop{clock};
    std::string trace;
};

} // namespace

TEST_F(CNativeRunLoopTest, WithNothingToDoAPassRunsNothing)
{
    EXPECT_FALSE(loop.Pump(0));
    EXPECT_FALSE(loop.Pump(5));
    EXPECT_FALSE(IsReadable(loop, 0));
}

TEST_F(CNativeRunLoopTest, TimerFiresFirstAfterOnePeriodAndThenEachPeriod)
{
    loop.AddTimer(20, [&] { trace += 't'; });
    loop.OnIdle();
    PumpAfter(19);
    EXPECT_EQ(trace, "");
    PumpAfter(1);
    EXPECT_EQ(trace, "t");
    PumpAfter(19);
    EXPECT_EQ(trace, "t");
    PumpAfter(1);
    EXPECT_EQ(trace, "tt");
}

TEST_F(CNativeRunLoopTest, LateTimerFiresOnceAndKeepsItsGrid)
{
    loop.AddTimer(20, [&] { trace += 't'; });
    PumpAfter(75); // missed 20, 40 and 60
    EXPECT_EQ(trace, "t");
    PumpAfter(4);
    EXPECT_EQ(trace, "t");
    PumpAfter(1); // 80
    EXPECT_EQ(trace, "tt");
}

TEST_F(CNativeRunLoopTest, DueTimersFireInTheOrderOfTheirTimes)
{
    loop.AddTimer(30, [&] { trace += 'c'; });
    loop.AddTimer(10, [&] { trace += 'a'; });
    loop.AddTimer(20, [&] { trace += 'b'; });

    PumpAfter(30);

    EXPECT_EQ(trace, "abc");
}

TEST_F(CNativeRunLoopTest, PeriodOfZeroOrLessCountsAsOneMillisecond)
{
    loop.AddTimer(0, [&] { trace += 'z'; });
    loop.AddTimer(-5, [&] { trace += 'n'; });
    loop.OnIdle();
    EXPECT_EQ(trace, "");
    PumpAfter(1);
    EXPECT_EQ(trace, "zn");
}

TEST_F(CNativeRunLoopTest, RemovedTimerDoesNotFireEvenIfItIsDue)
{
    CNativeRunLoop::TimerId second = 0;
    loop.AddTimer(10,
                  [&]
                  {
                      trace += 'a';
                      loop.RemoveTimer(second);
                  });
    second = loop.AddTimer(10, [&] { trace += 'b'; });

    PumpAfter(10);
    loop.RemoveTimer(12345);

    EXPECT_EQ(trace, "a");
}

TEST_F(CNativeRunLoopTest, TimerMayRemoveItself)
{
    CNativeRunLoop::TimerId id = 0;
    const std::string kept = "a text that stands on the heap and is used after the removal";
    id = loop.AddTimer(10,
                       [&, kept]
                       {
                           loop.RemoveTimer(id);
                           trace += kept;
                       });
    PumpAfter(10);
    PumpAfter(10);

    EXPECT_EQ(trace, kept);
}

TEST_F(CNativeRunLoopTest, TimerDoesNotFireInsideItselfAndOthersDo)
{
    loop.AddTimer(10,
                  [&]
                  {
                      trace += '(';
                      PumpAfter(20);
                      trace += ')';
                  });
    loop.AddTimer(20, [&] { trace += 'b'; });

    PumpAfter(10);

    EXPECT_EQ(trace, "(b)");
}

TEST_F(CNativeRunLoopTest, PostedCallsRunInOrderInALaterPass)
{
    loop.Post(
        [&]
        {
            trace += 'a';
            loop.Post([&] { trace += 'c'; });
        });
    loop.Post([&] { trace += 'b'; });
    EXPECT_EQ(trace, "");

    EXPECT_TRUE(loop.Pump(0));
    EXPECT_EQ(trace, "ab");
    EXPECT_TRUE(IsReadable(loop, 0));
    EXPECT_TRUE(loop.Pump(0));
    EXPECT_EQ(trace, "abc");
    EXPECT_FALSE(IsReadable(loop, 0));
}

TEST_F(CNativeRunLoopTest, CallThatRunsTheLoopLetsTheOthersThrough)
{
    loop.Post(
        [&]
        {
            trace += '(';
            loop.Pump(0);
            trace += ')';
        });
    loop.Post([&] { trace += 'b'; });

    loop.Pump(0);

    EXPECT_EQ(trace, "(b)");
}

TEST_F(CNativeRunLoopTest, ReadableDescriptorCallsBackUntilItIsRead)
{
    const CPipe pipe;
    EXPECT_TRUE(loop.AddDescriptor(pipe.GetReader(), [&] { trace += 'r'; }));
    EXPECT_FALSE(loop.Pump(0));

    pipe.Write();
    EXPECT_TRUE(loop.Pump(0));
    EXPECT_TRUE(loop.Pump(0));
    EXPECT_EQ(trace, "rr");

    pipe.Read();
    EXPECT_FALSE(loop.Pump(0));
    EXPECT_EQ(trace, "rr");
}

TEST_F(CNativeRunLoopTest, ClosedPipeCallsBack)
{
    CPipe pipe;
    loop.AddDescriptor(pipe.GetReader(), [&] { trace += 'h'; });
    pipe.CloseWriter();

    loop.Pump(0);

    EXPECT_EQ(trace, "h");
}

TEST_F(CNativeRunLoopTest, DescriptorMayRemoveItselfAndTheOther)
{
    const CPipe first;
    const CPipe second;
    const auto once = [&]
    {
        trace += 'x';
        loop.RemoveDescriptor(first.GetReader());
        loop.RemoveDescriptor(second.GetReader());
    };
    loop.AddDescriptor(first.GetReader(), once);
    loop.AddDescriptor(second.GetReader(), once);
    first.Write();
    second.Write();

    loop.Pump(0);
    loop.Pump(0);

    EXPECT_EQ(trace, "x");
}

TEST_F(CNativeRunLoopTest, LaterCallbackOfADescriptorReplacesTheEarlier)
{
    const CPipe pipe;
    loop.AddDescriptor(pipe.GetReader(), [&] { trace += 'a'; });
    EXPECT_TRUE(loop.AddDescriptor(pipe.GetReader(), [&] { trace += 'b'; }));
    pipe.Write();

    loop.Pump(0);

    EXPECT_EQ(trace, "b");
}

TEST_F(CNativeRunLoopTest, DescriptorThatCannotBeWatchedIsRefused)
{
    EXPECT_FALSE(loop.AddDescriptor(-1, [] {}));
    loop.RemoveDescriptor(-1);
}

TEST_F(CNativeRunLoopTest, DescriptorReadInAnInnerPassDoesNotCallBackInTheOuterOne)
{
    const CPipe first;
    const CPipe second;
    bool nested = false;
    const auto readBoth = [&](const CPipe& mine)
    {
        mine.Read(); // would block if called for nothing
        trace += 'r';
        if (!std::exchange(nested, true))
        {
            loop.Pump(0);
        }
    };
    loop.AddDescriptor(first.GetReader(), [&] { readBoth(first); });
    loop.AddDescriptor(second.GetReader(), [&] { readBoth(second); });
    first.Write();
    second.Write();

    loop.Pump(0);

    EXPECT_EQ(trace, "rr");
}

TEST_F(CNativeRunLoopTest, PendingDescriptorCallsBackWithoutBeingReadable)
{
    const CPipe pipe;
    int queued = 3;
    int calls = 0;
    const auto take = [&]
    {
        ++calls;
        --queued;
    };
    EXPECT_TRUE(loop.AddDescriptor(pipe.GetReader(), take, [&] { return queued > 0; }));
    EXPECT_TRUE(loop.Pump(-1)) << "it does not sleep";
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(IsReadable(loop, 0)) << "for whoever polls the loop";
    loop.Pump(-1);
    loop.Pump(-1);
    EXPECT_EQ(calls, 3);
    loop.Pump(0);
    EXPECT_EQ(calls, 3);
    EXPECT_FALSE(IsReadable(loop, 0));
    queued = 1;
    pipe.Write();
    loop.Pump(0);
    EXPECT_EQ(calls, 4) << "once a pass, though readable and pending";
    loop.RemoveDescriptor(pipe.GetReader());
    queued = 1;
    EXPECT_FALSE(loop.Pump(0));
}

TEST_F(CNativeRunLoopTest, IdleCallDoesWhatItsFirstPassAskedFor)
{
    int calls = 0;
    loop.Post([&] { loop.Post([&] { ++calls; }); });
    loop.OnIdle();
    EXPECT_EQ(calls, 1);
}

TEST_F(CNativeRunLoopTest, DroppedCallsAreDestroyedUnrun)
{
    auto token = std::make_shared<int>(0);
    bool ran = false;
    {
        CNativeRunLoop other;
        other.Post([token, &ran] { ran = true; });
        EXPECT_EQ(token.use_count(), 2);
    }
    EXPECT_EQ(token.use_count(), 1);
    EXPECT_FALSE(ran);
}

TEST(CNativeRunLoop, DescriptorBecomesReadableWhenATimerIsDue)
{
    CNativeRunLoop loop;
    int runs = 0;
    const auto id = loop.AddTimer(5, [&] { ++runs; });
    EXPECT_TRUE(IsReadable(loop, 10000));
    loop.OnIdle();
    EXPECT_EQ(runs, 1);

    EXPECT_TRUE(IsReadable(loop, 10000)); // armed again
    loop.RemoveTimer(id);
    loop.OnIdle();
    EXPECT_FALSE(IsReadable(loop, 20));
    EXPECT_EQ(runs, 1);
}

TEST(CNativeRunLoop, ProgramThatPollsIsWokenByAnotherThread)
{
    CNativeRunLoop loop;
    EXPECT_TRUE(loop.IsCurrent());
    std::atomic<bool> current = true;
    bool ran = false;
    std::thread other(
        [&]
        {
            current = loop.IsCurrent();
            loop.Post([&] { ran = loop.IsCurrent(); });
        });
    EXPECT_TRUE(IsReadable(loop, 10000));
    loop.Pump(0);
    other.join();

    EXPECT_TRUE(ran);
    EXPECT_FALSE(current);
}

TEST(CNativeRunLoop, RunsUntilItIsFinished)
{
    CNativeRunLoop loop;
    const CPipe pipe;
    int reads = 0;
    int ticks = 0;
    loop.AddDescriptor(pipe.GetReader(),
                       [&]
                       {
                           pipe.Read();
                           ++reads;
                       });
    loop.AddTimer(2,
                  [&]
                  {
                      ++ticks;
                      pipe.Write();
                  });
    std::atomic<bool> posted = false;
    std::thread other([&] { loop.Post([&] { posted = true; }); });

    loop.RunUntil([&] { return posted && reads >= 3; });
    other.join();

    EXPECT_GE(ticks, 3);
    EXPECT_GE(reads, 3);
}

TEST(CNativeRunLoop, CallbackMayRunTheLoopUntilSomethingElseHappens)
{
    CNativeRunLoop loop;
    std::string trace;
    bool answered = false;
    bool done = false;
    loop.Post(
        [&]
        {
            trace += "open ";
            loop.RunUntil([&] { return answered; });
            trace += "closed";
            done = true;
        });
    loop.AddTimer(2,
                  [&]
                  {
                      if (!std::exchange(answered, true))
                      {
                          trace += "answer ";
                      }
                  });

    loop.RunUntil([&] { return done; });

    EXPECT_EQ(trace, "open answer closed");
}
