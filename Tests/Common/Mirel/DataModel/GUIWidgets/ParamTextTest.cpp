#include "Common/Mirel/GUI/Popups/PopupRig.h"
#include "Mirel/DataModel/GUIWidgets/CGUIParamTextControl.h"
#include "Mirel/DataModel/GUIWidgets/CGUIParamTextWidget.h"
#include "Mirel/DataModel/GUIWidgets/CGUIStringViewer.h"
#include "Mirel/DataModel/Objects/CCaptureString.h"
#include "Mirel/DataModel/Objects/CEnumToText.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/Graphics/TextPlacing.h"
#include "PushRig.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using Graphics::CColor;
using GUI::ENativeKey;
using Tests::CControlRig;
using Tests::CNotedParam;

namespace
{

class COpener : public IFineEditOpener
{
public:
    void OpenFineEdit(DataModel::Controls::CParamControl& control, Core::CPoint position) override
    {
        opened = &control;
        place = position;
    }

    DataModel::Controls::CParamControl* opened = nullptr;
    Core::CPoint place;
};

constexpr CColor normal = {1, 1, 1};
constexpr CColor disabled = {2, 2, 2};
constexpr CColor hover = {3, 3, 3};
constexpr CColor focus = {4, 4, 4};
constexpr CColor pushed = {5, 5, 5};

/// At 10, 10, of 50 by 20 pixels.
struct CText : public CControlRig
{
    CText() : noted(Tests::Real(0.0F, 1.0F, 0.25F))
    {
        noted.param.SetValue(0.5F);
        widget = std::make_unique<CGUIParamTextControl>(noted.param, &opener, root);
        widget->SetPixelRange(100.0F);
        widget->SetSize({50, 20});
        widget->Move({10, 10});
        widget->SetColors({normal, disabled, hover, focus, pushed});
        noted.Take();
    }

    CColor Color() const { return widget->GetTextDrawer().GetColor(); }

    COpener opener;
    CNotedParam noted;
    std::unique_ptr<CGUIParamTextControl> widget;
};

} // namespace

TEST(CGUIParamTextWidget, ShowsTheValueAndFollowsIt)
{
    CControlRig rig;
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CGUIParamTextWidget widget(noted.param, rig.root);
    EXPECT_STREQ(widget.GetText(), "0.00");
    noted.param.SetValue(0.5F);
    EXPECT_STREQ(widget.GetText(), "0.50");
    EXPECT_EQ(widget.GetMouseTarget(), nullptr);
}

TEST(CGUIParamTextWidget, FitsTheLongestOfItsTexts)
{
    using namespace DataModel::Objects;
    const auto choice = [](const std::vector<std::string>& names)
    {
        const auto last = static_cast<float>(names.size() - 1);
        return CParamInfo(ValueKindInteger, 0.0F, last, 0.0F, "", "", "", new CEnumToText(names, 0.0F), true);
    };
    const Graphics::CSharedFont font = Tests::TestLook().font;
    const auto widthOf = [&font](const char* text)
    { return Graphics::MeasureText(font.get(), text, {}).width; };
    CCaptureParam param(choice({"a", "the longest name", "b"}));
    CGUIParamTextWidget widget(param);
    widget.GetTextDrawer().SetFont(font);
    widget.SetSize({7, 8});
    widget.FitToValues(true, false);
    EXPECT_EQ(widget.GetSize().width, widthOf("the longest name"));
    EXPECT_EQ(widget.GetSize().height, 8);
    param.GetInfo().CopyFrom(choice({"up", "down", "elsewhere", "c"}));
    EXPECT_EQ(widget.GetSize().width, widthOf("elsewhere"));
    widget.FitToValues(false, false);
    param.GetInfo().CopyFrom(choice({"a", "b"}));
    EXPECT_EQ(widget.GetSize().width, widthOf("elsewhere"));
}

