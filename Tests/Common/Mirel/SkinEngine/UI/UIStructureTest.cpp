#include "Mirel/DataModel/GUIWidgets/CGUIStringViewer.h"
#include "Mirel/DataModel/Objects/EValueKind.h"
#include "Mirel/GUI/CBitmapLightWidget.h"
#include "Mirel/GUI/CTextLightWidget.h"
#include "Mirel/SkinEngine/UI/CGUIImageGroupBox.h"
#include "Mirel/SkinEngine/UI/CSkinWidgetAdapter.h"
#include "Support/EventCounter.h"
#include "UIRig.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Mirel::SkinEngine
{
namespace
{

using namespace DataModel::Objects;
using testing::ElementsAre;
using testing::IsEmpty;
using Tests::CUIRig;

/// A widget of 20 by 10.
const std::string box = "<TEXT width='20' height='10'/>";

std::string TextOf(const IConstCaptureParam& param, float value)
{
    char* text = nullptr;
    param.GetInfo().GetValueToText().ToText(value, text);
    const std::unique_ptr<char[]> owned(text);
    return text;
}

TEST(UIStructure, CellsArrangeWhatStandsInThem)
{
    struct SRow
    {
        std::string skin;
        std::vector<int> first;
        std::vector<int> second;
    };
    // The root, a row of 400 by 300, has its content in the middle.
    const SRow rows[] = {
        {"<ROW>" + box + box + "</ROW>", {180, 145, 20, 10}, {200, 145, 20, 10}},
        {"<COLUMN>" + box + box + "</COLUMN>", {190, 140, 20, 10}, {190, 150, 20, 10}},
        {"<LAYER_STACK>" + box + box + "</LAYER_STACK>", {190, 145, 20, 10}, {190, 145, 20, 10}},
        {"<CELL>" + box + box + "</CELL>", {190, 140, 20, 10}, {190, 150, 20, 10}},
        {"<CELL layout_type='row'>" + box + box + "</CELL>", {180, 145, 20, 10}, {200, 145, 20, 10}},
        {"<CELL layout_type='layer_stack'>" + box + box + "</CELL>", {190, 145, 20, 10}, {190, 145, 20, 10}},
        {"<CELL layout_type='other'>" + box + box + "</CELL>", {190, 140, 20, 10}, {190, 150, 20, 10}},
        {"<ROW spacing='10'>" + box + box + "</ROW>", {175, 145, 20, 10}, {205, 145, 20, 10}},
        {"<ROW width='400' height='300' margin='7' internal_h_align='left' internal_v_align='top'>" + box +
             box + "</ROW>",
         {7, 145, 20, 10},
         {27, 145, 20, 10}},
        {"<ROW width='400' height='300' margin='7' h_margin='5' internal_h_align='right' "
         "internal_v_align='bottom'>" +
             box + box + "</ROW>",
         {355, 145, 20, 10},
         {375, 145, 20, 10}},
        {"<ROW width='100%' height='100%'><TEXT width='50%' height='100%'/><TEXT width='50%' "
         "height='10'/></ROW>",
         {0, 0, 200, 300},
         {200, 145, 200, 10}},
        {"<ROW width='400' height='300'><TEXT width='20' height='10' flex='1'/>" + box + "</ROW>",
         {0, 145, 380, 10},
         {380, 145, 20, 10}},
        {"<LAYER_STACK width='400' height='300'><TEXT width='20' height='10' h_align='left' "
         "v_align='bottom'/>"
         "<TEXT width='20' height='10' h_position='31' v_position='32'/></LAYER_STACK>",
         {0, 290, 20, 10},
         {31, 32, 20, 10}},
        {"<ROW><TEXT width='20' height='10' display='false'/>" + box + "</ROW>", {}, {190, 145, 20, 10}},
    };
    for (const SRow& row : rows)
    {
        CUIRig rig;
        EXPECT_TRUE(rig.Build(row.skin)) << row.skin;
        EXPECT_THAT(rig.TakeMessages(), IsEmpty()) << row.skin;
        if (!row.first.empty())
        {
            EXPECT_EQ(rig.Place(0), row.first) << row.skin;
        }
        EXPECT_EQ(rig.Place(1), row.second) << row.skin;
    }
}

TEST(UIStructure, TablesLineUpTheirColumns)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<TABLE spacing='4' h_spacing='6'><TABLE_ROW>" + box + box +
                          "</TABLE_ROW><TABLE_ROW height='30'>" + "<TEXT width='40' height='10'/>" + box +
                          "</TABLE_ROW></TABLE>"));
    // 66 by 44: columns of 40 and 20, 6 between them; rows of 10 and 30, 4 between them.
    EXPECT_EQ(rig.Place(2), (std::vector<int>{167, 152, 40, 10}));
    EXPECT_EQ(rig.Place(1), (std::vector<int>{213, 128, 20, 10}));
    EXPECT_EQ(rig.Place(3), (std::vector<int>{213, 152, 20, 10}));
}

