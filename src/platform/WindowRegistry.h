#pragma once

#include "platform/Window.h"

#include <memory>
#include <vector>

namespace orken {

enum class WindowKind {
    application, ///< the start window and what the product opens
    toolkit,     ///< opened by the toolkit or the engine, such as the web inspector
    panel,       ///< an alert of this application
};

/// The order of the application's windows and which of them is the key window; the same for every desktop. Main
/// thread only.
class WindowRegistry {
public:
    /// At the end of its kind, except that a panel goes before the panels that are there: the first panel, the
    /// permanent one, stays last for good.
    void add(std::shared_ptr<Window> window, WindowKind kind);
    void remove(const Window& window);

    [[nodiscard]] std::vector<std::shared_ptr<Window>> all() const;

    /// The toolkit says that the window has the keyboard, or got input.
    void gotKeyboard(const Window& window);
    [[nodiscard]] std::shared_ptr<Window> key() const;

    /// Closing it leaves the user without a window of this application.
    [[nodiscard]] bool isLastVisibleApplicationWindow(const Window& window) const;

private:
    struct Entry {
        std::shared_ptr<Window> window;
        WindowKind kind;
        unsigned long lastInput = 0;
    };

    std::vector<Entry> entries_;
    unsigned long inputs_ = 0;
};

} // namespace orken
