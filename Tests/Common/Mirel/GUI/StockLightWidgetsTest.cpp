#include "Common/Mirel/GUI/GUIRig.h"
#include "Mirel/GUI/CBitmapLightWidget.h"
#include "Mirel/GUI/CGraphicsLightWidget.h"
#include "Mirel/GUI/CTextLightWidget.h"
#include "Mirel/Graphics/CImageElement.h"

#include <gtest/gtest.h>

using namespace Mirel::GUI;
using namespace Tests;

TEST(CGraphicsLightWidget, ShowsTheGraphicsThatItIsGiven)
{
    CLightRig rig;
    CGraphicsLightWidget widget(rig.root, new CFill({10, 10}, {1, 2, 3}), true);
    rig.platform.Pump();
    EXPECT_EQ(rig.PixelAt(5, 5), 0x010203U);
    EXPECT_EQ(rig.PixelAt(10, 10), 0U);
}

TEST(CBitmapLightWidget, WithoutAnImageIsEmpty)
{
    CLightRig rig;
    CBitmapLightWidget widget(rig.root, nullptr);
    EXPECT_EQ(widget.GetSize(), CSize());
    widget.GetImageGraphics().SetTileMode(CBitmapLightWidget::ETileMode::Repeat);
    EXPECT_EQ(widget.GetImageGraphics().GetTileMode(), CBitmapLightWidget::ETileMode::Repeat);
    rig.platform.Pump();
}

TEST(CTextLightWidget, RepaintsOnlyWhenTheTextChanges)
{
    CLightRig rig;
    CTextLightWidget widget(rig.root);
    widget.SetSize({40, 12});
    rig.platform.Pump();
    rig.Native().TakePresented();
    widget.SetText("Scope");
    EXPECT_STREQ(widget.GetText(), "Scope");
    rig.platform.Pump();
    EXPECT_EQ(rig.Native().TakePresented().GetBounds(), CRect(0, 0, 40, 12));
    widget.SetText("Scope");
    EXPECT_FALSE(rig.platform.Pump());
}

TEST(CCursor, NamesOfSkinsGiveTheStandardShapes)
{
    const std::pair<const char*, ECursorShape> rows[] = {
        {"normal", ECursorShape::Normal},
        {"hand", ECursorShape::Hand},
        {"cross", ECursorShape::Cross},
        {"size", ECursorShape::Size},
        {"size_h", ECursorShape::SizeHorizontal},
        {"size_v", ECursorShape::SizeVertical},
        {"size_up_left", ECursorShape::SizeUpLeft},
        {"size_up_right", ECursorShape::SizeUpRight},
        {"wait", ECursorShape::Wait},
        {"no", ECursorShape::No},
        {"Ibeam", ECursorShape::IBeam},
        {"working", ECursorShape::Working},
        {"up", ECursorShape::Up},
        {"open_hand", ECursorShape::OpenHand},
    };
    for (const auto& [name, shape] : rows)
    {
        const auto cursor = CCursor::FindSystem(name);
        ASSERT_NE(cursor, nullptr) << name;
        EXPECT_EQ(cursor->GetShape(), shape) << name;
    }
    EXPECT_EQ(CCursor::FindSystem("Hand"), nullptr);
    EXPECT_EQ(CCursor::FindSystem(""), nullptr);
}

TEST(CCursor, PictureIsHandedToTheWindow)
{
    CLightRig rig;
    CNotingLight a(rig.root, {10, 10, 30, 30}, "a", rig.script);
    a.SetCursor(std::make_shared<CCursor>(
        std::make_shared<Mirel::Graphics::CDIBBitmap>(32, Mirel::Graphics::CSize{16, 16}), CPoint{8, 8}));
    rig.Move(20, 20);
    EXPECT_TRUE(rig.Native().HasCursorPicture());
    rig.Move(60, 60);
    EXPECT_FALSE(rig.Native().HasCursorPicture());
}

TEST(InputEvents, TranslationMovesThePositionAlone)
{
    COSXMouseEvent event;
    event.position = {10, 20};
    event.screenPosition = {100, 200};
    event.clickCount = 2;
    const CTranslatedMouseEvent moved(event, {3, 4});
    EXPECT_EQ(moved.position, CPoint({7, 16}));
    EXPECT_EQ(moved.screenPosition, CPoint({100, 200}));
    EXPECT_EQ(moved.clickCount, 2);
    COSXMouseWheelEvent wheel;
    wheel.position = {INT32_MIN, 0};
    EXPECT_EQ(CTranslatedMouseWheelEvent(wheel, {1, -1}).position, CPoint({INT32_MIN, 1}));
}

TEST(InputEvents, ModifiersAreTestedByTheirNumbers)
{
    CModifierState state;
    state.modifiers = 0x80000;
    EXPECT_TRUE(state.IsModifierDown(static_cast<EModifierKey>(0)));
    state.modifiers = 0x20000;
    EXPECT_TRUE(state.IsModifierDown(static_cast<EModifierKey>(1)));
    EXPECT_FALSE(state.IsModifierDown(static_cast<EModifierKey>(0)));
    state.modifiers = 0x40000;
    EXPECT_TRUE(state.IsModifierDown(static_cast<EModifierKey>(2)));
}
