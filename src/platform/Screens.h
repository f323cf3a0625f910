#pragma once

#include "foundation/NonCopyable.h"
#include "view/Geometry.h"

#include <optional>

namespace orken {

/// Main thread only.
class Screens : NonCopyable {
public:
    virtual ~Screens() = default;

    /// The screen with the key window, else the first one, in points; absent when there is none.
    [[nodiscard]] virtual std::optional<Rect> mainScreenFrame() const = 0;
};

} // namespace orken
