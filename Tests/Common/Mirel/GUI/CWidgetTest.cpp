#include "Mirel/GUI/CWidget.h"

#include "Common/Mirel/GUI/GUIRig.h"
#include "Mirel/GUI/CCustomWidget.h"
#include "Mirel/GUI/CIsolationWidget.h"
#include "Mirel/GUI/CWidgetLayoutCell.h"

#include <gtest/gtest.h>

using namespace Mirel::GUI;
using namespace Tests;

namespace
{

/// Notes what happens to a widget, and fills it if told a colour.
class CNotingEvents : public CWidgetEventsTarget
{
public:
    CNotingEvents(CWidget& widget_, std::string name_, std::string& script_)
        : widget(widget_),
          name(std::move(name_)),
          script(script_)
    {
        widget.AddEventsTarget(this);
    }
    ~CNotingEvents() override { widget.RemoveEventsTarget(this); }

    void OnShow(const COSXOpenEvent& /*event*/) override { Note("show"); }
    void OnHide(const COSXOpenEvent& /*event*/) override { Note("hide"); }
    void OnEnable(const COSXEnableEvent& /*event*/) override { Note("enable"); }
    void OnDisable(const COSXEnableEvent& /*event*/) override { Note("disable"); }
    void OnSize(const COSXSizeEvent& event) override
    {
        Note(std::string("size").append(std::to_string(event.size.width)));
    }
    void OnMove(const COSXPositionEvent& event) override
    {
        Note(std::string("move").append(std::to_string(event.position.x)));
    }
    void OnClose() override { Note("close"); }
    void OnDraw(const COSXNativeDrawEvent& event) override
    {
        Note("draw");
        if (fills)
        {
            event.surface.SetFillColor(color);
            event.surface.FillRect({0, 0, 1000, 1000});
        }
    }
    bool OnNativeEvent(const COSXNativeNSEvent& /*event*/) override
    {
        if (notesNative)
        {
            Note("native");
        }
        return consumes;
    }

    Mirel::Graphics::CColor color;
    bool fills = false;
    bool notesNative = false;
    bool consumes = false;

private:
    void Note(const std::string& call) { script.append(name).append(".").append(call).append(" "); }

    CWidget& widget;
    std::string name;
    std::string& script;
};

void Place(CWidget& widget, const CRect& frame)
{
    widget.SetPosition(frame.GetOrigin());
    widget.SetSize(frame.GetSize());
    widget.Show(true);
}

/// A window with a content that two widgets stand in.
class CWidgetTree : public testing::Test
{
public:
    ~CWidgetTree() override { rig.window.reset(); }

protected:
    CWidgetTree()
    {
        content.Show(true);
        rig.window->SetContent(&content, false);
        content.AddChild(&a, false);
        content.AddChild(&b, false);
        Place(a, {10, 10, 30, 30});
        Place(b, {50, 10, 30, 30});
        a.SetMouseTarget(&aMouse, false);
        b.SetMouseTarget(&bMouse, false);
        rig.platform.Pump();
        rig.TakeScript();
        rig.Native().TakePresented();
    }

    CWindowRig rig;
    CNotingMouse aMouse{"a", rig.script};
    CNotingMouse bMouse{"b", rig.script};
    CNotingMouse contentMouse{"c", rig.script};
    CNotingKeys aKeys{"a", rig.script};
    CNotingKeys bKeys{"b", rig.script};
    CNotingKeys contentKeys{"c", rig.script};
    CCustomWidget content;
    CWidget a;
    CWidget b;
};

} // namespace

TEST(CWidget, BeginsHiddenEnabledAndOpaque)
{
    CWidget widget;
    EXPECT_FALSE(widget.IsShown());
    EXPECT_TRUE(widget.IsEnabled());
    EXPECT_EQ(widget.GetOpacity(), 1.0F);
    EXPECT_TRUE(widget.IsOpaque());
    EXPECT_EQ(widget.GetParent(), nullptr);
    EXPECT_FALSE(widget.SetFocus());
    EXPECT_FALSE(widget.CaptureMouse());
    EXPECT_FALSE(widget.HasFocus());
    widget.Invalidate();
    widget.Update();
}

