#include "Mirel/Core/CLateDestruction.h"

#include "Mirel/Core/CCapture.h"
#include "Support/AllocationCounter.h"
#include "Support/CFunctionCommand.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>

namespace Mirel::Core
{
namespace
{

class CTold : public IDestroy
{
public:
    explicit CTold(std::function<void()> onDeath_) : onDeath(std::move(onDeath_)) {}
    CTold(const CTold&) = delete;
    CTold& operator=(const CTold&) = delete;
    ~CTold() override { onDeath(); }

private:
    std::function<void()> onDeath;
};

TEST(CLateDestruction, OutsideAnyScopeObjectsGoAtOnce)
{
    int deaths = 0;
    CLateDestruction::Destroy(std::make_unique<CTold>([&deaths] { ++deaths; }));
    EXPECT_EQ(deaths, 1);
}

TEST(CLateDestruction, TheOutermostScopeDestroys)
{
    int deaths = 0;
    {
        const CLateDestruction outer;
        {
            const CLateDestruction inner;
            CLateDestruction::Destroy(std::make_unique<CTold>([&deaths] { ++deaths; }));
        }
        EXPECT_EQ(deaths, 0);
    }
    EXPECT_EQ(deaths, 1);
}

TEST(CLateDestruction, WhatIsDestroyedMayDestroyMore)
{
    int deaths = 0;
    {
        const CLateDestruction scope;
        CLateDestruction::Destroy(std::make_unique<CTold>(
            [&deaths]
            {
                const CLateDestruction nested;
                CLateDestruction::Destroy(std::make_unique<CTold>([&deaths] { ++deaths; }));
            }));
    }
    EXPECT_EQ(deaths, 1);
}

TEST(CLateDestruction, AScopeAllocatesNothing)
{
    const Tests::CAllocationCounter allocations;
    {
        const CLateDestruction scope;
    }
    EXPECT_EQ(allocations.GetCount(), 0U);
}

TEST(CLateDestruction, AnObjectOutlivesTheListenerThatMakesAwayWithIt)
{
    struct SGroup : IDestroy
    {
        CCapture object;
    };
    auto group = std::make_unique<SGroup>();
    CCapture& object = group->object;
    int laterListeners = 0;
    Tests::CFunctionCommand destroys([&group] { CLateDestruction::Destroy(std::move(group)); });
    Tests::CFunctionCommand later([&laterListeners] { ++laterListeners; });
    object.GetChangedEventProvider().Connect(destroys);
    object.GetChangedEventProvider().Connect(later);
    object.NotifyChanged();
    EXPECT_EQ(laterListeners, 1);
    EXPECT_EQ(group, nullptr);
}

} // namespace
} // namespace Mirel::Core
