#include "Host/WidgetGallery/Snapshot.h"

#include "Host/WidgetGallery/CGallery.h"
#include "Mirel/GUI/Native/CNativeRunLoop.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenPlatform.h"
#include "Mirel/GUI/Native/Offscreen/COffscreenWindow.h"
#include "Mirel/GUI/Popups/DrawnParts.h"
#include "Mirel/Graphics/CDIBBitmap.h"
#include "Mirel/Graphics/CDrawSurface.h"

#include <algorithm>
#include <cairo.h>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <vector>

namespace WidgetGallery
{

namespace
{

constexpr int margin = 20;
constexpr int spacing = 18;
constexpr int captionHeight = 20;

/// What a window showed.
struct SPicture
{
    std::string caption;
    std::unique_ptr<Graphics::CDIBBitmap> bitmap;
    Core::CPoint place; ///< Skin pixels.
};

/// A folder for the file dialogs to show, which goes with the object.
class CDemoFolder
{
public:
    CDemoFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "gallery-XXXXXX").string();
        base = mkdtemp(pattern.data()) == nullptr ? std::filesystem::path() : std::filesystem::path(pattern);
        std::error_code ignored;
        for (const char* name : {"Bench", "Lissajous", "Mastering"})
        {
            std::filesystem::create_directories(base / "Skins" / name, ignored);
        }
        for (const char* name : {"Dark.xml", "Light.xml", "Wide.xml"})
        {
            std::ofstream(base / "Skins" / name) << "<SKIN/>";
        }
    }
    CDemoFolder(const CDemoFolder&) = delete;
    CDemoFolder& operator=(const CDemoFolder&) = delete;
    ~CDemoFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(base, ignored);
    }

    std::string GetSkins() const { return (base / "Skins").string(); }

private:
    std::filesystem::path base;
};

std::unique_ptr<Graphics::CDIBBitmap> CopyPicture(const GUI::COffscreenWindow& window)
{
    const Graphics::CDIBBitmap& shown = window.GetPicture();
    auto copy = std::make_unique<Graphics::CDIBBitmap>(32, shown.GetSize());
    copy->CreateSurface()->DrawBitmap(shown, {}, {}, shown.GetSize());
    return copy;
}

/// Opens each of them and keeps what the new windows show.
class CPopupPictures
{
public:
    CPopupPictures(CGallery& gallery_, GUI::COffscreenPlatform& platform_)
        : gallery(gallery_),
          platform(platform_)
    {
    }

    std::vector<SPicture> Take()
    {
        CPopupsSection& popups = gallery.GetPopups();
        constexpr Core::CPoint place = {100, 100};
        popups.OpenMenu(place);
        for (const GUI::ENativeKey key : {GUI::ENativeKey::Down, GUI::ENativeKey::Down, GUI::ENativeKey::Down,
                                          GUI::ENativeKey::Down, GUI::ENativeKey::Right})
        {
            GUI::SNativeKeyEvent event;
            event.key = key;
            platform.PressKey(event);
        }
        Keep("Menu with a sub-menu");
        platform.PressKey(Escape());
        platform.PressKey(Escape());
        popups.ShowTooltip(place, false);
        Keep("Tooltip");
        popups.ShowTooltip(place, true);
        Keep("Balloon");
        popups.ShowTooltip({}, false);
        Ask(popups.ShowAlert(GUI::EMessageKind::Information, GUI::EMessageButtons::Ok), "Information");
        Ask(popups.ShowAlert(GUI::EMessageKind::Warning, GUI::EMessageButtons::YesNoCancel), "Warning");
        Ask(popups.ShowAlert(GUI::EMessageKind::Error, GUI::EMessageButtons::OkCancel), "Error");
        popups.OpenFineEdit(place);
        Keep("Fine edit");
        platform.PressKey(Escape());
        const CDemoFolder folder;
        Ask(popups.ChooseFile(folder.GetSkins(), false), "Open a file");
        Ask(popups.ChooseFile(folder.GetSkins(), true), "Save a file");
        return std::move(pictures);
    }

private:
    static GUI::SNativeKeyEvent Escape()
    {
        GUI::SNativeKeyEvent event;
        event.key = GUI::ENativeKey::Escape;
        return event;
    }

    void Ask(GUI::IDialogs::DialogId id, const std::string& caption)
    {
        Keep(caption);
        gallery.GetDialogs().Cancel(id);
    }