TEST(CWidget, OwnedChildrenGoWithTheParentAndBorrowedStay)
{
    CWidget borrowed;
    std::string script;
    {
        CWidget parent;
        parent.AddChild(new CWidget(), true);
        parent.AddChild(&borrowed, false);
        auto* const taken = new CWidget();
        parent.AddChild(taken, true);
        EXPECT_TRUE(parent.RemoveChild(taken));
        EXPECT_FALSE(parent.RemoveChild(taken));
        delete taken;
        auto* const deleted = new CWidget();
        parent.AddChild(deleted, true);
        delete deleted;
        EXPECT_EQ(parent.GetChildCount(), 2);
    }
    EXPECT_EQ(borrowed.GetParent(), nullptr);
}

TEST(CWidget, ChildrenStandInFrontUnlessToldOtherwise)
{
    CWidget parent;
    CWidget first;
    CWidget second;
    CWidget third;
    parent.AddChild(&first, false);
    parent.AddChild(&second, false);
    parent.AddChild(&third, false, &second);
    EXPECT_EQ(parent.GetChild(0), &first);
    EXPECT_EQ(parent.GetChild(1), &third);
    EXPECT_EQ(parent.GetChild(2), &second);
    first.AddChild(&parent, false);
    parent.AddChild(&parent, false);
    EXPECT_EQ(parent.GetParent(), nullptr);
}

TEST(CWidget, ResizingAParentKeepsChildrenAtTheirDistanceFromTheTop)
{
    CWidget parent;
    CWidget top;
    CWidget bottom;
    parent.SetSize({100, 100});
    parent.AddChild(&top, false);
    parent.AddChild(&bottom, false);
    top.SetPosition({5, 20});
    bottom.SetPosition({5, 80});
    bottom.SetShouldNotMoveWhileResize(true);
    parent.SetSize({120, 150});
    EXPECT_EQ(top.GetPosition(), CPoint({5, 20}));
    EXPECT_EQ(bottom.GetPosition(), CPoint({5, 130}));
}

TEST(CWidget, IsOpaqueAsksTheParents)
{
    CWidget parent;
    CWidget child;
    parent.AddChild(&child, false);
    EXPECT_TRUE(child.IsOpaque());
    parent.SetOpacity(0.5F);
    EXPECT_FALSE(child.IsOpaque());
    parent.SetOpacity(1.0F);
    child.SetOpacity(0.5F);
    EXPECT_FALSE(child.IsOpaque());
    EXPECT_TRUE(parent.IsOpaque());
}

TEST(CWidget, EventsTargetsHearChangesOnce)
{
    std::string script;
    CWidget widget;
    CNotingEvents events(widget, "w", script);
    for (int round = 0; round < 2; ++round)
    {
        widget.SetSize({7, 8});
        widget.SetPosition({3, 4});
        widget.Enable(false);
        widget.Show(true);
    }
    widget.Show(false);
    widget.Enable(true);
    EXPECT_EQ(script, "w.size7 w.move3 w.disable w.show w.hide w.enable ");
}

TEST(CWidget, HidingAParentHidesWhatIsShownInIt)
{
    std::string script;
    CWidget parent;
    CWidget shown;
    CWidget hidden;
    parent.AddChild(&shown, false);
    parent.AddChild(&hidden, false);
    parent.Show(true);
    shown.Show(true);
    CNotingEvents a(parent, "p", script);
    CNotingEvents b(shown, "s", script);
    CNotingEvents c(hidden, "h", script);
    parent.Show(false);
    EXPECT_EQ(script, "p.hide s.hide ");
    script.clear();
    shown.Show(false);
    EXPECT_EQ(script, "");
    parent.Show(true);
    EXPECT_EQ(script, "p.show ");
}

