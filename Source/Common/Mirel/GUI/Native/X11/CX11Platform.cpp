#include "Mirel/GUI/Native/X11/CX11Platform.h"

#include "Mirel/GUI/Native/X11/CX11Window.h"
#include "Mirel/GUI/Native/X11/X11Keys.h"
#include "Mirel/GUI/Native/X11/X11Screens.h"

#include <algorithm>
#include <utility>
#include <vector>
#include <xcb/shm.h>

namespace Mirel::GUI
{

namespace
{
/// So many events a pass: a flood of them does not keep timers waiting.
constexpr int eventsPerPass = 256;

std::uint8_t TypeOf(const xcb_generic_event_t& event)
{
    return event.response_type & 0x7F;
}

/// The window that an event is sent to, for those kinds that windows handle.
xcb_window_t TargetOf(const xcb_generic_event_t& event)
{
    const void* record = &event;
    switch (TypeOf(event))
    {
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE:
    case XCB_BUTTON_PRESS:
    case XCB_BUTTON_RELEASE:
    case XCB_MOTION_NOTIFY:
    case XCB_ENTER_NOTIFY:
    case XCB_LEAVE_NOTIFY:
        // All of them begin alike.
        return static_cast<const xcb_button_press_event_t*>(record)->event;
    case XCB_FOCUS_IN:
    case XCB_FOCUS_OUT:
        return static_cast<const xcb_focus_in_event_t*>(record)->event;
    case XCB_EXPOSE:
        return static_cast<const xcb_expose_event_t*>(record)->window;
    case XCB_CLIENT_MESSAGE:
        return static_cast<const xcb_client_message_event_t*>(record)->window;
    case XCB_DESTROY_NOTIFY:
    case XCB_UNMAP_NOTIFY:
    case XCB_MAP_NOTIFY:
    case XCB_REPARENT_NOTIFY:
    case XCB_CONFIGURE_NOTIFY:
        return static_cast<const xcb_map_notify_event_t*>(record)->window;
    default:
        return XCB_NONE;
    }
}
} // namespace

std::unique_ptr<CX11Platform> CX11Platform::Open(CNativeRunLoop& loop, const std::string& display, int scale)
{
    std::unique_ptr<CX11Connection> opened = CX11Connection::Open(display);
    if (opened == nullptr)
    {
        return nullptr;
    }
    return std::unique_ptr<CX11Platform>(new CX11Platform(std::move(opened), loop, scale));
}

CX11Platform::CX11Platform(std::unique_ptr<CX11Connection> connection_, CNativeRunLoop& loop_, int scale_)
    : connection(std::move(connection_)),
      loop(loop_),
      descriptor(xcb_get_file_descriptor(connection->Get())),
      scale(std::clamp(scale_, 1, 4)),
      isScaleFixed(scale_ != 0),
      keyboard(*connection),
      cursors(*connection),
      grabs(*connection),
      clipboard(*connection, loop_),
      self(std::make_shared<CX11Platform*>(this))
{
    const CX11Scope scope(*connection);
    if (!isScaleFixed)
    {
        scale = FindScale(*connection);
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection->Get(), connection->GetRoot(), XCB_CW_EVENT_MASK, &events);
    }
    loop.AddDescriptor(
        descriptor, [this] { Dispatch(); }, [this] { return connection->HasQueuedEvents(); });
    connection->SetQueuedEventsListener(
        [this]
        {
            if (isDispatchScheduled)
            {
                return;
            }
            isDispatchScheduled = true;
            const auto dispatch = [place = std::weak_ptr<CX11Platform*>(self)]
            {
                if (const auto alive = place.lock(); alive != nullptr)
                {
                    (*alive)->Dispatch();
                }
            };
            loop.Post(dispatch);
        });
}

CX11Platform::~CX11Platform()
{
    connection->SetQueuedEventsListener(nullptr);
    if (!isLost)
    {
        loop.RemoveDescriptor(descriptor);
    }
}

std::unique_ptr<INativeWindow> CX11Platform::CreateNativeWindow(const SNativeWindowOptions& options,
                                                                INativeWindowSink& sink)
{
    auto made = std::make_unique<CX11Window>(*this, options, sink);
    return made->IsOpen() ? std::move(made) : nullptr;
}

std::vector<SNativeScreen> CX11Platform::GetScreens() const
{
    const CX11Scope scope(*connection);
    return FindScreens(*connection);
}

CPoint CX11Platform::GetPointerPosition() const
{
    const CX11Scope scope(*connection);
    const TX11Pointer<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        connection->Get(), xcb_query_pointer(connection->Get(), connection->GetRoot()), nullptr));
    return reply != nullptr ? CPoint{reply->root_x, reply->root_y} : CPoint{};
}

std::uint32_t CX11Platform::GetModifiers() const
{
    const CX11Scope scope(*connection);
    const TX11Pointer<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        connection->Get(), xcb_query_pointer(connection->Get(), connection->GetRoot()), nullptr));
    return reply != nullptr ? ModifiersOfState(reply->mask) : 0;
}

void CX11Platform::SetClipboardText(const std::string& text)
{
    clipboard.SetText(text, time);
}

