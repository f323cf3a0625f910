#pragma once

#include <xcb/xcb.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <string>

namespace orken::desktop {

struct XcbFree {
    // The library hands out memory of malloc.
    void operator()(void* memory) const { std::free(memory); }
};

template <class T>
using XcbReply = std::unique_ptr<T, XcbFree>;

/// Names that the window manager's protocol uses (EWMH 1.5, ICCCM 2.0).
enum class X11Atom {
    clientList,
    supportingWmCheck,
    supported,
    closeWindow,
    wmPid,
    windowType,
    windowTypeDesktop,
    windowTypeDock,
    clientMachine,
    clientLeader,
    wmProtocols,
    wmDeleteWindow,
    count,
};

/// A connection to the X server of its own, apart from the toolkit's: requests are sent together and answered together.
/// Main thread only.
class X11Connection {
public:
    /// Check `isUsable` afterwards.
    explicit X11Connection(const std::string& display);
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;
    ~X11Connection();

    /// False once the server has gone.
    [[nodiscard]] bool isUsable() const { return xcb_connection_has_error(connection_) == 0; }

    [[nodiscard]] xcb_connection_t* get() const { return connection_; }

    [[nodiscard]] xcb_window_t root() const { return root_; }

    [[nodiscard]] xcb_atom_t atom(X11Atom name) const { return atoms_.at(static_cast<std::size_t>(name)); }

    /// Errors about windows that have vanished gather until they are taken.
    void discardEvents();

private:
    xcb_connection_t* connection_;
    xcb_window_t root_ = XCB_NONE;
    std::array<xcb_atom_t, static_cast<std::size_t>(X11Atom::count)> atoms_{};
};

} // namespace orken::desktop
