#include "Common/Mirel/GUI/CWidgetMonkey.h"
#include "Support/Environment.h"

#include <gtest/gtest.h>
#include <random>

using namespace Tests;

/// GUI_RANDOM_EVENTS=1000000 runs for longer.
TEST(RandomEvents, NeverConfuseTheTreeOrThePicture)
{
    const long steps = GetEnvironmentNumber("GUI_RANDOM_EVENTS", 20000);
    constexpr long stepsPerTree = 2000;
    constexpr long stepsPerPicture = 50;
    for (long done = 0; done < steps; done += stepsPerTree)
    {
        std::mt19937 random(static_cast<std::mt19937::result_type>(done));
        CWidgetMonkey monkey([&random] { return static_cast<std::uint8_t>(random() >> 8U); });
        for (long step = 0; step < stepsPerTree; ++step)
        {
            ASSERT_TRUE(monkey.Step()) << "seed " << done << " step " << step;
            if (step % stepsPerPicture == 0)
            {
                ASSERT_TRUE(monkey.CheckPicture()) << "seed " << done << " step " << step;
            }
        }
    }
}
