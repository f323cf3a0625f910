#include "platform/WindowRegistry.h"

#include <algorithm>

namespace orken {

void WindowRegistry::add(std::shared_ptr<Window> window, WindowKind kind)
{
    const auto place = std::find_if(entries_.begin(), entries_.end(), [kind](const Entry& entry) {
        return entry.kind > kind || (kind == WindowKind::panel && entry.kind == kind);
    });
    entries_.insert(place, Entry{.window = std::move(window), .kind = kind});
}

void WindowRegistry::remove(const Window& window)
{
    std::erase_if(entries_, [&](const Entry& entry) { return entry.window.get() == &window; });
}

std::vector<std::shared_ptr<Window>> WindowRegistry::all() const
{
    std::vector<std::shared_ptr<Window>> windows;
    windows.reserve(entries_.size());
    for (const Entry& entry : entries_) {
        windows.push_back(entry.window);
    }
    return windows;
}

void WindowRegistry::gotKeyboard(const Window& window)
{
    for (Entry& entry : entries_) {
        if (entry.window.get() == &window) {
            entry.lastInput = ++inputs_;
        }
    }
}

std::shared_ptr<Window> WindowRegistry::key() const
{
    const Entry* latest = nullptr;
    for (const Entry& entry : entries_) {
        // Before any input the window opened last stands in front.
        if (entry.window->isVisible() && (!latest || entry.lastInput >= latest->lastInput)) {
            latest = &entry;
        }
    }
    return latest ? latest->window : nullptr;
}

bool WindowRegistry::isLastVisibleApplicationWindow(const Window& window) const
{
    return std::none_of(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.kind == WindowKind::application && entry.window.get() != &window && entry.window->isVisible();
    });
}

} // namespace orken