    /// All windows but the gallery's own and a tooltip behind another window.
    void Keep(const std::string& caption)
    {
        platform.Pump();
        bool isFirst = true;
        for (int i = 0; i < platform.GetWindowCount(); ++i)
        {
            const GUI::COffscreenWindow& window = *platform.GetWindow(i);
            const bool isTip = window.GetKind() == GUI::ENativeWindowKind::Tooltip;
            const bool isGallery = window.GetKind() == GUI::ENativeWindowKind::TopLevel;
            if (window.IsShown() && !isGallery && (!isTip || platform.GetWindowCount() == 2))
            {
                pictures.push_back({isFirst ? caption : "", CopyPicture(window), {}});
                isFirst = false;
            }
        }
    }

    CGallery& gallery;
    GUI::COffscreenPlatform& platform;
    std::vector<SPicture> pictures;
};

/// Side by side, in rows. The height that they take together, in skin pixels.
int PlacePictures(std::vector<SPicture>& pictures, int top, int scale)
{
    int x = margin;
    int y = top;
    int rowHeight = 0;
    for (SPicture& picture : pictures)
    {
        const Core::CSize device = picture.bitmap->GetSize();
        const Core::CSize size = {device.width / scale, device.height / scale};
        if (x > margin && x + size.width > CGalleryPage::width - margin)
        {
            x = margin;
            y += rowHeight + spacing;
            rowHeight = 0;
        }
        picture.place = {x, y};
        const bool isFollowed = &picture != &pictures.back() && (&picture + 1)->caption.empty();
        x +=
            std::max(size.width, picture.caption.empty() || isFollowed ? 0 : 90) + (isFollowed ? 2 : spacing);
        rowHeight = std::max(rowHeight, captionHeight + size.height);
    }
    return y + rowHeight + margin - top;
}

bool WritePng(const Graphics::CDIBBitmap& bitmap, const std::string& path)
{
    const Core::CSize size = bitmap.GetSize();
    cairo_surface_t* const image = cairo_image_surface_create(CAIRO_FORMAT_RGB24, size.width, size.height);
    const auto rowBytes = static_cast<std::size_t>(size.width) * 4;
    unsigned char* const to = cairo_image_surface_get_data(image);
    const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(image));
    for (int y = 0; to != nullptr && y < size.height; ++y)
    {
        const auto row = static_cast<std::size_t>(y);
        std::memcpy(to + row * stride, bitmap.GetData() + row * rowBytes, rowBytes);
    }
    cairo_surface_mark_dirty(image);
    const bool isWritten = cairo_surface_write_to_png(image, path.c_str()) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(image);
    return isWritten;
}

} // namespace

bool WriteSnapshot(const std::string& path, int scale, const GUI::CPopupLook& look)
{
    GUI::CNativeRunLoop loop;
    GUI::COffscreenPlatform platform(loop, scale);
    CGallery gallery(platform, look, true);
    gallery.GetWindow().Show(true);
    platform.Pump();
    const std::unique_ptr<Graphics::CDIBBitmap> page = CopyPicture(*platform.GetWindow(0));
    std::vector<SPicture> pictures = CPopupPictures(gallery, platform).Take();
    const int pageHeight = page->GetSize().height / scale;
    const int below = PlacePictures(pictures, pageHeight, scale);
    const Core::CSize size = {page->GetSize().width, (pageHeight + below) * scale};
    Graphics::CDIBBitmap whole(32, size);
    const auto surface = whole.CreateSurface();
    surface->SetFillColor({0x16, 0x19, 0x1C});
    surface->FillRect({Core::CPoint(), size});
    surface->DrawBitmap(*page, {}, {}, page->GetSize());
    for (const SPicture& picture : pictures)
    {
        const Graphics::CRect frame({picture.place.x * scale, (picture.place.y + captionHeight) * scale},
                                    picture.bitmap->GetSize());
        surface->DrawBitmap(*picture.bitmap, {}, frame.GetOrigin(), frame.GetSize());
        GUI::DrawFrame(*surface, frame, look.border);
        surface->SaveState();
        surface->Scale(scale);
        GUI::DrawLabel(*surface, look.font, picture.caption, {picture.place, {300, captionHeight}},
                       look.text);
        surface->RestoreState();
    }
    return WritePng(whole, path);
}

} // namespace WidgetGallery
