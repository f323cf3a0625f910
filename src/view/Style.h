#pragma once

namespace orken {

/// Colour components from 0 to 1, not premultiplied.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
    bool operator==(const Color&) const = default;

    static constexpr Color black() { return {}; }

    static constexpr Color white() { return {.red = 1, .green = 1, .blue = 1}; }

    static constexpr Color systemRed() { return {.red = 1, .green = 59 / 255.0, .blue = 48 / 255.0}; }

    static constexpr Color gray() { return {.red = 142 / 255.0, .green = 142 / 255.0, .blue = 147 / 255.0}; }

    // Dark enough to be read on a light window (contrast 4.9 to 1 on #fafafa).
    static constexpr Color destructive() { return {.red = 0.84, .green = 0.09, .blue = 0.09}; }
};

/// The text roles in use; sizes follow the desktop's text scale.
enum class Font { body, headline, caption, largeTitle, system36 };

/// Behind a text, in points.
struct Shadow {
    Color color;
    double radius = 0;
    double x = 0;
    double y = 0;
    bool operator==(const Shadow&) const = default;
};

/// Space around a rectangle's content, in points.
struct Insets {
    double top = 0;
    double leading = 0;
    double bottom = 0;
    double trailing = 0;
    bool operator==(const Insets&) const = default;
};

enum class Edge { top, leading, bottom, trailing };

/// What `padding()` without a number and a stack without a spacing use.
inline constexpr double kDefaultPadding = 16;
inline constexpr double kDefaultSpacing = 8;

} // namespace orken
