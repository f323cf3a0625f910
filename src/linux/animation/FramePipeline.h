#pragma once

#include <optional>
#include <utility>

namespace orken::desktop {

/// Of a picture, in device pixels.
struct PixelSize {
    int width = 0;
    int height = 0;
    bool operator==(const PixelSize&) const = default;
};

/// A frame in a size.
struct Picture {
    int frame = 0;
    PixelSize size;
    bool operator==(const Picture&) const = default;
};

/// Decides which pictures a renderer is asked for, one at a time and one ahead of the screen, and which one is shown.
/// `Image` is what a renderer makes of a picture. Where a size is asked for, it is the one in which pictures are wanted
/// by now. One thread.
template <class Image>
class FramePipeline {
public:
    /// This frame is wanted on the screen, and `next` probably after it.
    void want(int frame, int next) { wish_ = {.frame = frame, .next = next}; }

    /// The renderer was asked for a picture.
    void requested(const Picture& picture) { requested_ = picture; }

    /// The renderer has answered. The picture that it was asked for.
    Picture answered() { return *std::exchange(requested_, std::nullopt); }

    /// What the renderer has drawn. True when it is to be shown now.
    bool take(const Picture& picture, Image image, PixelSize size)
    {
        const bool isAhead = wish_ && picture == Picture{wish_->next, size} && picture.frame != wish_->frame;
        (isAhead ? ahead_ : shown_) = Drawn{.picture = picture, .image = std::move(image)};
        return !isAhead;
    }

    /// Takes up what was drawn ahead, when that is wanted by now. True when it is to be shown.
    bool advance(PixelSize size)
    {
        if (!wish_ || !ahead_ || ahead_->picture != Picture{wish_->frame, size}) {
            return false;
        }
        shown_ = std::exchange(ahead_, std::nullopt);
        return true;
    }

    /// What the renderer is to be asked for; absent when it is at work or nothing is missing.
    [[nodiscard]] std::optional<Picture> missing(PixelSize size) const
    {
        if (!wish_ || requested_) {
            return std::nullopt;
        }
        const Picture wanted{wish_->frame, size};
        const Picture next{wish_->next, size};
        if (!shown_ || shown_->picture != wanted) {
            return wanted;
        }
        const bool isDrawn = next == wanted || (ahead_ && ahead_->picture == next);
        return isDrawn ? std::nullopt : std::optional(next);
    }

    /// The renderer has gone, with what it was asked for. What is shown stays.
    void rendererEnded()
    {
        requested_.reset();
        ahead_.reset();
    }

    /// Null when nothing is shown.
    [[nodiscard]] const Image* shown() const { return shown_ ? &shown_->image : nullptr; }

private:
    struct Wish {
        int frame = 0;
        int next = 0;
    };

    struct Drawn {
        Picture picture;
        Image image;
    };

    std::optional<Wish> wish_;
    std::optional<Picture> requested_;
    std::optional<Drawn> shown_;
    std::optional<Drawn> ahead_;
};

} // namespace orken::desktop
