#pragma once

#include "foundation/NonCopyable.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orken {

/// Virtual key code of the Escape key, whatever modifiers are held.
inline constexpr int kEscapeKeyCode = 53;
/// Every key that the client does not tell apart.
inline constexpr int kOtherKeyCode = -1;

struct KeyEvent {
    int keyCode = kOtherKeyCode;
};

enum class KeyHandling { passOn, swallow };

/// The application's local event monitors for key-downs. A desktop asks them about every key-down that goes to any
/// window of the application, also under an alert, before anything else sees it. Main thread only.
class KeyMonitors : NonCopyable {
public:
    using Monitor = std::function<KeyHandling(const KeyEvent&)>;

    /// Stays to the end of the process. Each call adds another one.
    void add(Monitor monitor) { monitors_.push_back(std::make_shared<const Monitor>(std::move(monitor))); }

    /// None is asked any more.
    void stop() { monitors_.clear(); }

    /// In the order in which they were added; the first that swallows is the last that is asked.
    [[nodiscard]] KeyHandling handle(const KeyEvent& event) const
    {
        // Over a copy: a monitor may add another one.
        const auto present = monitors_;
        const auto swallows = [&event](const auto& monitor) { return (*monitor)(event) == KeyHandling::swallow; };
        return std::any_of(present.begin(), present.end(), swallows) ? KeyHandling::swallow : KeyHandling::passOn;
    }

private:
    std::vector<std::shared_ptr<const Monitor>> monitors_;
};

} // namespace orken