TEST(UIStructure, SpacingOfATableIsThatOfBothAxesUnlessTheySayOtherwise)
{
    const struct
    {
        std::string attributes;
        int right; ///< of the second column and row, from the first
        int down;
    } rows[] = {{"", 20, 10},
                {"spacing='4'", 24, 14},
                {"spacing='4' h_spacing='6'", 26, 14},
                {"spacing='4' v_spacing='-3'", 24, 7},
                {"h_spacing='6' v_spacing='7'", 26, 17}};
    for (const auto& row : rows)
    {
        CUIRig rig;
        EXPECT_TRUE(rig.Build("<TABLE " + row.attributes + "><TABLE_ROW>" + box + box +
                              "</TABLE_ROW><TABLE_ROW>" + box + box + "</TABLE_ROW></TABLE>"));
        EXPECT_EQ(rig.Place(3)[0] - rig.Place(0)[0], row.right) << row.attributes;
        EXPECT_EQ(rig.Place(3)[1] - rig.Place(0)[1], row.down) << row.attributes;
    }
}

TEST(UIStructure, GroupsAreAsLargeAsTheirContentUnlessTheySayOtherwise)
{
    const struct
    {
        std::string attributes;
        std::vector<int> place; ///< of the group box, in the middle of 400 by 300
    } rows[] = {{"", {190, 145, 20, 10}},
                {"width='-1' height='-1'", {190, 145, 20, 10}},
                {"width='60' height='-1'", {170, 145, 60, 10}},
                {"width='60' height='40'", {170, 130, 60, 40}},
                {"height='40'", {190, 130, 20, 40}},
                {"width='50%' height='20%'", {100, 120, 200, 60}},
                {"width='none' height=''", {190, 145, 20, 10}}};
    for (const auto& row : rows)
    {
        CUIRig rig;
        EXPECT_TRUE(rig.Build("<IMAGE_GROUP_BOX " + row.attributes + ">" + box + "</IMAGE_GROUP_BOX>"));
        EXPECT_EQ(rig.Place(0), row.place) << row.attributes;
    }
}

TEST(UIStructure, SharesOfRoundSizesAreWholePixels)
{
    for (const int percents : {1, 2, 5, 10, 20, 40, 80, 100})
    {
        const std::string share = std::to_string(percents) + "%";
        CUIRig rig;
        EXPECT_TRUE(rig.Build("<TEXT width='" + share + "' height='" + share + "'/>"));
        EXPECT_EQ(rig.Place(0)[2], 4 * percents) << share;
        EXPECT_EQ(rig.Place(0)[3], 3 * percents) << share;
        CUIRig table;
        EXPECT_TRUE(table.Build("<TABLE height='300'><TABLE_ROW height='" + share +
                                "'><TEXT width='20' height='100%'/></TABLE_ROW></TABLE>"));
        EXPECT_EQ(table.Place(0)[3], 3 * percents) << share;
    }
}

