#pragma once

namespace orken {

/// Lengths and coordinates are in points: logical pixels of the desktop, before its integer scale.
struct Size {
    double width = 0;
    double height = 0;
    bool operator==(const Size&) const = default;
};

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const Rect&) const = default;
};

} // namespace orken
