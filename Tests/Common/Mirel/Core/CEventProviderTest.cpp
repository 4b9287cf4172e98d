#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TCommand.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>

using namespace Mirel::Core;

namespace
{

class CCall : public ICommand
{
public:
    explicit CCall(std::function<void()> body_) : body(std::move(body_)) {}
    void Execute() override { body(); }

private:
    std::function<void()> body;
};

} // namespace

TEST(CEventProvider, ListenersRunInOrderOfConnection)
{
    CEventProvider provider;
    std::string trace;
    CCall a([&] { trace += 'a'; });
    CCall b([&] { trace += 'b'; });
    provider.Connect(b);
    provider.Connect(&a);

    provider.Notify();

    EXPECT_EQ(trace, "ba");
}

TEST(CEventProvider, ListenerThatRemovesItselfIsSafeAndTheNextStillRuns)
{
    CEventProvider provider;
    std::string trace;
    std::unique_ptr<CCall> a;
    a = std::make_unique<CCall>(
        [&]
        {
            trace += 'a';
            provider.Disconnect(a.get());
        });
    CCall b([&] { trace += 'b'; });
    provider.Connect(*a);
    provider.Connect(b);

    provider.Notify();
    provider.Notify();

    EXPECT_EQ(trace, "abb");
}