TEST(UIStructure, RowsOfTablesHaveSharesPixelsOrNeither)
{
    CUIRig rig;
    EXPECT_TRUE(
        rig.Build("<TABLE height='200'><TABLE_ROW height='25%'><TEXT width='20' height='100%'/></TABLE_ROW>"
                  "<TABLE_ROW height='25'><TEXT width='20' height='100%'/></TABLE_ROW>"
                  "<TABLE_ROW height=''>" +
                  box + "</TABLE_ROW></TABLE>"));
    EXPECT_EQ(rig.Place(0)[3], 50);
    EXPECT_EQ(rig.Place(1)[3], 25);
    EXPECT_EQ(rig.Place(2)[3], 10);
}

TEST(UIStructure, RowsStandInTablesAlone)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<TABLE_ROW>" + box + "</TABLE_ROW><TABLE>" + box + "</TABLE>"));
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("0: Cannot TABLE_ROW element outside a TABLE element.",
                                                "1: TEXT: element of a TABLE outside a TABLE_ROW."));
    EXPECT_NE(rig.Widget(0), nullptr);
}

TEST(UIStructure, TheRootIsGivenWhatItsElementSays)
{
    CUIRig rig;
    rig.WriteImage("back.png", 30, 20);
    EXPECT_TRUE(
        rig.BuildFile("<SKIN name='n' author='a' comment='c' language_version='1.8' show_info='false' "
                      "show_warnings='false' refresh_priority='high' background_image='back.png' "
                      "repeat='true' background_color='#010203' width='123'/>"));
    EXPECT_EQ(rig.root.name + rig.root.author + rig.root.comment + rig.root.languageVersion, "nac1.8");
    EXPECT_FALSE(rig.root.showInfo);
    EXPECT_FALSE(rig.root.showWarnings);
    EXPECT_EQ(rig.root.refreshPriority, 2);
    ASSERT_NE(rig.root.background, nullptr);
    EXPECT_EQ(rig.root.background->GetSize().width, 30);
    EXPECT_TRUE(rig.root.backgroundRepeats);
    EXPECT_EQ(rig.root.backgroundColor, (Graphics::CColor{1, 2, 3}));
    EXPECT_EQ(rig.root.width, 123);
    EXPECT_EQ(rig.root.height, -1);
    EXPECT_TRUE(rig.root.lightMode);
    EXPECT_FALSE(rig.root.systemWidget);
    EXPECT_TRUE(rig.BuildFile("<SKIN refresh_priority='other' light_mode='false' system_widget='true'/>"));
    EXPECT_EQ(rig.root.refreshPriority, 0);
    EXPECT_TRUE(rig.root.showInfo);
    EXPECT_FALSE(rig.root.lightMode);
    EXPECT_TRUE(rig.root.systemWidget);
    EXPECT_EQ(rig.root.background, nullptr);
    EXPECT_TRUE(rig.BuildFile("<SKIN refresh_priority='normal' background_color='red'/>"));
    EXPECT_EQ(rig.root.refreshPriority, 1);
    EXPECT_EQ(rig.root.backgroundColor, (Graphics::CColor{255, 0, 0}));
    EXPECT_EQ(rig.root.background, nullptr);
}

TEST(UIStructure, PassesAreReported)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build(""));
    EXPECT_THAT(rig.TakeMessages(true), ElementsAre("2: Parsing the skin...", "2: Building widgets..."));
    EXPECT_FALSE(rig.BuildFile("<MODEL/>"));
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("0: Invalid file: root element must be 'SKIN'",
                                                "0: Fatal error: skin parsing failed"));
}