TEST(CGUIParamTextWidget, OnlyAnotherTextIsPainted)
{
    CControlRig rig;
    CNotedParam noted(Tests::Real(0.0F, 1.0F));
    CGUIParamTextWidget widget(noted.param, rig.root);
    widget.SetSize({50, 20});
    noted.param.SetValue(0.5F);
    rig.platform.Pump();
    noted.param.SetValue(0.501F);
    EXPECT_FALSE(rig.platform.Pump());
    noted.param.SetValue(0.51F);
    EXPECT_TRUE(rig.platform.Pump());
}

TEST(CGUIStringViewer, ShowsTheStringAndFollowsIt)
{
    CControlRig rig;
    DataModel::Objects::CCaptureString string;
    string.SetValue("before");
    {
        CGUIStringViewer widget(string, rig.root);
        EXPECT_STREQ(widget.GetText(), "before");
        string.SetValue("after");
        EXPECT_STREQ(widget.GetText(), "after");
    }
    string.SetValue("gone"); // this would reach freed memory
}

TEST(CGUIParamTextControl, DragsAsAKnobDoes)
{
    CText rig;
    rig.Move(30, 20);
    rig.Press();
    rig.Move(30, 10);
    EXPECT_EQ(rig.noted.Take(), "[0.60 ");
    EXPECT_STREQ(rig.widget->GetText(), "0.60");
    rig.Release();
    EXPECT_EQ(rig.noted.Take(), "]");
    rig.platform.TurnWheel(-1.0); // over nothing: the pointer stands on the edge
    rig.Move(30, 20);
    rig.platform.TurnWheel(-5.0);
    EXPECT_EQ(rig.noted.Take(), "[0.55 ]");
    rig.Type(ENativeKey::Up);
    EXPECT_EQ(rig.noted.Take(), "[0.56 ]");
}

TEST(CGUIParamTextControl, ColorTellsTheState)
{
    CText rig;
    EXPECT_EQ(rig.Color(), normal);
    rig.Move(30, 20);
    EXPECT_EQ(rig.Color(), hover);
    rig.Press();
    EXPECT_EQ(rig.Color(), pushed);
    rig.Release();
    EXPECT_EQ(rig.Color(), focus) << "under the pointer, too";
    rig.MoveAway();
    EXPECT_EQ(rig.Color(), focus);
    rig.widget->Enable(false);
    EXPECT_EQ(rig.Color(), disabled);
}

TEST(CGUIParamTextControl, StateWithoutAColorHasTheNormalOne)
{
    CText rig;
    rig.widget->SetColors({normal, {}, {}, {}, {}});
    rig.Move(30, 20);
    EXPECT_EQ(rig.Color(), normal);
    rig.Press();
    EXPECT_EQ(rig.Color(), normal);
    rig.Release();
}

TEST(CGUIParamTextControl, DoubleClickAndEOpenTheWindowForTyping)
{
    CText rig;
    rig.Click(30, 20);
    EXPECT_EQ(rig.opener.opened, nullptr);
    rig.Click(30, 20);
    EXPECT_EQ(rig.opener.opened, &rig.widget->GetControl());
    rig.opener.opened = nullptr;
    rig.Type(ENativeKey::Character, U'e');
    EXPECT_EQ(rig.opener.opened, &rig.widget->GetControl());
    const Core::CPoint origin = rig.Native().GetScreenPosition();
    EXPECT_EQ(rig.opener.place, (Core::CPoint{origin.x + 10, origin.y + 10}));
}

TEST(CGUIParamTextControl, DragThatCannotEndEndsOnce)
{
    for (const int way : {0, 1, 2})
    {
        CText rig;
        rig.Move(30, 20);
        rig.Press();
        if (way == 0)
        {
            rig.widget->Show(false);
        }
        else if (way == 1)
        {
            rig.widget->Enable(false);
        }
        else
        {
            rig.widget.reset();
        }
        rig.Move(30, 10);
        rig.Release();
        EXPECT_EQ(rig.noted.Take(), "[]") << way;
    }
}
