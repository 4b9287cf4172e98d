#include "Host/WidgetGallery/LightSection.h"

#include "Host/WidgetGallery/GalleryImages.h"
#include "Mirel/GUI/CBitmapLightWidget.h"
#include "Mirel/GUI/CGraphicsLightWidget.h"
#include "Mirel/GUI/CTextLightWidget.h"
#include "Mirel/Graphics/CColorDrawer.h"
#include "Mirel/Graphics/CImageElement.h"

#include <array>
#include <utility>

namespace WidgetGallery
{

namespace
{

/// A widget that keeps its children.
class CBox : public GUI::CLightWidget
{
public:
    explicit CBox(Graphics::CColor color) { SetGraphics(new Graphics::CColorDrawer(color), true); }

    GUI::CLightWidget& Fill(Graphics::CRect frame, Graphics::CColor color)
    {
        auto child = std::make_unique<GUI::CLightWidget>(this);
        child->SetGraphics(new Graphics::CColorDrawer(color), true);
        child->SetSize(frame.GetSize());
        child->Move(frame.GetOrigin());
        children.push_back(std::move(child));
        return *children.back();
    }

private:
    std::vector<std::unique_ptr<GUI::CLightWidget>> children;
};

void AddImages(CGalleryPage& page)
{
    using EMode = GUI::CBitmapLightWidget::ETileMode;
    constexpr std::array<std::pair<EMode, const char*>, 3> modes = {
        {{EMode::None, "Image"}, {EMode::Repeat, "Repeated"}, {EMode::Stretch, "Stretched"}}};
    for (const auto& [mode, name] : modes)
    {
        auto element = std::make_unique<Graphics::CNormalImageElement>(MakeBadge());
        page.Add(std::make_unique<GUI::CBitmapLightWidget>(nullptr, std::move(element), mode), {100, 80},
                 name);
    }
}

void AddTexts(CGalleryPage& page)
{
    using Graphics::ETextHAlign;
    using Graphics::ETextVAlign;
    constexpr std::array<std::pair<ETextHAlign, ETextVAlign>, 3> places = {
        {{ETextHAlign::Left, ETextVAlign::Top},
         {ETextHAlign::Center, ETextVAlign::Center},
         {ETextHAlign::Right, ETextVAlign::Bottom}}};
    constexpr std::array<const char*, 3> names = {"Left, top", "Center", "Right, bottom"};
    for (std::size_t i = 0; i < places.size(); ++i)
    {
        auto box = std::make_unique<CBox>(page.GetLook().button);
        auto text = std::make_unique<GUI::CTextLightWidget>(box.get());
        Graphics::CTextFormat format;
        format.flags |= Graphics::CTextFormat::multiline;
        format.hAlign = places[i].first;
        format.vAlign = places[i].second;
        text->GetTextDrawer().SetFont(page.GetLook().font);
        text->GetTextDrawer().SetColor(page.GetLook().text);
        text->GetTextDrawer().SetFormat(format);
        text->SetText("Text of more\nthan one line");
        text->SetSize({120, 80});
        page.Add(std::move(box), {120, 80}, names[i]);
        page.Keep(std::move(text));
    }
}

void AddBlending(CGalleryPage& page)
{
    for (const int percent : {100, 50, 25})
    {
        auto box = std::make_unique<CBox>(page.GetLook().button);
        GUI::CLightWidget& group = box->Fill({10, 10, 80, 60}, {0x4C, 0x7F, 0xB0});
        auto inner = std::make_unique<CBox>(page.GetLook().accent);
        inner->SetSize({50, 40});
        inner->Move({20, 14});
        group.AddChild(inner.get());
        group.SetOpacity(static_cast<float>(percent) / 100.0F);
        page.Add(std::move(box), {100, 80}, "Opacity " + std::to_string(percent) + " %");
        page.Keep(std::move(inner));
    }
    auto buffered = std::make_unique<CBox>(page.GetLook().button);
    buffered->Fill({10, 10, 80, 60}, {0x5B, 0xA0, 0x6A});
    buffered->SetBuffered(true);
    page.Add(std::move(buffered), {100, 80}, "Buffered");
}

} // namespace

void AddLightSection(CGalleryPage& page)
{
    page.BeginSection("Light widgets");
    AddImages(page);
    auto rectangle = std::make_unique<Graphics::CColorDrawer>(Graphics::CColor{0x8C, 0x62, 0xA8});
    page.Add(std::make_unique<GUI::CGraphicsLightWidget>(nullptr, rectangle.release(), true), {100, 80},
             "Graphics");
    AddTexts(page);
    AddBlending(page);
}

} // namespace WidgetGallery