TEST(UIStructure, ColoursAndFontsAreInherited)
{
    CUIRig rig;
    EXPECT_TRUE(rig.BuildFile("<SKIN text_color='#010203'><ROW font_size='20' text_color='red'>"
                              "<TEXT value='a' font_weight='bold'/><TEXT value='b'/></ROW>"
                              "<TEXT value='c' text_color='ugly'/></SKIN>"));
    const auto& a = rig.Widget<GUI::CTextLightWidget>(0)->GetTextDrawer();
    const auto& b = rig.Widget<GUI::CTextLightWidget>(1)->GetTextDrawer();
    const auto& c = rig.Widget<GUI::CTextLightWidget>(2)->GetTextDrawer();
    EXPECT_EQ(a.GetColor(), (Graphics::CColor{255, 0, 0}));
    EXPECT_EQ(a.GetFont()->GetDescription().height, 20);
    EXPECT_EQ(a.GetFont()->GetDescription().weight, 700);
    EXPECT_EQ(b.GetFont()->GetDescription().weight, 400);
    EXPECT_EQ(b.GetFont()->GetDescription().height, 20);
    EXPECT_EQ(c.GetColor(), (Graphics::CColor{1, 2, 3}));
    EXPECT_EQ(c.GetFont()->GetDescription().height, 12);
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("1: TEXT: 'ugly' is no colour."));
}

TEST(UIStructure, TextsShowAValueOrAString)
{
    CUIRig rig;
    auto& string = rig.AddString("s", "short");
    EXPECT_TRUE(rig.Build(
        "<TEXT value='hello'/><TEXT string_id='s'/><TEXT_FIELD string_id='s' width='80' height='9'/>"));
    EXPECT_STREQ(rig.Widget<GUI::CTextLightWidget>(0)->GetText(), "hello");
    auto* text = rig.Widget<DataModel::GUIWidgets::CGUIStringViewer>(1);
    auto* field = rig.Widget<DataModel::GUIWidgets::CGUIStringViewer>(2);
    ASSERT_NE(text, nullptr);
    ASSERT_NE(field, nullptr);
    EXPECT_STREQ(text->GetText(), "short");
    EXPECT_GT(rig.Place(0)[2], 0);
    const int before = rig.Place(1)[2];
    string.SetValue("something much longer");
    EXPECT_STREQ(text->GetText(), "something much longer");
    EXPECT_GT(rig.Place(1)[2], before);
    EXPECT_EQ(rig.Place(2)[2], 80);
    EXPECT_EQ(rig.Place(2)[3], 9);
}

TEST(UIStructure, ImagesAreShownOnceRepeatedOrStretched)
{
    using ETileMode = Graphics::CImageGraphics::ETileMode;
    CUIRig rig;
    rig.WriteImage("i.png", 30, 20);
    EXPECT_TRUE(
        rig.Build("<IMAGE image='i.png'/><IMAGE image='i.png' repeat='true' width='90'/>"
                  "<IMAGE image='i.png' stretch='true' width='90' height='9'/><IMAGE image='none.png'/>"));
    EXPECT_EQ(rig.Place(0)[2], 30);
    EXPECT_EQ(rig.Place(1)[2], 90);
    EXPECT_EQ(rig.Place(1)[3], 20);
    EXPECT_EQ(rig.Place(2)[3], 9);
    EXPECT_EQ(rig.Widget<GUI::CBitmapLightWidget>(1)->GetImageGraphics().GetTileMode(), ETileMode::Repeat);
    EXPECT_EQ(rig.Widget<GUI::CBitmapLightWidget>(2)->GetImageGraphics().GetTileMode(), ETileMode::Stretch);
    EXPECT_EQ(rig.Widget(3)->GetSize().width, 0);
    EXPECT_EQ(rig.TakeMessages().size(), 1U);
}

