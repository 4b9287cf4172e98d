#include "Mirel/GUI/Native/X11/CX11Window.h"

#include "Mirel/GUI/Native/X11/CX11Platform.h"
#include "Mirel/GUI/Native/X11/X11Properties.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Mirel::GUI
{

namespace
{
/// No display is larger; the server could not keep the picture of such a window either.
constexpr int longestSide = 16384;

constexpr std::uint32_t eventsOfAll = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
constexpr std::uint32_t eventsOfInput = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE |
                                        XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                        XCB_EVENT_MASK_POINTER_MOTION | XCB_EVENT_MASK_ENTER_WINDOW |
                                        XCB_EVENT_MASK_LEAVE_WINDOW | XCB_EVENT_MASK_FOCUS_CHANGE;

CSize Clamp(CSize size)
{
    return {std::clamp(size.width, 1, longestSide), std::clamp(size.height, 1, longestSide)};
}

std::uint32_t AsValue(int number)
{
    return static_cast<std::uint32_t>(number);
}
} // namespace

CX11Window::CX11Window(CX11Platform& platform_, const SNativeWindowOptions& options, INativeWindowSink& sink_)
    : platform(platform_),
      connection(platform_.GetConnection()),
      sink(sink_),
      kind(options.kind),
      position(options.position),
      size(Clamp(options.size)),
      isResizable(options.isResizable),
      isPlaced(options.isPlaced)
{
    const CX11Scope scope(connection);
    if (!Create(options))
    {
        id = XCB_NONE;
        return;
    }
    presenter = std::make_unique<CX11Presenter>(connection, id, size);
    platform.Add(id, *this);
    WriteKind(connection, id, kind);
    if (kind != ENativeWindowKind::Child)
    {
        WriteTitle(connection, id, options.title);
        const NativeWindowId owner = options.owner != nullptr ? options.owner->GetId() : options.foreignOwner;
        WriteOwner(connection, id, FindTopLevel(connection, static_cast<xcb_window_t>(owner)));
        WriteHints();
    }
    CX11Window::SetCursor(ECursorShape::Normal);
}

CX11Window::~CX11Window()
{
    const CX11Scope scope(connection);
    if (id != XCB_NONE)
    {
        platform.Remove(id);
        presenter.reset();
        xcb_destroy_window(connection.Get(), id);
    }
    if (ownCursor != XCB_NONE)
    {
        xcb_free_cursor(connection.Get(), ownCursor);
    }
}

bool CX11Window::Create(const SNativeWindowOptions& options)
{
    const bool isChild = kind == ENativeWindowKind::Child;
    const bool isPopup = kind == ENativeWindowKind::Menu || kind == ENativeWindowKind::Tooltip;
    const bool hasInput = kind != ENativeWindowKind::Tooltip;
    parent = isChild ? static_cast<xcb_window_t>(options.foreignParent) : XCB_NONE;
    const xcb_window_t around = isChild ? parent : connection.GetRoot();
    id = xcb_generate_id(connection.Get());
    // Depth, visual, border and colours of its own: a parent may have those that do not go with ours.
    const std::array<std::uint32_t, 6> values = {
        0,                      // border pixel
        XCB_GRAVITY_NORTH_WEST, // what is shown stays at the top left
        isPopup ? 1U : 0U,      // override redirect
        isPopup ? 1U : 0U,      // save under
        hasInput ? eventsOfAll | eventsOfInput : eventsOfAll,
        connection.GetColormap()};
    const auto cookie = xcb_create_window_checked(
        connection.Get(), connection.GetDepth(), id, around, static_cast<std::int16_t>(position.x),
        static_cast<std::int16_t>(position.y), static_cast<std::uint16_t>(size.width),
        static_cast<std::uint16_t>(size.height), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, connection.GetVisual(),
        XCB_CW_BORDER_PIXEL | XCB_CW_BIT_GRAVITY | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_SAVE_UNDER |
            XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
        values.data());
    const TX11Pointer<xcb_generic_error_t> error(xcb_request_check(connection.Get(), cookie));
    return error == nullptr && !connection.IsLost();
}

NativeWindowId CX11Window::GetTopLevelId() const
{
    const CX11Scope scope(connection);
    return FindTopLevel(connection, id);
}

void CX11Window::Show(bool show)
{
    if (id == XCB_NONE || show == shown)
    {
        return;
    }
    shown = show;
    if (show)
    {
        Map();
        return;
    }
    const bool wasCapturing = platform.GetGrabs().IsCapturing(id);
    Withdraw();
    if (wasCapturing)
    {
        sink.OnCaptureLost();
    }
}

void CX11Window::Map()
{
    const CX11Scope scope(connection);
    if (kind != ENativeWindowKind::Child)
    {
        Raise();
    }
    xcb_map_window(connection.Get(), id);
    if (kind == ENativeWindowKind::Menu)
    {
        platform.GetGrabs().AddMenu(id);
    }
}

void CX11Window::Withdraw()
{
    const CX11Scope scope(connection);
    platform.GetGrabs().RemoveMenu(id);
    platform.GetGrabs().Release(id);
    xcb_unmap_window(connection.Get(), id);
    if (IsTop())
    {
        // The window manager may have unmapped it already and would not see another change.
        xcb_unmap_notify_event_t message{};
        message.response_type = XCB_UNMAP_NOTIFY;
        message.event = connection.GetRoot();
        message.window = id;
        xcb_send_event(connection.Get(), 0, connection.GetRoot(),
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char*>(&message)); // NOLINT: the protocol's bytes
    }
}

void CX11Window::Raise()
{
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    Configure(XCB_CONFIG_WINDOW_STACK_MODE, &above);
}

void CX11Window::Configure(std::uint16_t mask, const std::uint32_t* values)
{
    if (id != XCB_NONE)
    {
        const CX11Scope scope(connection);
        configureSequence = xcb_configure_window(connection.Get(), id, mask, values).sequence;
    }
}

void CX11Window::SetPosition(CPoint position_)
{
    if (id == XCB_NONE || position_ == position)
    {
        return;
    }
    position = position_;
    isPlaced = true;
    {
        const CX11Scope scope(connection);
        WriteHints();
        const std::array<std::uint32_t, 2> values = {AsValue(position.x), AsValue(position.y)};
        Configure(XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, values.data());
    }
    sink.OnMoved(position);
}

CPoint CX11Window::GetScreenPosition() const
{
    if (id == XCB_NONE)
    {
        return position;
    }
    const CX11Scope scope(connection);
    const auto cookie = xcb_translate_coordinates(connection.Get(), id, connection.GetRoot(), 0, 0);
    const TX11Pointer<xcb_translate_coordinates_reply_t> reply(
        xcb_translate_coordinates_reply(connection.Get(), cookie, nullptr));
    return reply != nullptr ? CPoint{reply->dst_x, reply->dst_y} : position;
}

void CX11Window::SetSize(CSize size_)
{
    const CSize wanted = Clamp(size_);
    if (id == XCB_NONE || wanted == size)
    {
        return;
    }
    ChangeSize(wanted);
    {
        const CX11Scope scope(connection);
        if (!isResizable)
        {
            WriteHints();
        }
        const std::array<std::uint32_t, 2> values = {AsValue(wanted.width), AsValue(wanted.height)};
        Configure(XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, values.data());
    }
    sink.OnResized(size);
}

void CX11Window::ChangeSize(CSize size_)
{
    size = size_;
    presenter->SetSize(size);
    LoseEverything();
}

void CX11Window::LoseEverything()
{
    lost = Graphics::CSimple2DRegion(Graphics::CRect({0, 0}, size));
    platform.SchedulePaint();
}

void CX11Window::SetSizeLimits(CSize smallest_, CSize largest_)
{
    if (smallest_ == smallest && largest_ == largest)
    {
        return;
    }
    smallest = smallest_;
    largest = largest_;
    WriteHints();
}

void CX11Window::WriteHints() const
{
    if (id != XCB_NONE && IsTop())
    {
        const CX11Scope scope(connection);
        WriteLimits(connection, id, isResizable ? smallest : size, isResizable ? largest : size, isPlaced);
    }
}

void CX11Window::SetTitle(const std::string& title)
{
    if (id != XCB_NONE)
    {
        const CX11Scope scope(connection);
        WriteTitle(connection, id, title);
    }
}

void CX11Window::SetOwner(const INativeWindow* owner)
{
    if (id != XCB_NONE)
    {
        const CX11Scope scope(connection);
        WriteOwner(connection, id,
                   owner != nullptr ? static_cast<xcb_window_t>(owner->GetTopLevelId()) : XCB_NONE);
    }
}

void CX11Window::SetOpacity(float opacity_)
{
    if (id == XCB_NONE || !(opacity_ < opacity || opacity_ > opacity))
    {
        return;
    }
    opacity = opacity_;
    const CX11Scope scope(connection);
    WriteOpacity(connection, id, opacity);
}

bool CX11Window::CanBeTransparent() const
{
    if (id == XCB_NONE || kind == ENativeWindowKind::Child)
    {
        return false;
    }
    const CX11Scope scope(connection);
    return HasCompositor(connection);
}

void CX11Window::RequestPaint()
{
    if (id != XCB_NONE && !paintWanted)
    {
        paintWanted = true;
        platform.SchedulePaint();
    }
}

void CX11Window::PaintIfDue()
{
    const bool isDue = mapped && (paintWanted || !lost.IsEmpty());
    if (isDue && presenter != nullptr && presenter->IsReady())
    {
        paintWanted = false;
        const Graphics::CSimple2DRegion now = std::exchange(lost, Graphics::CSimple2DRegion());
        sink.OnPaint(now);
    }
}

bool CX11Window::HandleTaken(xcb_shm_seg_t segment)
{
    if (presenter == nullptr || !presenter->OnTaken(segment))
    {
        return false;
    }
    if (paintWanted || !lost.IsEmpty())
    {
        platform.SchedulePaint();
    }
    return true;
}

void CX11Window::Present(const Graphics::CBitmap& bitmap, const Graphics::CSimple2DRegion& region)
{
    if (mapped && presenter != nullptr)
    {
        presenter->Present(bitmap, region);
    }
}

bool CX11Window::IsInside(CPoint place) const
{
    return Graphics::CRect({0, 0}, size).Contains(place);
}

void CX11Window::Close()
{
    if (id == XCB_NONE)
    {
        return;
    }
    {
        const CX11Scope scope(connection);
        platform.Remove(id);
        presenter.reset();
    }
    id = XCB_NONE;
    shown = false;
    mapped = false;
    focused = false;
    sink.OnClosed();
}

} // namespace Mirel::GUI
