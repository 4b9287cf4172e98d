#include "AAXPlugin/CHostHolder.h"

#include "AAXPlugin/CScriptedHost.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{

using MirelExt::AAXPlugin::CHostHolder;
using Tests::CScriptedHost;

IACFUnknown* UnknownOf(CScriptedHost& host)
{
    return static_cast<IAAXHost*>(&host);
}

TEST(CHostHolder, KeepsTheFirstHostUntilCleared)
{
    const auto first = TACFReference<CScriptedHost>::Adopt(new CScriptedHost);
    const auto second = TACFReference<CScriptedHost>::Adopt(new CScriptedHost);
    CHostHolder holder;
    EXPECT_FALSE(holder.Get());
    holder.Set(nullptr);
    EXPECT_FALSE(holder.Get());
    holder.Set(UnknownOf(*first));
    holder.Set(UnknownOf(*second));
    EXPECT_EQ(holder.Get().Get(), UnknownOf(*first));
    holder.Clear();
    EXPECT_FALSE(holder.Get());
    holder.Clear();
    holder.Set(UnknownOf(*second));
    EXPECT_EQ(holder.Get().Get(), UnknownOf(*second));
    holder.Clear();
}

TEST(CHostHolder, HoldsOneReference)
{
    auto* host = new CScriptedHost;
    CHostHolder holder;
    holder.Set(UnknownOf(*host));
    holder.Set(UnknownOf(*host));
    EXPECT_EQ(host->AddReference(), 3U);
    host->Release();
    holder.Clear();
    EXPECT_EQ(host->Release(), 0U);
}

TEST(CHostHolder, StandsStartAndStopFromManyThreads)
{
    const auto host = TACFReference<CScriptedHost>::Adopt(new CScriptedHost);
    CHostHolder holder;
    const auto work = [&]
    {
        for (int i = 0; i < 500; ++i)
        {
            holder.Set(UnknownOf(*host));
            const auto held = holder.Get();
            holder.Clear();
        }
    };
    std::thread first(work);
    std::thread second(work);
    first.join();
    second.join();
    EXPECT_EQ(host->AddReference(), 2U);
    host->Release();
}

} // namespace