TEST(UIStructure, AGroupBoxHoldsElements)
{
    CUIRig rig;
    for (const char* part :
         {"top_left", "top", "top_right", "left", "center", "right", "bottom_left", "bottom"})
    {
        rig.WriteImage(std::string("b_") + part + ".png", 4, 4);
    }
    rig.WriteImage("other.png", 4, 4);
    EXPECT_TRUE(rig.Build("<IMAGE_GROUP_BOX image='b.png' image_bottom_right='other.png' h_margin='5'>" +
                          box + box +
                          "</IMAGE_GROUP_BOX><IMAGE_GROUP_BOX image='b.png' width='50' height='40'/>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    ASSERT_NE(rig.Widget<CGUIImageGroupBox>(0), nullptr);
    EXPECT_EQ(rig.images.GetCount(), 9U);
    // 30 by 20 beside 50 by 40.
    EXPECT_EQ(rig.Place(0), (std::vector<int>{160, 140, 30, 20}));
    EXPECT_EQ(rig.Place(0, 0), (std::vector<int>{5, 0, 20, 10}));
    EXPECT_EQ(rig.Place(0, 1), (std::vector<int>{5, 10, 20, 10}));
    EXPECT_EQ(rig.Place(1), (std::vector<int>{190, 130, 50, 40}));
}

TEST(UIStructure, CommonAttributesReachTheWidget)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<TEXT value='a' visible='false' auto_focus='false' opacity='50%' buffered='true' "
                          "mouse_sensitive='no' cursor='system::hand'/><TEXT value='b'/>"));
    const GUI::CLightWidget& a = *rig.Widget(0);
    EXPECT_FALSE(a.IsShown());
    EXPECT_FALSE(a.GetFocusOnClick());
    EXPECT_FLOAT_EQ(a.GetOpacity(), 0.5f);
    EXPECT_TRUE(a.IsBuffered());
    EXPECT_FALSE(a.IsMouseSensitive());
    ASSERT_NE(a.GetCursor(), nullptr);
    const GUI::CLightWidget& b = *rig.Widget(1);
    EXPECT_TRUE(b.IsShown());
    EXPECT_TRUE(b.GetFocusOnClick());
    EXPECT_FALSE(b.IsBuffered());
    EXPECT_TRUE(b.IsMouseSensitive());
    EXPECT_EQ(b.GetCursor(), nullptr);
}

TEST(UIStructure, CursorsAreStandardOnesOrImages)
{
    CUIRig rig;
    rig.WriteImage("c.png", 8, 8);
    std::string skin;
    const std::vector<std::string> names = {
        "normal",        "hand", "cross", "size",  "size_h",  "size_v", "size_up_left",
        "size_up_right", "wait", "no",    "Ibeam", "working", "up",     "open_hand"};
    for (const std::string& name : names)
    {
        skin += "<TEXT cursor='system::" + name + "'/>";
    }
    EXPECT_TRUE(
        rig.Build(skin + "<TEXT cursor='c.png'/><TEXT cursor='system::fist'/><TEXT cursor='d.png'/>"));
    for (int i = 0; i < static_cast<int>(names.size()); ++i)
    {
        EXPECT_NE(rig.Widget(i)->GetCursor(), nullptr) << names[static_cast<std::size_t>(i)];
    }
    ASSERT_NE(rig.Widget(14)->GetCursor(), nullptr);
    EXPECT_NE(rig.Widget(14)->GetCursor()->GetPicture(), nullptr);
    EXPECT_EQ(rig.Widget(15)->GetCursor(), nullptr);
    EXPECT_THAT(rig.TakeMessages(),
                ElementsAre("1: 'fist': unknown system cursor. Using default cursor instead.",
                            "1: 'd.png': could not load cursor. Using default cursor instead."));
}

TEST(UIStructure, FontsThatCannotBeLoadedAreReported)
{
    CUIRig rig;
    rig.folder.Write("broken.ttf", "no font");
    EXPECT_TRUE(rig.Build("<LOAD_FONT/><LOAD_FONT file='broken.ttf'/><LOAD_FONT file='missing.ttf'/>"));
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("1: Cannot load font.", "1: Could not load font broken.ttf",
                                                "1: Could not load font missing.ttf"));
}