void CX11Platform::RequestClipboardText(TextReceiver receiver)
{
    clipboard.RequestText(std::move(receiver), time);
}

CX11Window* CX11Platform::Find(xcb_window_t id) const
{
    const auto place = windows.find(id);
    return place != windows.end() ? place->second : nullptr;
}

void CX11Platform::Remove(xcb_window_t id)
{
    windows.erase(id);
    grabs.RemoveMenu(id);
    grabs.Release(id);
}

template <typename TCall>
void CX11Platform::ForEachWindow(const TCall& call)
{
    std::vector<xcb_window_t> ids;
    ids.reserve(windows.size());
    for (const auto& [id, window] : windows)
    {
        ids.push_back(id);
    }
    const Core::CLifeToken::CWatch watch(life);
    for (const xcb_window_t id : ids)
    {
        CX11Window* window = watch.IsAlive() ? Find(id) : nullptr;
        if (window != nullptr)
        {
            call(*window);
        }
    }
}

void CX11Platform::SchedulePaint()
{
    if (isPaintScheduled)
    {
        return;
    }
    isPaintScheduled = true;
    loop.Post(
        [place = std::weak_ptr<CX11Platform*>(self)]
        {
            if (const auto alive = place.lock(); alive != nullptr)
            {
                (*alive)->PaintAll();
            }
        });
}

void CX11Platform::PaintAll()
{
    isPaintScheduled = false;
    ForEachWindow([](CX11Window& window) { window.PaintIfDue(); });
}

void CX11Platform::Dispatch()
{
    isDispatchScheduled = false;
    const Core::CLifeToken::CWatch watch(life);
    for (int i = 0; i < eventsPerPass; ++i)
    {
        const CX11Event event = connection->NextEvent();
        if (event == nullptr)
        {
            break;
        }
        if (!IsOutdatedMotion(*event))
        {
            Handle(*event);
        }
        if (!watch.IsAlive())
        {
            return;
        }
    }
    if (connection->IsLost() && !isLost)
    {
        CloseAll();
    }
}

bool CX11Platform::IsOutdatedMotion(const xcb_generic_event_t& event) const
{
    const xcb_generic_event_t* next = connection->PeekEvent();
    if (TypeOf(event) != XCB_MOTION_NOTIFY || next == nullptr || TypeOf(*next) != XCB_MOTION_NOTIFY)
    {
        return false;
    }
    const void* record = &event;
    const void* nextRecord = next;
    const auto& one = *static_cast<const xcb_motion_notify_event_t*>(record);
    const auto& other = *static_cast<const xcb_motion_notify_event_t*>(nextRecord);
    return one.event == other.event && one.state == other.state;
}

void CX11Platform::Handle(const xcb_generic_event_t& event)
{
    if (CX11Window* window = Find(TargetOf(event)); window != nullptr)
    {
        window->HandleEvent(event);
        return;
    }
    if (keyboard.HandleEvent(event) || clipboard.HandleEvent(event))
    {
        return;
    }
    const void* record = &event;
    if (connection->GetCompletionType() != 0 && TypeOf(event) == connection->GetCompletionType())
    {
        HandleTaken(event);
    }
    else if (TypeOf(event) == XCB_PROPERTY_NOTIFY && !isScaleFixed &&
             static_cast<const xcb_property_notify_event_t*>(record)->atom == XCB_ATOM_RESOURCE_MANAGER)
    {
        UpdateScale();
    }
}

void CX11Platform::HandleTaken(const xcb_generic_event_t& event)
{
    const void* record = &event;
    const auto& completion = *static_cast<const xcb_shm_completion_event_t*>(record);
    if (CX11Window* window = Find(completion.drawable); window != nullptr)
    {
        window->HandleTaken(completion.shmseg);
    }
}

void CX11Platform::UpdateScale()
{
    int found = 1;
    {
        const CX11Scope scope(*connection);
        found = FindScale(*connection);
    }
    if (found != scale)
    {
        scale = found;
        ForEachWindow([found](const CX11Window& window) { window.GetSink().OnScaleChanged(found); });
    }
}

void CX11Platform::DismissMenus()
{
    const std::vector<xcb_window_t> menus = grabs.GetMenus();
    const Core::CLifeToken::CWatch watch(life);
    for (auto place = menus.rbegin(); place != menus.rend() && watch.IsAlive(); ++place)
    {
        if (const CX11Window* menu = Find(*place); menu != nullptr)
        {
            menu->GetSink().OnCloseRequested();
        }
    }
}

bool CX11Platform::TakeSwallowed(std::uint8_t button)
{
    const std::uint32_t bit = 1U << (button & 31U);
    const bool isSwallowed = (swallowed & bit) != 0;
    swallowed &= ~bit;
    return isSwallowed;
}

void CX11Platform::CloseAll()
{
    isLost = true;
    loop.RemoveDescriptor(descriptor);
    const Core::CLifeToken::CWatch watch(life);
    ForEachWindow([](CX11Window& window) { window.Close(); });
    if (watch.IsAlive())
    {
        clipboard.GiveUp();
    }
}

} // namespace Mirel::GUI
