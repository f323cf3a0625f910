#pragma once

#include "view/Style.h"

#include <gdk/gdk.h>

#include <cmath>

namespace orken::desktop {

/// The toolkit's logical pixels are points, in whole numbers.
[[nodiscard]] inline int pixels(double points)
{
    return static_cast<int>(std::lround(points));
}

[[nodiscard]] inline GdkRGBA rgba(const Color& color)
{
    return {.red = static_cast<float>(color.red),
            .green = static_cast<float>(color.green),
            .blue = static_cast<float>(color.blue),
            .alpha = static_cast<float>(color.alpha)};
}

} // namespace orken::desktop
