#pragma once

#include "foundation/NonCopyable.h"
#include "platform/Window.h"

#include <memory>
#include <vector>

namespace orken {

/// Windows of this application. Main thread only, once the application runs.
class Windows : NonCopyable {
public:
    virtual ~Windows() = default;

    /// Every window, visible or not: the application's own in order of creation, then the toolkit's, then the alert
    /// panels. The one permanent alert panel is always the last, also while it is hidden.
    [[nodiscard]] virtual std::vector<std::shared_ptr<Window>> all() const = 0;

    /// The window that has the keyboard, or had it last and is still visible; null when none is visible.
    [[nodiscard]] virtual std::shared_ptr<Window> key() const = 0;

    /// A hidden window that stays in the list when it is closed. The rectangle's size is that of the content; the
    /// desktop decides the place.
    [[nodiscard]] virtual std::shared_ptr<Window> makeWindow(const Rect& contentRect, WindowStyleMask styleMask) = 0;
};

} // namespace orken
