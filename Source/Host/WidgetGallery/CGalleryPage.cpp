#include "Host/WidgetGallery/CGalleryPage.h"

#include "Mirel/GUI/CTextLightWidget.h"
#include "Mirel/Graphics/CColorDrawer.h"

#include <algorithm>

namespace WidgetGallery
{

namespace
{

constexpr int margin = 20;
constexpr int spacing = 18;
constexpr int captionHeight = 18;
constexpr int titleHeight = 30;

} // namespace

CGalleryPage::CGalleryPage(const GUI::CPopupLook& look_) : look(look_), x(margin), y(margin)
{
    SetGraphics(new Graphics::CColorDrawer({0x16, 0x19, 0x1C}), true);
    SetSize({width, margin});
}

CGalleryPage::~CGalleryPage()
{
    while (!widgets.empty())
    {
        widgets.pop_back();
    }
}

void CGalleryPage::BeginSection(const std::string& title)
{
    EndRow();
    y += y > margin ? spacing / 2 : 0;
    Put(MakeText(title, look.accent, true), {margin, y}, {width - 2 * margin, captionHeight});
    auto line = std::make_unique<GUI::CLightWidget>();
    line->SetGraphics(new Graphics::CColorDrawer(look.border), true);
    Put(std::move(line), {margin, y + captionHeight + 2}, {width - 2 * margin, 1});
    y += titleHeight;
}

std::unique_ptr<GUI::CLightWidget> CGalleryPage::MakeText(const std::string& text, Graphics::CColor color,
                                                          bool isBold) const
{
    auto widget = std::make_unique<GUI::CTextLightWidget>();
    Graphics::CTextFormat format;
    format.flags |= Graphics::CTextFormat::ellipsis;
    format.vAlign = Graphics::ETextVAlign::Center;
    widget->GetTextDrawer().SetFont(isBold ? look.boldFont : look.font);
    widget->GetTextDrawer().SetColor(color);
    widget->GetTextDrawer().SetFormat(format);
    widget->SetText(text.c_str());
    return widget;
}

void CGalleryPage::Finish()
{
    EndRow();
    SetSize({width, y + margin - spacing});
}

void CGalleryPage::Place(std::unique_ptr<GUI::CLightWidget> widget, Core::CSize size,
                         const std::string& caption)
{
    const int captionWidth = GUI::MeasureText(look.font, caption).width + 2;
    const int needed = std::max(size.width, captionWidth);
    if (x > margin && x + needed > width - margin)
    {
        EndRow();
    }
    const int above = caption.empty() ? 0 : captionHeight + 2;
    if (above > 0)
    {
        Put(MakeText(caption, look.text), {x, y}, {needed, captionHeight});
    }
    Put(std::move(widget), {x, y + above}, size);
    x += needed + spacing;
    rowHeight = std::max(rowHeight, above + size.height);
}

void CGalleryPage::Put(std::unique_ptr<GUI::CLightWidget> widget, Core::CPoint place, Core::CSize size)
{
    widget->SetSize(size);
    widget->Move(place);
    AddChild(widget.get());
    widgets.push_back(std::move(widget));
}

void CGalleryPage::EndRow()
{
    y += rowHeight > 0 ? rowHeight + spacing : 0;
    x = margin;
    rowHeight = 0;
}

} // namespace WidgetGallery