TEST(CWidget, LayoutMovesSizesAndShows)
{
    CWidget widget;
    widget.SetSize({30, 20});
    Mirel::Layout::CGroupLayoutCell row(Mirel::Layout::ELayoutType::Row, 0, 5, 5);
    row.AddCell(&widget.GetCell(), {}, false);
    row.SetAutoUpdate(true);
    EXPECT_TRUE(widget.IsShown());
    EXPECT_EQ(widget.GetPosition(), CPoint({5, 5}));
    EXPECT_EQ(row.GetSize(), CSize({40, 30}));
    widget.SetSize({50, 20});
    EXPECT_EQ(row.GetSize(), CSize({60, 30}));
    widget.GetCell().SetShown(false);
    EXPECT_FALSE(widget.IsShown());
}

TEST_F(CWidgetTree, MouseGoesToTheWidgetUnderThePointer)
{
    rig.Move(20, 20);
    rig.Move(60, 20);
    rig.Move(5, 5);
    EXPECT_EQ(rig.TakeScript(), "a.enter a.move a.leave b.enter b.move b.leave ");
}

TEST_F(CWidgetTree, TripleClickIsOneDownAndNoThirdClick)
{
    rig.Move(20, 20);
    rig.TakeScript();
    for (int i = 0; i < 3; ++i)
    {
        rig.Press();
        rig.Release();
    }
    EXPECT_EQ(rig.TakeScript(), "a.down a.up a.click a.up a.double a.up ");
}

TEST_F(CWidgetTree, DragsAndTheUpGoToWhereTheButtonWasPressed)
{
    rig.Move(20, 20);
    rig.Press();
    rig.TakeScript();
    rig.Move(60, 20);
    rig.Release();
    EXPECT_EQ(rig.TakeScript(), "a.drag a.up a.click a.leave b.enter ");
}

TEST_F(CWidgetTree, MiddleButtonDragsWithoutDownOrUp)
{
    rig.Move(20, 20);
    rig.TakeScript();
    rig.Press(CWindowRig::Button::Middle);
    rig.Move(21, 20);
    rig.Release(CWindowRig::Button::Middle);
    EXPECT_EQ(rig.TakeScript(), "a.drag ");
}

TEST(CNativeMouseTarget, UpWithoutADownIsNoClick)
{
    std::string script;
    CNotingMouse mouse("m", script);
    CNativeMouseTarget target;
    target.SetTarget(&mouse, false);
    COSXMouseEvent event;
    event.button = EMouseButton::Left;
    event.clickCount = 1;
    target.SendUp(event);
    EXPECT_EQ(script, "m.up ");
}

TEST(CNativeMouseTarget, CallsFollowButtonAndClickCount)
{
    const struct
    {
        EMouseButton button;
        int count;
        const char* calls;
    } rows[] = {
        {EMouseButton::Left, 0, "m.down m.up m.click "},
        {EMouseButton::Left, 1, "m.down m.up m.click "},
        {EMouseButton::Left, 2, "m.up m.double "},
        {EMouseButton::Left, 3, "m.up "},
        {EMouseButton::Right, 1, "m.rdown m.rup m.rclick "},
        {EMouseButton::Right, 2, "m.rup m.rdouble "},
        {EMouseButton::Right, 3, "m.rup "},
        {EMouseButton::Middle, 1, ""},
    };
    for (const auto& row : rows)
    {
        std::string script;
        CNotingMouse mouse("m", script);
        CNativeMouseTarget target;
        target.SetTarget(&mouse, false);
        COSXMouseEvent event;
        event.button = row.button;
        event.clickCount = row.count;
        target.SendDown(event);
        target.SendUp(event);
        EXPECT_EQ(script, row.calls) << static_cast<int>(row.button) << " " << row.count;
    }
}

TEST(CNativeMouseTarget, OwnedTargetMayBeReplacedFromWithin)
{
    std::string script;
    CNativeMouseTarget target;
    auto* const mouse = new CNotingMouse("m", script);
    mouse->onCall = [&target](const std::string& /*call*/) { target.SetTarget(nullptr, false); };
    target.SetTarget(mouse, true);
    COSXMouseEvent event;
    event.button = EMouseButton::Left;
    target.SendDown(event);
    target.SendUp(event);
    EXPECT_EQ(script, "m.down ");
}

