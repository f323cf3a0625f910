#pragma once

#include "linux/loop/FileDescriptor.h"
#include "linux/renderer/Protocol.h"

#include <string>

namespace orken::desktop {

/// Memory that the renderer draws into and the client reads. Its size cannot be changed by either, so that reading it
/// never fails.
class FramePixels {
public:
    /// Not usable when the system has no memory of this kind to give.
    FramePixels();
    ~FramePixels();

    FramePixels(const FramePixels&) = delete;
    FramePixels& operator=(const FramePixels&) = delete;

    explicit operator bool() const { return pixels_ != nullptr; }

    [[nodiscard]] int descriptor() const { return memory_.get(); }

    /// `renderer::kPixelBytes` of them; the renderer may write at any time.
    [[nodiscard]] const void* get() const { return pixels_; }

private:
    FileDescriptor memory_;
    void* pixels_ = nullptr;
};

/// A document as a file in memory that nobody can change any more; none when the system refuses.
[[nodiscard]] FileDescriptor documentInMemory(const std::string& document);

} // namespace orken::desktop
