#include "Mirel/Audio/Plugin/TFunctionCapture.h"

#include "Mirel/Math/CConstantFunction.h"
#include "Mirel/Math/IFunction.h"
#include "Support/AllocationCounter.h"
#include "Support/EventCounter.h"

#include <gtest/gtest.h>
#include <memory>
#include <thread>

using namespace Mirel;
using Math::CConstantFunction;
using Math::IFunction;

namespace
{

using CCapture = Audio::Plugin::TFunctionCapture<IFunction>;

float ValueOf(const CCapture& capture)
{
    float value = -1.0f;
    EXPECT_TRUE(capture.Read([&value](const IFunction& function) { value = function(0.0f); }));
    return value;
}

void Publish(CCapture& capture, System::CCriticalSection& lock, const IFunction& function)
{
    const Core::CAutoLock guard(lock);
    capture.Publish(function);
}

/// A function without an UpdateClone of its own. Notes which thread frees it.
class CPlainFunction : public IFunction
{
public:
    CPlainFunction(float value_, std::thread::id* freedBy_) : value(value_), freedBy(freedBy_) {}
    CPlainFunction(const CPlainFunction&) = default;
    CPlainFunction& operator=(const CPlainFunction&) = delete;
    ~CPlainFunction() override { *freedBy = std::this_thread::get_id(); }

    float operator()(float) const override { return value; }
    const char* GetTypeKey() const override { return nullptr; }
    bool Serialize(Serialization::IWriteDataStream&) const override { return true; }
    bool Deserialize(const Serialization::IReadDataStream&) override { return true; }
    CPlainFunction* Clone() const override { return new CPlainFunction(*this); }

private:
    float value;
    std::thread::id* freedBy;
};

} // namespace

TEST(TFunctionCapture, HasNothingBeforeTheFirstPublication)
{
    System::CCriticalSection lock;
    CCapture capture(lock);
    EXPECT_FALSE(capture.Read([](const IFunction&) { ADD_FAILURE(); }));
    std::unique_ptr<IFunction> copy;
    EXPECT_FALSE(capture.UpdateCopy(copy));
    EXPECT_EQ(copy, nullptr);

    capture.Prepare(CConstantFunction(2.0f));
    EXPECT_FALSE(capture.Read([](const IFunction&) { ADD_FAILURE(); })) << "prepared is not published";
    EXPECT_FALSE(capture.IsChanged());
}

TEST(TFunctionCapture, ReadersSeeWhatWasPublishedNotWhatBecameOfIt)
{
    System::CCriticalSection lock;
    CCapture capture(lock);
    CConstantFunction live(2.0f);
    Publish(capture, lock, live);
    live.SetValue(3.0f);
    EXPECT_EQ(ValueOf(capture), 2.0f);
    Publish(capture, lock, live);
    EXPECT_EQ(ValueOf(capture), 3.0f);
}

TEST(TFunctionCapture, OncePreparedPublishingAllocatesNothing)
{
    System::CCriticalSection lock;
    CCapture capture(lock);
    CConstantFunction live(2.0f);
    capture.Prepare(live);
    const Tests::CAllocationCounter allocations;
    for (const float value : {3.0f, 4.0f, 5.0f})
    {
        live.SetValue(value);
        Publish(capture, lock, live);
        EXPECT_EQ(ValueOf(capture), value);
    }
    EXPECT_EQ(allocations.GetCount(), 0U);
}

TEST(TFunctionCapture, PreparingLeavesThePictureUntilTheNextPublication)
{
    System::CCriticalSection lock;
    CCapture capture(lock);
    CConstantFunction live(2.0f);
    Publish(capture, lock, live);
    live.SetValue(0.0f);
    capture.Prepare(live);
    EXPECT_EQ(ValueOf(capture), 2.0f);
    Publish(capture, lock, live);
    EXPECT_EQ(ValueOf(capture), 0.0f);
}

TEST(TFunctionCapture, AFunctionWithoutAWayToBeUpdatedIsClonedAndFreedByTheReader)
{
    System::CCriticalSection lock;
    CCapture capture(lock);
    std::thread::id freedBy;
    std::thread::id ignored;
    const CPlainFunction first(1.0f, &freedBy);
    const CPlainFunction second(2.0f, &ignored);
    std::thread audio(
        [&]
        {
            Publish(capture, lock, first);
            Publish(capture, lock, second);
        });
    audio.join();
    EXPECT_EQ(freedBy, std::thread::id());
    EXPECT_EQ(ValueOf(capture), 2.0f);
    EXPECT_EQ(freedBy, std::this_thread::get_id());
}

TEST(TFunctionCapture, WithoutAReaderReplacedFunctionsDoNotPileUp)
{
    System::CCriticalSection lock;
    CCapture capture(lock);
    std::thread::id freedBy;
    const CPlainFunction first(1.0f, &freedBy);
    std::thread::id ignored;
    const CPlainFunction later(2.0f, &ignored);
    Publish(capture, lock, first);
    Publish(capture, lock, later);
    Publish(capture, lock, later);
    EXPECT_EQ(freedBy, std::this_thread::get_id());
}

TEST(TFunctionCapture, AReadersCopyFollows)
{
    System::CCriticalSection lock;
    CCapture capture(lock);
    CConstantFunction live(2.0f);
    Publish(capture, lock, live);
    std::unique_ptr<IFunction> copy;
    EXPECT_TRUE(capture.UpdateCopy(copy));
    const IFunction* const first = copy.get();
    live.SetValue(3.0f);
    Publish(capture, lock, live);
    EXPECT_EQ((*copy)(0.0f), 2.0f);
    EXPECT_TRUE(capture.UpdateCopy(copy));
    EXPECT_EQ((*copy)(0.0f), 3.0f);
    EXPECT_EQ(copy.get(), first) << "brought up to date, not made anew";

    std::thread::id ignored;
    copy = std::make_unique<CPlainFunction>(9.0f, &ignored);
    EXPECT_TRUE(capture.UpdateCopy(copy));
    EXPECT_EQ((*copy)(0.0f), 3.0f) << "a copy of another class is replaced";
}

TEST(TFunctionCapture, TheEventIsFiredByTheDeliveryAlone)
{
    System::CCriticalSection lock;
    CCapture capture(lock);
    Tests::CEventCounter events(capture.GetChangedEventProvider());
    const CConstantFunction live(2.0f);
    capture.DeliverChange();
    EXPECT_EQ(events.Take(), 0);

    Publish(capture, lock, live);
    Publish(capture, lock, live);
    EXPECT_EQ(events.Take(), 0) << "the audio thread runs no listeners";
    EXPECT_TRUE(capture.IsChanged());
    capture.DeliverChange();
    EXPECT_EQ(events.Take(), 1) << "once for all that came since";
    EXPECT_FALSE(capture.IsChanged());
    capture.DeliverChange();
    EXPECT_EQ(events.Take(), 0);
}
