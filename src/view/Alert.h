#pragma once

#include <functional>
#include <string>
#include <vector>

namespace orken {

enum class AlertStyle { warning, informational };

enum class ButtonRole { normal, cancel };

struct AlertButton {
    std::string title;
    /// Escape presses the button with the cancel role of a window's alert; it presses none of an application-modal one.
    ButtonRole role = ButtonRole::normal;
    /// For alerts of windows; the answer to an application-modal one is a number.
    std::function<void()> action;

    /// Whether the two look and work alike for the user; actions are not compared.
    bool operator==(const AlertButton& other) const { return title == other.title && role == other.role; }
};

/// What an alert shows. Texts are plain, never markup.
struct Alert {
    std::string title;
    /// Empty for none.
    std::string message;
    AlertStyle style = AlertStyle::warning;
    /// The first is the default button. At least one.
    std::vector<AlertButton> buttons;
    bool operator==(const Alert&) const = default;
};

} // namespace orken