TEST_F(CWidgetTree, HiddenAndDisabledWidgetsArePassedThrough)
{
    content.SetMouseTarget(&contentMouse, false);
    a.Enable(false);
    rig.Move(20, 20);
    EXPECT_EQ(rig.TakeScript(), "c.enter c.move ");
    a.Enable(true);
    rig.Move(22, 20);
    EXPECT_EQ(rig.TakeScript(), "c.leave a.enter a.move ");
    a.Show(false);
    rig.Move(23, 20);
    EXPECT_EQ(rig.TakeScript(), "c.enter c.move ");
}

TEST_F(CWidgetTree, CaptureTakesAllMoves)
{
    EXPECT_TRUE(a.CaptureMouse());
    EXPECT_FALSE(b.CaptureMouse());
    rig.Move(60, 20);
    rig.Move(500, 500);
    EXPECT_EQ(rig.TakeScript(), "a.enter a.move a.move ");
    a.ReleaseMouse();
    rig.Move(60, 20);
    EXPECT_EQ(rig.TakeScript(), "a.leave b.enter b.move ");
}

TEST_F(CWidgetTree, WheelGoesUpToWhoeverHandlesIt)
{
    content.SetMouseTarget(&contentMouse, false);
    rig.Move(20, 20);
    rig.TakeScript();
    aMouse.handles = false;
    rig.platform.TurnWheel(1.0);
    EXPECT_EQ(rig.TakeScript(), "a.wheel c.wheel ");
}

TEST_F(CWidgetTree, FocusFollowsClicksOnWidgetsWithKeys)
{
    a.SetKeyboardTarget(&aKeys, false);
    b.SetKeyboardTarget(&bKeys, false);
    rig.Click(20, 20);
    EXPECT_EQ(rig.TakeScript(), "a.enter a.move a.gained a.down a.up a.click ");
    EXPECT_TRUE(a.HasFocus());
    b.SetFocusOnClick(false);
    rig.Rest();
    rig.Click(60, 20);
    EXPECT_TRUE(a.HasFocus());
    EXPECT_TRUE(b.SetFocus());
    EXPECT_FALSE(a.HasFocus());
    rig.TakeScript();
    b.Show(false);
    EXPECT_EQ(rig.TakeScript(), "b.lost ");
    EXPECT_FALSE(b.SetFocus());
}

TEST_F(CWidgetTree, KeysGoUpToWhoeverHandlesThem)
{
    a.SetKeyboardTarget(&aKeys, false);
    content.SetKeyboardTarget(&contentKeys, false);
    a.SetFocus();
    rig.TakeScript();
    aKeys.accepts = false;
    SNativeKeyEvent key;
    key.text = "q";
    rig.platform.PressKey(key);
    EXPECT_EQ(rig.TakeScript(), "a.accepts c.accepts c.keydown:q ");
}

TEST_F(CWidgetTree, FocusWidgetHearsWhenTheWindowHasNoKeys)
{
    a.SetKeyboardTarget(&aKeys, false);
    b.SetKeyboardTarget(&bKeys, false);
    a.SetFocus();
    rig.TakeScript();
    CWindow other(rig.platform, {});
    other.Show(true);
    EXPECT_EQ(rig.TakeScript(), "a.lost ");
    EXPECT_TRUE(a.HasFocus());
    rig.Native().SetFocus();
    EXPECT_EQ(rig.TakeScript(), "a.gained ");

    other.GetNativeWindow()->SetFocus();
    rig.TakeScript();
    b.SetFocus();
    EXPECT_EQ(rig.TakeScript(), "b.gained ") << "once, and a has lost it before";
    EXPECT_TRUE(rig.Native().HasFocus());

    other.GetNativeWindow()->SetFocus();
    rig.TakeScript();
    rig.window->SetFocusWidget(nullptr);
    EXPECT_EQ(rig.TakeScript(), "");
    EXPECT_FALSE(rig.Native().HasFocus());
    a.SetFocus();
    EXPECT_EQ(rig.TakeScript(), "a.gained ");
}

