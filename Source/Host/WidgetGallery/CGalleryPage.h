#pragma once

#include "Host/WidgetGallery/GalleryNames.h"
#include "Mirel/GUI/CLightWidget.h"
#include "Mirel/GUI/Popups/CPopupLook.h"

#include <memory>
#include <string>
#include <vector>

namespace WidgetGallery
{

/// The page of the gallery: sections with a title, and in them widgets side by side, each with a caption. GUI
/// thread only.
class CGalleryPage : public GUI::CLightWidget
{
public:
    static constexpr int width = 1180;

    explicit CGalleryPage(const GUI::CPopupLook& look_);
    ~CGalleryPage() override;

    const GUI::CPopupLook& GetLook() const { return look; }

    /// Begins below what stands there.
    void BeginSection(const std::string& title);

    /// Puts the widget beside the one before, or below if there is no room. The page keeps it.
    template <class Widget>
    Widget& Add(std::unique_ptr<Widget> widget, Core::CSize size, const std::string& caption)
    {
        Widget& added = *widget;
        Place(std::move(widget), size, caption);
        return added;
    }

    /// For what stands in a widget of the page.
    void Keep(std::unique_ptr<GUI::CLightWidget> widget) { widgets.push_back(std::move(widget)); }

    /// A text as captions are.
    std::unique_ptr<GUI::CLightWidget> MakeText(const std::string& text, Graphics::CColor color,
                                                bool isBold = false) const;

    /// Makes the page as high as what stands on it.
    void Finish();

private:
    void Place(std::unique_ptr<GUI::CLightWidget> widget, Core::CSize size, const std::string& caption);
    void Put(std::unique_ptr<GUI::CLightWidget> widget, Core::CPoint place, Core::CSize size);
    void EndRow();

    GUI::CPopupLook look;
    std::vector<std::unique_ptr<GUI::CLightWidget>> widgets;
    int x;
    int y;
    int rowHeight = 0;
};

} // namespace WidgetGallery
