#pragma once

#include "foundation/NonCopyable.h"
#include "view/Geometry.h"
#include "view/View.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orken {

/// Bit set of the flags below.
using WindowStyleMask = std::uint32_t;

namespace windowStyle {
inline constexpr WindowStyleMask kTitled = 1U << 0U;
inline constexpr WindowStyleMask kClosable = 1U << 1U;
inline constexpr WindowStyleMask kMiniaturizable = 1U << 2U;
inline constexpr WindowStyleMask kResizable = 1U << 3U;
/// Present exactly while the window is in full screen, not while it is on its way there or back.
inline constexpr WindowStyleMask kFullScreen = 1U << 14U;
} // namespace windowStyle

/// A window of this application; equality is identity. Main thread only.
class Window : NonCopyable {
public:
    virtual ~Window() = default;

    /// False for hidden, closed and minimised windows.
    [[nodiscard]] virtual bool isVisible() const = 0;
    [[nodiscard]] virtual WindowStyleMask styleMask() const = 0;

    virtual void setTitle(const std::string& title) = 0;
    virtual void center() = 0;
    virtual void makeKeyAndOrderFront() = 0;

    /// Hosts the view; its first body is called before this returns. Replaces what was hosted before.
    virtual void setContentView(std::unique_ptr<View> root) = 0;

    /// Starts the change to the other state. Does nothing while one is under way, while the window is not visible and
    /// for windows that cannot be full screen (alert panels, windows of the toolkit). A change that the desktop does
    /// not carry out within two seconds is given up.
    virtual void toggleFullScreen() = 0;

    /// Takes the window off the screen without asking anybody, and works on hidden windows. An alert panel's alert is
    /// answered with `kAlertAborted`.
    virtual void close() = 0;
};

} // namespace orken
