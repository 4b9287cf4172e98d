#pragma once

#include <array>
#include <cstddef>

namespace Mirel::GUI
{

/// Names of the X protocol that the back end uses, in the order of x11AtomNames.
enum class EX11Atom : std::size_t
{
    WmProtocols,
    WmDeleteWindow,
    NetWmPing,
    NetWmPid,
    NetWmName,
    NetWmIconName,
    NetWmWindowType,
    NetWmWindowTypeNormal,
    NetWmWindowTypeDialog,
    NetWmWindowTypePopupMenu,
    NetWmWindowTypeTooltip,
    NetWmState,
    NetWmStateModal,
    NetWmWindowOpacity,
    NetActiveWindow,
    NetSupportingWmCheck,
    NetWorkarea,
    NetCurrentDesktop,
    Utf8String,
    Clipboard,
    Targets,
    Timestamp,
    Incremental,
    TextPlainUtf8,
    ClipboardTransfer,
    XEmbed,
    XEmbedInfo,
    Count
};

constexpr std::array<const char*, static_cast<std::size_t>(EX11Atom::Count)> x11AtomNames = {
    "WM_PROTOCOLS",
    "WM_DELETE_WINDOW",
    "_NET_WM_PING",
    "_NET_WM_PID",
    "_NET_WM_NAME",
    "_NET_WM_ICON_NAME",
    "_NET_WM_WINDOW_TYPE",
    "_NET_WM_WINDOW_TYPE_NORMAL",
    "_NET_WM_WINDOW_TYPE_DIALOG",
    "_NET_WM_WINDOW_TYPE_POPUP_MENU",
    "_NET_WM_WINDOW_TYPE_TOOLTIP",
    "_NET_WM_STATE",
    "_NET_WM_STATE_MODAL",
    "_NET_WM_WINDOW_OPACITY",
    "_NET_ACTIVE_WINDOW",
    "_NET_SUPPORTING_WM_CHECK",
    "_NET_WORKAREA",
    "_NET_CURRENT_DESKTOP",
    "UTF8_STRING",
    "CLIPBOARD",
    "TARGETS",
    "TIMESTAMP",
    "INCR",
    "text/plain;charset=utf-8",
    "MIREL_CLIPBOARD",
    "_XEMBED",
    "_XEMBED_INFO"};

} // namespace Mirel::GUI
