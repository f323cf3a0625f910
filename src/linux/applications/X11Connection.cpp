#include "linux/applications/X11Connection.h"

#include <cstring>

namespace orken::desktop {

namespace {

constexpr std::array<const char*, static_cast<std::size_t>(X11Atom::count)> kNames{
    "_NET_CLIENT_LIST",
    "_NET_SUPPORTING_WM_CHECK",
    "_NET_SUPPORTED",
    "_NET_CLOSE_WINDOW",
    "_NET_WM_PID",
    "_NET_WM_WINDOW_TYPE",
    "_NET_WM_WINDOW_TYPE_DESKTOP",
    "_NET_WM_WINDOW_TYPE_DOCK",
    "WM_CLIENT_MACHINE",
    "WM_CLIENT_LEADER",
    "WM_PROTOCOLS",
    "WM_DELETE_WINDOW",
};

} // namespace

X11Connection::X11Connection(const std::string& display)
{
    int screen = 0;
    connection_ = xcb_connect(display.c_str(), &screen);
    if (!isUsable()) {
        return;
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_));
    for (; screen > 0; --screen) {
        xcb_screen_next(&screens);
    }
    root_ = screens.data->root;

    std::array<xcb_intern_atom_cookie_t, kNames.size()> cookies{};
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        const auto length = static_cast<std::uint16_t>(std::strlen(kNames.at(i)));
        cookies.at(i) = xcb_intern_atom(connection_, 0, length, kNames.at(i));
    }
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, cookies.at(i), nullptr));
        atoms_.at(i) = reply ? reply->atom : XCB_NONE;
    }
}

X11Connection::~X11Connection()
{
    xcb_disconnect(connection_);
}

void X11Connection::discardEvents()
{
    while (XcbReply<xcb_generic_event_t>(xcb_poll_for_event(connection_))) {
    }
}

} // namespace orken::desktop
