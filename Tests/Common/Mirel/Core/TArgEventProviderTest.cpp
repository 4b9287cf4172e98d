#include "Mirel/Core/TArgEventProvider.h"
#include "Mirel/Core/TArgCommand.h"
#include "Support/AllocationCounter.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>

using namespace Mirel::Core;

namespace
{

struct SPoint
{
    int x;
    int y;
};

template <class A>
class TCall : public TIArgCommand<A>
{
public:
    explicit TCall(std::function<void(A)> body_) : body(std::move(body_)) {}
    void Execute(A argument) override { body(argument); }

private:
    std::function<void(A)> body;
};

class CListener
{
public:
    void Take(int value) { sum += value; }
    void Look(const SPoint& point) const { seen = &point; }
    int sum = 0;
    mutable const SPoint* seen = nullptr;
};

} // namespace

TEST(TArgEventProvider, HandsTheArgumentToEveryListenerInOrder)
{
    TArgEventProvider<int> provider;
    std::string trace;
    TCall<int> a([&](int value) { (trace += 'a') += std::to_string(value); });
    TCall<int> b([&](int value) { (trace += 'b') += std::to_string(value); });
    provider.Connect(a);
    provider.Connect(&b);
    provider.Connect(a);

    provider.Notify(7);

    EXPECT_EQ(trace, "a7b7a7");
}

TEST(TArgEventProvider, PassesAReferenceWithoutCopying)
{
    TArgEventProvider<const SPoint&> provider;
    const CListener listener;
    TConstArgCommand<CListener, const SPoint&> command(&listener, &CListener::Look);
    provider.Connect(command);
    const SPoint point{3, 4};

    static_cast<TIArgNotify<const SPoint&>&>(provider).Notify(point);

    EXPECT_EQ(listener.seen, &point);
}

TEST(TArgEventProvider, InnerDeliverySkipsTheActiveListenerAndCarriesItsOwnArgument)
{
    TArgEventProvider<int> provider;
    std::string trace;
    TCall<int> a(
        [&](int value)
        {
            (trace += 'a') += std::to_string(value);
            provider.Notify(value + 1);
        });
    TCall<int> b([&](int value) { (trace += 'b') += std::to_string(value); });
    provider.Connect(a);
    provider.Connect(b);

    provider.Notify(1);

    EXPECT_EQ(trace, "a1b2b1");
}

TEST(TArgEventProvider, ListenersMayConnectAndDisconnectDuringADelivery)
{
    TArgEventProvider<int> provider;
    std::string trace;
    TCall<int> removed([&](int) { trace += 'r'; });
    TCall<int> late([&](int) { trace += 'l'; });
    TIArgCommand<int>* self = nullptr;
    TCall<int> a(
        [&](int)
        {
            trace += 'a';
            provider.Disconnect(&removed);
            provider.Disconnect(self);
            provider.Connect(late);
        });
    self = &a;
    provider.Connect(a);
    provider.Connect(removed);

    provider.Notify(0);
    provider.Notify(0);

    EXPECT_EQ(trace, "all");
}

TEST(TArgEventProvider, DestroyingDisconnectDestroysAndNulls)
{
    TArgEventProvider<int> provider;
    CListener listener;
    TIArgCommand<int>* command = new TArgCommand<CListener, int>(&listener, &CListener::Take);
    provider.Connect(command);
    provider.Notify(5);

    provider.Disconnect(command, true);
    provider.Notify(5);
    provider.Disconnect(command, true);

    EXPECT_EQ(command, nullptr);
    EXPECT_EQ(listener.sum, 5);
}

TEST(TArgEventProvider, DeliveryAllocatesNothing)
{
    TArgEventProvider<int> provider;
    CListener listener;
    TArgCommand<CListener, int> command(&listener, &CListener::Take);
    provider.Connect(command);

    const Tests::CAllocationCounter counter;
    provider.Notify(2);

    EXPECT_EQ(counter.GetCount(), 0U);
    EXPECT_EQ(listener.sum, 2);
}