TEST_F(CWidgetTree, PressOnTheFocusWidgetTakesTheKeysBack)
{
    a.SetKeyboardTarget(&aKeys, false);
    a.SetFocus();
    CWindow other(rig.platform, {});
    other.Show(true);
    rig.TakeScript();
    a.SetFocus();
    EXPECT_TRUE(rig.Native().HasFocus());
    EXPECT_EQ(rig.TakeScript(), "a.gained ");
}

TEST_F(CWidgetTree, OnlyTheAlternateKeyIsAModifierEvent)
{
    a.SetKeyboardTarget(&aKeys, false);
    a.SetFocus();
    rig.TakeScript();
    rig.platform.SetModifiers(ModifierFlags::shift);
    EXPECT_EQ(rig.TakeScript(), "");
    rig.platform.SetModifiers(ModifierFlags::shift | ModifierFlags::alternate);
    rig.platform.SetModifiers(ModifierFlags::alternate);
    rig.platform.SetModifiers(0);
    EXPECT_EQ(rig.TakeScript(), "a.mods a.mods ");
}

TEST_F(CWidgetTree, EventsTargetMayTakeInputAway)
{
    CNotingEvents events(a, "e", rig.script);
    events.notesNative = true;
    rig.Move(20, 20);
    EXPECT_EQ(rig.TakeScript(), "a.enter e.native a.move ");
    events.consumes = true;
    rig.Press();
    EXPECT_EQ(rig.TakeScript(), "e.native ");
}

TEST_F(CWidgetTree, WidgetThatDeletesItselfInAHandlerIsSafe)
{
    for (const char* when : {"enter", "move", "down", "drag", "up", "click", "leave", "wheel"})
    {
        rig.Rest();
        rig.Move(99, 99);
        auto* const doomed = new CWidget();
        auto* const mouse = new CNotingMouse("d", rig.script);
        doomed->SetMouseTarget(mouse, true);
        content.AddChild(doomed, true);
        Place(*doomed, {10, 50, 30, 30});
        bool gone = false;
        mouse->onCall = [&gone, doomed, when](const std::string& call)
        {
            if (call == when)
            {
                gone = true;
                delete doomed;
            }
        };
        rig.Move(20, 60);
        rig.Move(21, 60);
        rig.platform.TurnWheel(1.0);
        rig.Press();
        rig.Move(22, 60);
        rig.Release();
        rig.Move(90, 60);
        EXPECT_TRUE(gone) << when;
    }
}

TEST_F(CWidgetTree, PaintsChildrenInOrderInsideOfTheDirtyRectangle)
{
    CNotingEvents contentEvents(content, "c", rig.script);
    CNotingEvents aEvents(a, "a", rig.script);
    CNotingEvents bEvents(b, "b", rig.script);
    aEvents.fills = true;
    aEvents.color = {255, 0, 0};
    bEvents.fills = true;
    bEvents.color = {0, 255, 0};
    content.Invalidate();
    rig.platform.Pump();
    EXPECT_EQ(rig.TakeScript(), "c.draw a.draw b.draw ");
    EXPECT_EQ(rig.PixelAt(10, 10), 0xFF0000U);
    EXPECT_EQ(rig.PixelAt(39, 39), 0xFF0000U);
    EXPECT_EQ(rig.PixelAt(40, 39), 0U);
    EXPECT_EQ(rig.PixelAt(50, 10), 0x00FF00U);
    rig.Native().TakePresented();
    a.InvalidateRect({5, 5, 100, 5});
    rig.platform.Pump();
    EXPECT_EQ(rig.TakeScript(), "c.draw a.draw ");
    EXPECT_EQ(rig.Native().TakePresented().GetBounds(), CRect(15, 15, 25, 5));
}

