#include "Host/WidgetGallery/LayoutSection.h"

#include "Mirel/GUI/CLightWidgetLayoutCell.h"
#include "Mirel/GUI/Popups/DrawnParts.h"
#include "Mirel/Graphics/CBaseGraphics.h"
#include "Mirel/Graphics/CDrawSurface.h"
#include "Mirel/Layout/CTableLayoutCell.h"

#include <array>
#include <utility>

namespace WidgetGallery
{

namespace
{

using Layout::CLayoutOptions;
using Layout::EAlign;
using Layout::ELayoutType;

constexpr Core::CSize boxSize = {210, 110};
constexpr std::array<Graphics::CColor, 6> colors = {{{0x4C, 0x7F, 0xB0},
                                                     {0x5B, 0xA0, 0x6A},
                                                     {0xB0, 0x7A, 0x3C},
                                                     {0x8C, 0x62, 0xA8},
                                                     {0xA8, 0x52, 0x5E},
                                                     {0x4E, 0x9B, 0x9B}}};

/// A filled box with what it asks for written on it.
class CBoxPicture : public Graphics::CBaseGraphics
{
public:
    CBoxPicture(const GUI::CPopupLook& look_, Graphics::CColor color_, std::string text_)
        : look(look_),
          color(color_),
          text(std::move(text_))
    {
    }

    void Draw(Graphics::CDrawSurface& surface, const Graphics::CSimple2DRegion* /*region*/) override
    {
        surface.SetFillColor(color);
        surface.FillRect(GetArea());
        GUI::DrawLabel(surface, look.font, text, GetArea(), {0xFF, 0xFF, 0xFF},
                       Graphics::ETextHAlign::Center);
    }

private:
    GUI::CPopupLook look;
    Graphics::CColor color;
    std::string text;
};

/// A widget that is laid out, with its children.
class CLayoutBox : public GUI::CLightWidget
{
public:
    explicit CLayoutBox(const GUI::CPopupLook& look_) : look(look_)
    {
        SetGraphics(new CBoxPicture(look_, look_.button, ""), true);
    }

    ~CLayoutBox() override
    {
        GetCell().Clear();
        boxes.clear();
    }

    GUI::CLightWidget& MakeBox(Core::CSize size, const std::string& text)
    {
        auto box = std::make_unique<GUI::CLightWidget>(this);
        box->SetGraphics(new CBoxPicture(look, colors[boxes.size() % colors.size()], text), true);
        box->SetSize(size);
        boxes.push_back(std::move(box));
        return *boxes.back();
    }

    void AddBox(Core::CSize size, const std::string& text, const CLayoutOptions& options = CLayoutOptions())
    {
        GUI::CLightWidget& box = MakeBox(size, text);
        box.GetCell().SetFixedSize(size);
        GetCell().AddCell(&box.GetCell(), options, false);
    }

    void Arrange(Core::CSize size)
    {
        SetSize(size);
        GetCell().SetFixedSize(size);
        GetCell().SetPosition(GetPosition());
    }

private:
    GUI::CPopupLook look;
    std::vector<std::unique_ptr<GUI::CLightWidget>> boxes;
};

class CLayoutDemo
{
public:
    CLayoutDemo(CGalleryPage& page_, ELayoutType type)
        : page(page_),
          made(std::make_unique<CLayoutBox>(page_.GetLook())),
          box(*made)
    {
        box.GetCell().SetLayoutType(type);
        box.GetCell().SetSpacing(spacing);
        box.GetCell().SetHMargin(margin);
        box.GetCell().SetVMargin(margin);
    }

    CLayoutBox& GetBox() { return box; }

    void Finish(const std::string& caption)
    {
        box.SetSize(boxSize);
        page.Add(std::move(made), boxSize, caption);
        box.Arrange(boxSize);
    }

private:
    static constexpr int spacing = 6;
    static constexpr int margin = 8;