TEST(UIStructure, ElementsWithoutAWidgetSaySoAndTheirContentIsBuilt)
{
    for (const char* name :
         {"TEXT_EDIT_BOX", "PARAM_TEXT_EDIT_BOX", "XYZ_PARAM_SCRATCH_PAD", "XYZ_IMAGE_PARAM_JOYSTICK",
          "XY_PARAM_PAD", "XY_ZOOM_SELECT_PAD", "COLOR_SCALE", "SURFACE_COLORMAP_2DPLOT", "VIEW_3D"})
    {
        CUIRig rig;
        EXPECT_TRUE(rig.Build(
            std::string("<").append(name).append(">").append(box).append("</").append(name).append(">")));
        EXPECT_THAT(rig.TakeMessages(), ElementsAre(std::string("1: ").append(name).append(
                                            ": this element is not supported yet.")));
        EXPECT_NE(rig.Widget(0), nullptr) << name;
    }
}

TEST(UIStructure, ViewsOfSolidsAndTheirObjectsHaveTheirPlaces)
{
    CUIRig rig;
    EXPECT_TRUE(
        rig.Build("<GRID_3D/><COLOR_SURFACE_3D/><XY_CURVES_3D/><VIEW_3D><VIEW_3D/><GRID_3D/></VIEW_3D>"));
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("0: Cannot create 3D Object outside of a 3D Viewer",
                                                "0: Cannot create 3D Object outside of a 3D Viewer",
                                                "0: Cannot create 3D Object outside of a 3D Viewer",
                                                "1: VIEW_3D: this element is not supported yet.",
                                                "0: Cannot instantiate a 3D viewer within another",
                                                "1: GRID_3D: this element is not supported yet."));
}

TEST(UIStructure, ElementsExposeTheirProperties)
{
    struct SRow
    {
        std::string id;
        std::string name;
        float min;
        float max;
        float value;
        int type;
        float shown; ///< A value and its text.
        std::string text;
    };
    CUIRig rig;
    EXPECT_TRUE(
        rig.Build("<CELL id='c' layout_type='row' spacing='3' h_margin='4' v_margin='5' max_spacing='50' "
                  "min_h_margin='-7' internal_h_align='left' flex='2' h_align='right'>"
                  "<TEXT id='t' opacity='0.5'/></CELL>"));
    EXPECT_THAT(rig.TakeMessages(), IsEmpty());
    const SRow rows[] = {
        {"c.visible", "c.visible", 0, 1, 1, 1, 0, "Hide"},
        {"c.layout_type", "Layout", 0, 2, 0, 1, 2, "stack"},
        {"c.spacing", "Spacing", -100, 50, 3, 1, 12, "12"},
        {"c.h_margin", "H Margin", -7, 100, 4, 1, 12, "12"},
        {"c.v_margin", "V Margin", -100, 100, 5, 1, 12, "12"},
        {"c.internal_h_align", "Internal V-Align", 0, 2, 0, 1, 1, "center"},
        {"c.internal_v_align", "Internal H-Align", 0, 2, 1, 1, 2, "bottom"},
        {"c.display", "Display", 0, 1, 1, 0, 1, "true"},
        {"c.h_align", "H Align", 0, 2, 2, 1, 0, "left"},
        {"c.v_align", "V Align", 0, 2, 1, 1, 0, "top"},
        {"c.flex", "Flex", 0, 100, 2, 2, 3, "3"},
        {"t.visible", "t.visible", 0, 1, 1, 1, 1, "Show"},
        {"t.mouse_over", "t.mouse_over", 0, 1, 0, 0, 1, "1"},
        {"t.focus", "t.focus", 0, 1, 0, 0, 1, "1"},
        {"t.opacity", "t.opacity", 0, 1, 0.5f, 2, 1, "1.00"},
    };
    for (const SRow& row : rows)
    {
        const auto* param = rig.Find<IConstCaptureParam>(row.id);
        ASSERT_NE(param, nullptr) << row.id;
        EXPECT_EQ(param->GetInfo().GetName(), row.name) << row.id;
        EXPECT_FLOAT_EQ(param->GetInfo().GetMin(), row.min) << row.id;
        EXPECT_FLOAT_EQ(param->GetInfo().GetMax(), row.max) << row.id;
        EXPECT_EQ(param->GetInfo().GetType(), row.type) << row.id;
        EXPECT_FLOAT_EQ(param->GetValue(), row.value) << row.id;
        EXPECT_EQ(TextOf(*param, row.shown), row.text) << row.id;
    }
    EXPECT_FALSE(rig.Has("t.spacing"));
    EXPECT_FALSE(rig.Has("c.opacity"));
}

