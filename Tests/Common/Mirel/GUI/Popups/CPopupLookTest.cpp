#include "Mirel/GUI/Popups/CPopupLook.h"
#include "Support/Contrast.h"

#include <gtest/gtest.h>

namespace
{

using namespace Tests;

TEST(CPopupLook, TextsAreReadableOnAllThatTheyStandOn)
{
    const Mirel::GUI::CPopupLook look;
    for (const auto& ground : {look.background, look.field, look.button, look.buttonHover})
    {
        EXPECT_GE(GetContrast(look.text.Pack(), ground.Pack()), leastTextContrast) << ground.Pack();
    }
    EXPECT_GE(GetContrast(look.onAccent.Pack(), look.accent.Pack()), leastTextContrast);
    EXPECT_GE(GetContrast(look.error.Pack(), look.background.Pack()), leastTextContrast);
}

/// Three to one is what the guidelines ask of the parts of a control.
TEST(CPopupLook, TheFrameOfAFocusedControlIsSeen)
{
    const Mirel::GUI::CPopupLook look;
    EXPECT_GE(GetContrast(look.accent.Pack(), look.background.Pack()), 3.0);
    EXPECT_GE(GetContrast(look.accent.Pack(), look.border.Pack()), 3.0);
}

} // namespace