    CGalleryPage& page;
    std::unique_ptr<CLayoutBox> made;
    CLayoutBox& box;
};

void AddFlows(CGalleryPage& page)
{
    CLayoutDemo row(page, ELayoutType::Row);
    row.GetBox().AddBox({40, 30}, "1");
    row.GetBox().AddBox({30, 60}, "2");
    row.GetBox().AddBox({50, 40}, "3");
    row.Finish("Row");
    CLayoutDemo column(page, ELayoutType::Column);
    column.GetBox().AddBox({60, 24}, "1");
    column.GetBox().AddBox({100, 24}, "2");
    column.GetBox().AddBox({30, 24}, "3");
    column.Finish("Column");
    CLayoutDemo stack(page, ELayoutType::LayerStack);
    stack.GetBox().AddBox({180, 88}, "");
    stack.GetBox().AddBox({120, 58}, "");
    stack.GetBox().AddBox({60, 28}, "top");
    stack.Finish("Layer stack");
}

void AddShares(CGalleryPage& page)
{
    CLayoutDemo flex(page, ELayoutType::Row);
    for (const float weight : {1.0F, 2.0F, 0.0F})
    {
        CLayoutOptions options;
        options.SetFlex(weight);
        flex.GetBox().AddBox(
            {30, 50}, weight > 0.0F ? "flex " + std::to_string(static_cast<int>(weight)) : "30", options);
    }
    flex.Finish("Flex weights 1 and 2, fixed");
    CLayoutDemo ratios(page, ELayoutType::Row);
    for (const int percent : {25, 50})
    {
        CLayoutOptions options;
        options.SetWidthRatio(static_cast<float>(percent) / 100.0F);
        options.SetHeightRatio(percent == 25 ? 1.0F : 0.5F);
        ratios.GetBox().AddBox({10, 10}, std::to_string(percent) + " %", options);
    }
    ratios.Finish("Ratios of width and height");
}

void AddAlignments(CGalleryPage& page)
{
    constexpr std::array<std::pair<EAlign, const char*>, 3> aligns = {
        {{EAlign::Begin, "begin"}, {EAlign::Center, "center"}, {EAlign::End, "end"}}};
    CLayoutDemo vertical(page, ELayoutType::Row);
    for (const auto& [align, name] : aligns)
    {
        CLayoutOptions options;
        options.SetVAlign(align);
        vertical.GetBox().AddBox({56, 26}, name, options);
    }
    vertical.Finish("Alignment across a row");
    CLayoutDemo nine(page, ELayoutType::LayerStack);
    for (const auto& [vAlign, vName] : aligns)
    {
        for (const auto& [hAlign, hName] : aligns)
        {
            CLayoutOptions options;
            options.SetVAlign(vAlign);
            options.SetHAlign(hAlign);
            nine.GetBox().AddBox({50, 24}, std::string{vName[0], hName[0]}, options);
        }
    }
    nine.Finish("Alignments in a layer stack");
    CLayoutDemo inner(page, ELayoutType::Row);
    inner.GetBox().GetCell().SetInternalAlign(EAlign::End, EAlign::End);
    inner.GetBox().AddBox({40, 30}, "1");
    inner.GetBox().AddBox({40, 30}, "2");
    inner.Finish("Internal alignment end");
    CLayoutDemo placed(page, ELayoutType::LayerStack);
    for (int i = 0; i < 3; ++i)
    {
        CLayoutOptions options;
        options.SetHPosition(10 + 50 * i);
        options.SetVPosition(8 + 24 * i);
        placed.GetBox().AddBox({60, 30}, std::to_string(10 + 50 * i), options);
    }
    placed.Finish("Positions");
}

void AddTable(CGalleryPage& page)
{
    CLayoutDemo demo(page, ELayoutType::LayerStack);
    auto table = std::make_unique<Layout::CTableLayoutCell>(6, 6, 0, 0);
    for (const std::array<int, 3>& widths :
         {std::array<int, 3>{30, 70, 40}, std::array<int, 3>{60, 40, 20}, std::array<int, 3>{40, 50, 50}})
    {
        table->AddRow(-1.0F, Layout::CTableLayoutCell::noHeight);
        for (const int width : widths)
        {
            GUI::CLightWidget& box = demo.GetBox().MakeBox({width, 26}, std::to_string(width));
            box.GetCell().SetFixedSize({width, 26});
            CLayoutOptions options;
            options.SetHAlign(EAlign::Begin);
            table->AddCell(&box.GetCell(), options, false);
        }
    }
    CLayoutOptions options;
    demo.GetBox().GetCell().AddCell(table.release(), options, true);
    demo.Finish("Table");
}

} // namespace

void AddLayoutSection(CGalleryPage& page)
{
    page.BeginSection("Layout cells");
    AddFlows(page);
    AddTable(page);
    AddShares(page);
    AddAlignments(page);
}

} // namespace WidgetGallery
