#include "Mirel/CoreUtilities/CCallbackHelper.h"
#include "Mirel/Core/CEventProvider.h"
#include "Mirel/Core/TDestroyAdapter.h"
#include "Support/CFunctionCommand.h"

#include <gtest/gtest.h>
#include <memory>
#include <utility>
#include <vector>

using namespace Mirel::Core;
using Mirel::CoreUtilities::CCallbackHelper;
using Tests::CFunctionCommand;

TEST(CCallbackHelper, ConnectionLastsAsLongAsTheHelper)
{
    CEventProvider provider;
    int runs = 0;
    int deaths = 0;
    CFunctionCommand command([&] { ++runs; }, &deaths);
    {
        const CCallbackHelper helper(&provider, &command);
        provider.Notify();
        EXPECT_EQ(runs, 1);
    }
    provider.Notify();

    EXPECT_EQ(runs, 1);
    EXPECT_EQ(deaths, 0);
}

TEST(CCallbackHelper, ListOfAdaptersEndsAllItsConnections)
{
    CEventProvider provider;
    int runs = 0;
    CFunctionCommand a([&] { runs += 1; });
    CFunctionCommand b([&] { runs += 10; });
    std::vector<TDestroyAdapter<CCallbackHelper>> connections;
    for (ICommand* command : {static_cast<ICommand*>(&a), static_cast<ICommand*>(&b)})
    {
        connections.emplace_back(&provider, command); // growth moves the first
    }

    provider.Notify();
    EXPECT_EQ(runs, 11);

    connections.clear();
    provider.Notify();
    EXPECT_EQ(runs, 11);
}

TEST(CCallbackHelper, MoveHandsTheConnectionOver)
{
    CEventProvider provider;
    int runs = 0;
    CFunctionCommand a([&] { runs += 1; });
    CFunctionCommand b([&] { runs += 10; });
    CCallbackHelper helper(&provider, &a);

    helper = CCallbackHelper(&provider, &b);
    provider.Notify();

    EXPECT_EQ(runs, 10);
}

TEST(CCallbackHelper, WithoutAProviderThereIsNoConnection)
{
    CFunctionCommand command([] {});

    const CCallbackHelper helper(nullptr, &command);
}