TEST(UIStructure, ExposedPropertiesWorkBothWays)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<ROW id='r' width='400' height='300'><TEXT id='a' width='20' height='10'/>" + box +
                          "</ROW>"));
    rig.Param("r.spacing").SetValue(10);
    EXPECT_EQ(rig.Place(1)[0], 205);
    rig.Param("r.layout_type").SetValue(1);
    EXPECT_EQ(rig.Place(1)[1], 155);
    rig.Param("r.layout_type").SetValue(0);
    rig.Param("r.internal_h_align").SetValue(0);
    rig.Param("r.h_margin").SetValue(9);
    EXPECT_EQ(rig.Place(0)[0], 9);
    rig.Param("a.v_align").SetValue(0);
    EXPECT_EQ(rig.Place(0)[1], 0);
    rig.Param("a.flex").SetValue(1);
    EXPECT_EQ(rig.Place(0)[2], 352);
    rig.Param("a.display").SetValue(0);
    EXPECT_EQ(rig.Place(1)[0], 9);
    rig.Param("a.display").SetValue(1);
    Tests::CEventCounter visible(rig.Param("a.visible").GetValueChangedEventProvider());
    rig.Param("a.visible").SetValue(0);
    EXPECT_FALSE(rig.Widget(0)->IsShown());
    EXPECT_EQ(visible.Take(), 1);
    rig.Param("a.opacity").SetValue(0.25f);
    EXPECT_FLOAT_EQ(rig.Widget(0)->GetOpacity(), 0.25f);
    Tests::CEventCounter opacity(rig.Param("a.opacity").GetValueChangedEventProvider());
    rig.Widget(0)->SetOpacity(1.0f);
    EXPECT_EQ(opacity.Take(), 1);
    EXPECT_FLOAT_EQ(rig.Value("a.opacity"), 1.0f);
}

TEST(UIStructure, AHiddenGroupHidesAllInIt)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<ROW id='r'><COLUMN><TEXT id='a' value='a'/></COLUMN></ROW>"));
    EXPECT_TRUE(rig.Widget(0)->IsShown());
    rig.Param("r.visible").SetValue(0);
    EXPECT_FALSE(rig.Widget(0)->IsShown());
    EXPECT_FLOAT_EQ(rig.Value("a.visible"), 1);
    rig.Param("a.visible").SetValue(0);
    rig.Param("r.visible").SetValue(1);
    EXPECT_FALSE(rig.Widget(0)->IsShown());
    rig.Param("a.visible").SetValue(1);
    EXPECT_TRUE(rig.Widget(0)->IsShown());
}

TEST(UIStructure, OnlyWantedPropertiesAreExposed)
{
    CUIRig rig;
    rig.model.GetExposure().Use("r.spacing");
    EXPECT_TRUE(rig.Build("<ROW id='r'><TEXT string_id='t.text'/></ROW>", false));
    EXPECT_TRUE(rig.Has("r.spacing"));
    EXPECT_FALSE(rig.Has("r.h_margin"));
    EXPECT_TRUE(rig.model.GetExposure().IsWanted("t.text"));
}

TEST(UIStructure, ATakenIdentifierFailsTheParse)
{
    CUIRig rig;
    EXPECT_FALSE(rig.Build("<ROW id='r'/><ROW id='r'/>"));
    EXPECT_EQ(rig.TakeMessages().back(), "0: Fatal error: skin parsing failed");
}

