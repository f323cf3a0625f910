#pragma once

#include "view/Alert.h"
#include "view/Geometry.h"
#include "view/Style.h"

#include <optional>
#include <string>
#include <typeindex>
#include <variant>
#include <vector>

namespace orken {

/// What an element is. The contents and the modifiers are what a person can see: they are compared between redraws,
/// and a difference reaches the toolkit. Handlers are never compared.
struct EmptyContent {
    bool operator==(const EmptyContent&) const = default;
};

struct TextContent {
    std::string text;
    bool operator==(const TextContent&) const = default;
};

/// A picture of the platform's symbol set that fills its frame, by its name there.
struct SymbolContent {
    std::string name;
    /// What a screen reader says.
    std::string label;
    bool operator==(const SymbolContent&) const = default;
};

enum class Axis { vertical, horizontal };

struct StackContent {
    Axis axis = Axis::vertical;
    double spacing = kDefaultSpacing;
    bool operator==(const StackContent&) const = default;
};

/// Children on top of each other, first at the bottom, centred.
struct LayersContent {
    bool operator==(const LayersContent&) const = default;
};

/// Takes the room that its stack has left.
struct SpacerContent {
    bool operator==(const SpacerContent&) const = default;
};

/// A button without a bezel; its only child is the label.
struct ButtonContent {
    bool operator==(const ButtonContent&) const = default;
};

/// A view with state of its own. A geometry reader is one whose content depends on the size it was given.
struct NestedContent {
    std::type_index type;
    bool readsGeometry = false;
    bool operator==(const NestedContent&) const = default;
};

struct RepresentableContent {
    std::type_index type;
    bool operator==(const RepresentableContent&) const = default;
};

using Content = std::variant<EmptyContent, TextContent, StackContent, LayersContent, SpacerContent, ButtonContent,
                             NestedContent, RepresentableContent, SymbolContent>;

/// Fixed and smallest sizes in points; `fill` takes all the room that is offered. With a smallest size alone the
/// element takes more room than that only where its content does.
struct Frame {
    std::optional<double> width;
    std::optional<double> height;
    std::optional<double> minWidth;
    std::optional<double> minHeight;
    bool fill = false;
    bool operator==(const Frame&) const = default;
};

/// Applied from the inside out: content, inner padding, frame, background, padding.
struct Modifiers {
    Font font = Font::body;
    std::optional<Color> foreground;
    std::optional<Shadow> shadow;
    Insets innerPadding;
    std::optional<Frame> frame;
    std::optional<Color> background;
    /// The corners of the background, in points.
    double cornerRadius = 0;
    Insets padding;
    /// Where the centre stands in the layers around it; absent: in the middle.
    std::optional<Point> position;
    double opacity = 1;
    bool enabled = true;
    /// Belongs to the window of the element.
    std::optional<Alert> alert;
    /// What a screen reader says, unasked, when the element comes into sight.
    std::optional<std::string> announcement;
    bool operator==(const Modifiers&) const = default;

    /// Whether a box of its own is drawn around the content.
    [[nodiscard]] bool needsBox() const { return frame || background || innerPadding != Insets{}; }
};

} // namespace orken
