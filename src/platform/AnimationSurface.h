#pragma once

#include "foundation/NonCopyable.h"
#include "foundation/Outcome.h"
#include "platform/Seconds.h"
#include "view/Geometry.h"
#include "view/Representable.h"

#include <functional>
#include <memory>
#include <string>

namespace orken {

/// A document within bounds: whoever draws it comes to an end.
struct AnimationDocument {
    /// Of any number in it, whatever its sign.
    static constexpr double kLargestNumber = 32768;

    /// JSON of the Lottie format, UTF-8. Its first and end frame ("ip" and "op") are whole.
    std::string json;
    /// Of the composition, in units of its own.
    Size size;
    /// Frames a second.
    double frameRate = 0;
    /// At least 1; frame 0 is the first.
    int frameCount = 0;
};

/// The framework's two ways of scaling a composition into its frame: all of it seen, or all of the frame covered.
enum class LottieContentMode { scaleAspectFit, scaleAspectFill };

/// A native view that shows single frames of one document. The document is drawn elsewhere, under limits: whatever it
/// does there, the view shows a frame or nothing. Main thread only.
class AnimationSurface : public PlatformView {
public:
    /// Time for which the surface could be seen since the call before.
    using FrameTick = std::function<void(Seconds elapsed)>;

    /// What the surface may tell while it has a document.
    struct Events {
        /// Once, later: whether the document's first frame was drawn in time. Where it was not, the surface is empty.
        std::function<void(bool)> opened;
        /// Once, after a successful opening: the document cannot be drawn any more, and the surface is empty.
        std::function<void()> failed;
    };

    /// The space that the layout has given to the view.
    [[nodiscard]] virtual Size bounds() const = 0;
    /// Called after each change of the bounds.
    virtual void setOnResize(std::function<void()> callback) = 0;

    /// Takes the place of the document before, whose events do not come any more. The document comes from `prepare`.
    virtual void open(AnimationDocument document, Events events) = 0;
    /// Back to an empty surface; events on their way do not come any more.
    virtual void close() = 0;

    /// Where in the view the composition is shown, and how it is scaled into that.
    virtual void setPlacement(const Rect& frame, LottieContentMode mode) = 0;

    /// Shows this frame as soon as it is drawn, and has `next` drawn in the meantime. Both from 0 to `frameCount` - 1.
    virtual void show(int frame, int next) = 0;

    /// Called before each frame of the screen, at most 60 times a second, and only while the view can be seen. An empty
    /// function ends it, and with it every wake-up of the surface's own.
    virtual void setFrameTick(FrameTick tick) = 0;
};

class AnimationSurfaces : NonCopyable {
public:
    virtual ~AnimationSurfaces() = default;

    /// The document in the form in which this desktop's surfaces open it, or why they cannot draw it at all. Takes as
    /// long as reading the document; any thread.
    [[nodiscard]] virtual Outcome<AnimationDocument> prepare(AnimationDocument document) const = 0;

    /// A new, empty surface of this size; never null. Main thread only.
    [[nodiscard]] virtual std::shared_ptr<AnimationSurface> make(Size size) = 0;
};

} // namespace orken