TEST(UIStructure, ClosingTakesEverythingBack)
{
    CUIRig rig;
    rig.AddParam("p");
    const int before = rig.model.GetObjects().GetCount();
    const std::string skin = "<ROW id='r'><IMAGE_GROUP_BOX id='b'>" + box +
                             "</IMAGE_GROUP_BOX><TEXT id='t' system_widget='true'/>"
                             "<TABLE><TABLE_ROW>" +
                             box + "</TABLE_ROW></TABLE></ROW>";
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_TRUE(rig.Build(skin));
        EXPECT_GT(rig.model.GetObjects().GetCount(), before);
        EXPECT_EQ(rig.light.GetChildCount(), 2);
        EXPECT_EQ(rig.window.GetChildCount(), 1);
        rig.Close();
        EXPECT_EQ(rig.model.GetObjects().GetCount(), before);
        EXPECT_EQ(rig.light.GetChildCount(), 0);
        EXPECT_EQ(rig.window.GetChildCount(), 0);
        EXPECT_EQ(rig.light.GetCell().GetCurrentCell(), nullptr);
    }
}

TEST(UIStructure, SystemWidgetsHaveNativeHosts)
{
    CUIRig rig;
    EXPECT_TRUE(rig.Build("<IMAGE_GROUP_BOX width='100' height='50'>"
                          "<TEXT id='t' width='20' height='10' system_widget='true' "
                          "offscreen_type='card'/></IMAGE_GROUP_BOX>"));
    ASSERT_EQ(rig.window.GetChildCount(), 1);
    const auto* host = dynamic_cast<CSkinWidgetAdapter*>(rig.window.GetChild(0));
    ASSERT_NE(host, nullptr);
    EXPECT_EQ(host->GetOffscreenType(), 1);
    EXPECT_NE(dynamic_cast<GUI::CTextLightWidget*>(host->GetLightRoot()), nullptr);
    // In the middle of the box, which stands in the middle of the root.
    EXPECT_EQ(host->GetPosition(), (GUI::CPoint{190, 145}));
    EXPECT_EQ(host->GetSize(), (GUI::CSize{20, 10}));
    EXPECT_TRUE(host->IsShown());
    rig.Param("t.visible").SetValue(0);
    EXPECT_FALSE(host->IsShown());
    rig.Param("t.visible").SetValue(1);
    EXPECT_TRUE(host->IsShown());
}

TEST(UIStructure, WithoutLightModeEveryWidgetHasANativeHost)
{
    CUIRig rig;
    EXPECT_TRUE(rig.BuildFile("<SKIN light_mode='false'><IMAGE_GROUP_BOX width='100' height='50'>" + box +
                              "</IMAGE_GROUP_BOX>" + box + "</SKIN>"));
    EXPECT_EQ(rig.light.GetChildCount(), 0);
    ASSERT_EQ(rig.window.GetChildCount(), 2);
    GUI::CWidget* boxHost = rig.window.GetChild(0);
    EXPECT_EQ(boxHost->GetPosition(), (GUI::CPoint{140, 125}));
    ASSERT_EQ(boxHost->GetChildCount(), 1);
    EXPECT_EQ(boxHost->GetChild(0)->GetPosition(), (GUI::CPoint{40, 20}));
    EXPECT_EQ(rig.window.GetChild(1)->GetPosition(), (GUI::CPoint{240, 145}));
}

TEST(UIStructure, HostileSkinsEndInMessages)
{
    CUIRig rig;
    EXPECT_FALSE(rig.Build("<REPEAT count='17000'><ROW/></REPEAT>"));
    EXPECT_THAT(rig.TakeMessages(), ElementsAre("0: The skin has too many elements: the rest is left out.",
                                                "0: Fatal error: skin parsing failed"));
}

} // namespace
} // namespace Mirel::SkinEngine
