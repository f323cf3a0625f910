#pragma once

#include <cstddef>
#include <cstdint>

namespace orken::desktop::renderer {

// What the client and the animation renderer, a program of its own, say to each other: packets of these kinds over a
// socket, and the pixels of a frame in shared memory. Both are of the same build.

/// Descriptors that the renderer is started with.
inline constexpr int kSocket = 3;
/// The pixels of one frame: blue, green, red, alpha, one byte each, premultiplied, rows without gaps.
inline constexpr int kPixels = 4;
/// The document, UTF-8.
inline constexpr int kDocument = 5;

/// Fixed for the life of a renderer; only what is drawn on takes memory.
inline constexpr std::size_t kPixelBytes = std::size_t{64} * 1024 * 1024;
inline constexpr std::size_t kBytesPerPixel = 4;

struct Request {
    std::uint32_t frame = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};

enum class Answer : std::uint32_t {
    /// Sent once, unasked: the renderer has started and waits, confined.
    ready,
    /// The frame that was asked for is in the shared memory.
    drawn,
    /// The document or the request makes no picture.
    unusable,
};

} // namespace orken::desktop::renderer
