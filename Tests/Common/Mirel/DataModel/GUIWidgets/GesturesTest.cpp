#include "CScriptedMenus.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamButton.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamDropDownList.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamKnob.h"
#include "Mirel/DataModel/GUIWidgets/CGUIImageParamToggleSwitch.h"
#include "Mirel/DataModel/GUIWidgets/CGUIParamTextControl.h"
#include "Mirel/DataModel/GUIWidgets/CSkinLinearParamSlider.h"
#include "PushRig.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <random>

using namespace Mirel;
using namespace Mirel::DataModel::GUIWidgets;
using GUI::ENativeKey;
using Tests::CControlRig;
using Tests::CNotedParam;

namespace
{

/// Every value must come between a begin and its end, which must alternate.
void ExpectPaired(const std::string& script, const std::string& where)
{
    bool isOpen = false;
    for (const char c : script)
    {
        if (c == '[' || c == ']')
        {
            EXPECT_EQ(isOpen, c == ']') << where << script;
            isOpen = c == '[';
        }
        else
        {
            EXPECT_TRUE(isOpen) << where << script;
        }
    }
    EXPECT_FALSE(isOpen) << where << script;
}

/// One widget of each kind that changes a parameter, in a row.
class CCrowd : public CControlRig
{
public:
    static constexpr int count = 6;
    static constexpr int side = 20;
    static constexpr int pitch = 30;

    CCrowd() : CControlRig({count * pitch, 60}) {}

    void Make(int i)
    {
        auto& param = Param(i).param;
        const auto push = [] { return SPushImage{Tests::MakeCatalog({side, side}), true}; };
        const std::array<std::function<std::unique_ptr<GUI::CLightWidget>()>, count> makers = {
            [&]
            {
                return std::make_unique<CGUIImageParamKnob>(
                    param, Tests::MakeCatalog({side, side}, 2), true, 2,
                    Graphics::CMultiFilmStripDrawer::EOrientation::Vertical, nullptr, root);
            },
            [&]
            {
                auto slider = std::make_unique<CSkinLinearParamSlider>(
                    param, SLinearImages{Tests::MakeCatalog({side, side}), Tests::MakeCatalog({6, 6}), true},
                    nullptr, root);
                slider->SetTrack({true, 3, 3});
                return slider;
            },
            [&]
            {
                auto text = std::make_unique<CGUIParamTextControl>(param, nullptr, root);
                text->SetSize({side, side});
                return text;
            },
            [&]
            {
                auto button = std::make_unique<CGUIImageParamButton>(param, push(), root);
                button->GetControl().SetPositionsCount(4);
                button->GetPushGraphics().SetLoop(true);
                return button;
            },
            [&] { return std::make_unique<CGUIImageParamToggleSwitch>(param, push(), root); },
            [&]
            {
                auto list = std::make_unique<CGUIImageParamDropDownList>(param, push(), &menus, root);
                list->GetControl().SetPositionsCount(3);
                return list;
            }};
        Widget(i) = makers[static_cast<std::size_t>(i)]();
        Widget(i)->Move({i * pitch + 5, 20});
    }

    CNotedParam& Param(int i) { return *params[static_cast<std::size_t>(i)]; }
    std::unique_ptr<GUI::CLightWidget>& Widget(int i) { return widgets[static_cast<std::size_t>(i)]; }

    Tests::CScriptedMenus menus;
    std::array<std::unique_ptr<CNotedParam>, count> params;
    std::array<std::unique_ptr<GUI::CLightWidget>, count> widgets;
};

} // namespace

TEST(Gestures, ArePairedWhateverHappensInTheMiddle)
{
    constexpr int rounds = 100;
    constexpr int stepsPerRound = 400;
    std::array<std::ptrdiff_t, CCrowd::count> gestures{};
    for (unsigned seed = 0; seed < rounds; ++seed)
    {
        std::minstd_rand engine(seed + 1);
        const auto below = [&engine](int n) { return static_cast<int>(engine() % static_cast<unsigned>(n)); };
        CCrowd rig;
        for (auto& param : rig.params)
        {
            param = std::make_unique<CNotedParam>(Tests::Real(0.0F, 1.0F, 0.25F));
        }
        for (int i = 0; i < CCrowd::count; ++i)
        {
            rig.Make(i);
        }
        bool isDown = false;
        for (int step = 0; step < stepsPerRound; ++step)
        {
            const int i = below(CCrowd::count);
            switch (below(14))
            {
            case 0:
            case 1:
            case 2:
            case 3:
                rig.Move(i * CCrowd::pitch + 6 + below(24), 15 + below(30));
                break;
            case 4:
            case 5:
            case 6:
                isDown ? rig.Release() : rig.Press();
                isDown = !isDown;
                break;
            case 7:
                rig.platform.TurnWheel(below(5) - 2);
                break;
            case 8:
                rig.platform.SetModifiers(
                    below(2) == 0 ? 0 : (below(2) == 0 ? CControlRig::shift : CControlRig::alternate));
                break;
            case 9:
            {
                constexpr ENativeKey keys[] = {ENativeKey::Return, ENativeKey::Up, ENativeKey::Left,
                                               ENativeKey::PageDown, ENativeKey::Character};
                const ENativeKey key = keys[below(5)];
                below(2) == 0 ? rig.Down(key, U'd') : rig.Up(key, U'd');
                break;
            }
            case 10:
                rig.Widget(i)->Show(below(3) != 0);
                break;
            case 11:
                rig.Widget(i)->Enable(below(3) != 0);
                break;
            case 12:
                below(2) == 0 ? rig.platform.LoseCapture() : rig.menus.Close();
                break;
            default:
                if (below(4) == 0)
                {
                    rig.Make(i);
                }
                else if (rig.menus.menu != nullptr)
                {
                    rig.menus.Choose(below(3));
                }
            }
        }
        for (int i = 0; i < CCrowd::count; ++i)
        {
            rig.Widget(i).reset();
            const std::string script = rig.Param(i).Take();
            ExpectPaired(script, "seed " + std::to_string(seed) + " widget " + std::to_string(i) + ": ");
            gestures[static_cast<std::size_t>(i)] += std::count(script.begin(), script.end(), '[');
        }
        EXPECT_EQ(rig.Param(4).param.GetValue(), 0.0F); // the switch lets go of its parameter
        if (::testing::Test::HasFailure())
        {
            return;
        }
    }
    for (const std::ptrdiff_t number : gestures)
    {
        EXPECT_GT(number, 50);
    }
}

TEST(Gestures, KeyInTheMiddleOfADragDoesNotEndIt)
{
    CCrowd rig;
    rig.params[0] = std::make_unique<CNotedParam>(Tests::Real(0.0F, 1.0F, 0.25F));
    rig.Make(0);
    rig.Move(15, 30);
    rig.Press();
    rig.Type(ENativeKey::Character, U'd');
    rig.Move(15, 10);
    rig.Release();
    EXPECT_EQ(rig.Param(0).Take(), "[0.25 0.10 ]");
}