TEST_F(CWidgetTree, OpacityBlendsAWidgetWithAllInItOnce)
{
    CWidget inner;
    a.AddChild(&inner, false);
    Place(inner, {0, 0, 10, 10});
    CNotingEvents aEvents(a, "a", rig.script);
    CNotingEvents innerEvents(inner, "i", rig.script);
    aEvents.fills = true;
    aEvents.color = {255, 0, 0};
    innerEvents.fills = true;
    innerEvents.color = {0, 0, 255};
    a.SetOpacity(0.5F);
    rig.platform.Pump();
    EXPECT_NEAR(static_cast<int>(rig.PixelAt(30, 30) >> 16U), 128, 1);
    EXPECT_EQ(rig.PixelAt(15, 15) >> 16U, 0U);
    EXPECT_NEAR(static_cast<int>(rig.PixelAt(15, 15) & 255U), 128, 1);
}

TEST(CCustomWidget, ErasesUnlessToldNotTo)
{
    for (const bool noErase : {false, true})
    {
        CWindowRig rig;
        CCustomWidget bottom;
        CCustomWidget top(noErase);
        bottom.SetBackgroundColor({1, 2, 3});
        top.SetBackgroundColor({4, 5, 6});
        bottom.Show(true);
        rig.window->SetContent(&bottom, false);
        bottom.AddChild(&top, false);
        Place(top, {10, 10, 10, 10});
        rig.platform.Pump();
        EXPECT_EQ(rig.PixelAt(15, 15), noErase ? 0x010203U : 0x040506U);
        EXPECT_EQ(rig.PixelAt(5, 5), 0x010203U);
        rig.window->SetContent(nullptr, false);
    }
}

TEST(CCustomWidget, WindowIsBlackBeneathContentThatDoesNotCoverIt)
{
    CWindowRig rig;
    CCustomWidget content(true);
    CNotingEvents events(content, "content", rig.script);
    events.fills = true;
    events.color = {200, 100, 50};
    content.Show(true);
    rig.window->SetContent(&content, false);
    rig.platform.Pump();
    EXPECT_EQ(rig.PixelAt(5, 5), 0xc86432U);
    events.fills = false;
    content.Invalidate();
    rig.platform.Pump();
    EXPECT_EQ(rig.PixelAt(5, 5), 0U);
    rig.window->SetContent(nullptr, false);
}

TEST(CCustomWidget, ContentThatIsSeenThroughIsBlendedWithBlackAtEachPaint)
{
    CWindowRig rig;
    CCustomWidget content;
    content.SetBackgroundColor({200, 100, 50});
    content.SetOpacity(0.5F);
    content.Show(true);
    rig.window->SetContent(&content, false);
    for (int paint = 0; paint < 2; ++paint)
    {
        content.Invalidate();
        rig.platform.Pump();
        EXPECT_NEAR(static_cast<int>(rig.PixelAt(5, 5) >> 16U), 100, 1);
        EXPECT_NEAR(static_cast<int>(rig.PixelAt(5, 5) & 255U), 25, 1);
    }
    rig.window->SetContent(nullptr, false);
}

TEST(CIsolationWidget, LetsThePointerThroughWhereItsChildIsNot)
{
    CWindowRig rig;
    CNotingMouse contentMouse("c", rig.script);
    CNotingMouse childMouse("i", rig.script);
    CCustomWidget content;
    CIsolationWidget isolation;
    CWidget child;
    content.SetMouseTarget(&contentMouse, false);
    child.SetMouseTarget(&childMouse, false);
    content.Show(true);
    rig.window->SetContent(&content, false);
    content.AddChild(&isolation, false);
    isolation.AddChild(&child, false);
    Place(isolation, {0, 0, 100, 100});
    Place(child, {10, 10, 10, 10});
    rig.Move(50, 50);
    rig.Move(15, 15);
    EXPECT_EQ(rig.TakeScript(), "c.enter c.move c.leave i.enter i.move ");
    rig.window->SetContent(nullptr, false);
}
