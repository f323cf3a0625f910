#pragma once

#include "linux/renderer/Protocol.h"

#include <cstdint>
#include <memory>
#include <string>

namespace rlottie {
class Animation;
}

namespace orken::desktop::renderer {

/// One document and the pixels to which its frames are drawn.
class Drawing {
public:
    /// Starts the library's threads by drawing something of our own; false when that makes no picture.
    [[nodiscard]] static bool warmUp();

    /// `pixels` holds `kPixelBytes`.
    explicit Drawing(std::uint32_t* pixels);
    ~Drawing();

    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    [[nodiscard]] bool load(std::string document);

    /// A frame beyond the last is the last one. The composition is fitted into the picture and centred, and it is not
    /// cut at its own edges. False for a picture that has no pixels or more than there is room for.
    [[nodiscard]] bool draw(const Request& request);

private:
    std::uint32_t* pixels_;
    std::unique_ptr<rlottie::Animation> animation_;
};

} // namespace orken::desktop::renderer
