#include "Mirel/GUI/Native/Dialogs/CMenu.h"
#include "Support/CFunctionCommand.h"

#include <gtest/gtest.h>
#include <memory>

using Mirel::GUI::CMenu;
using Tests::CFunctionCommand;

namespace
{

TEST(CMenu, KeepsItsItemsInOrder)
{
    CMenu menu;
    menu.AddItem("Undo", nullptr, false).isEnabled = false;
    menu.AddSeparator();
    CMenu& presets = menu.AddSubMenu("Factory Presets");
    presets.AddItem("First", nullptr, false).isChecked = true;
    ASSERT_EQ(menu.GetItems().size(), 3U);
    EXPECT_EQ(menu.GetItems()[0].text, "Undo");
    EXPECT_FALSE(menu.GetItems()[0].isEnabled);
    EXPECT_TRUE(menu.GetItems()[1].isSeparator);
    EXPECT_EQ(menu.GetItems()[2].subMenu.get(), &presets);
    EXPECT_TRUE(presets.GetItems()[0].isChecked);
}

TEST(CMenu, OwnedCommandsGoWithItAndOthersStay)
{
    int deaths = 0;
    int runs = 0;
    CFunctionCommand borrowed([&] { ++runs; }, &deaths);
    {
        CMenu menu;
        menu.AddSubMenu("more").AddItem("a", new CFunctionCommand([&] { runs += 10; }, &deaths), true);
        menu.AddItem("b", &borrowed, false);
        menu.GetItems()[0].subMenu->GetItems()[0].command->Execute();
        menu.GetItems()[1].command->Execute();
    }
    EXPECT_EQ(runs, 11);
    EXPECT_EQ(deaths, 1);
}

} // namespace
