#pragma once

#include "linux/animation/FramePipeline.h"
#include "linux/animation/RendererProcess.h"
#include "linux/gtk/AnimationArea.h"
#include "linux/gtk/FrameTicks.h"
#include "linux/gtk/VisibilityWatch.h"
#include "linux/gtk/WidgetView.h"
#include "linux/loop/GObjectPtr.h"
#include "platform/AnimationSurface.h"

#include <optional>

namespace orken::desktop {

/// A widget whose frames are drawn by a renderer of its own, one ahead of the screen. The renderer runs from the
/// opening of a document and as long as the widget is visible. Main thread only.
class DesktopAnimationSurface final : public AnimationSurface,
                                      public WidgetView,
                                      public std::enable_shared_from_this<DesktopAnimationSurface> {
public:
    DesktopAnimationSurface(Size size, std::filesystem::path renderer);
    ~DesktopAnimationSurface() override;

    [[nodiscard]] NativeHandle* native() override { return this; }

    [[nodiscard]] GtkWidget* widget() const override { return area_.get(); }

    void becameEnabled() override {}

    [[nodiscard]] Size bounds() const override;
    void setOnResize(std::function<void()> callback) override;
    void open(AnimationDocument document, Events events) override;
    void close() override;
    void setPlacement(const Rect& frame, LottieContentMode mode) override;
    void show(int frame, int next) override;
    void setFrameTick(FrameTick tick) override;

private:
    struct Opened {
        AnimationDocument document;
        Events events;
        /// Runs while the first frame is awaited, and afterwards as long as the widget is visible.
        std::unique_ptr<RendererProcess> renderer;
        bool hasFirstFrame = false;
        FramePipeline<GObjectPtr<GdkTexture>> pipeline;
    };

    void visibilityChanged();
    void startTicks();
    void startRenderer();
    void requestWhatIsMissing();
    void request(const Picture& picture);
    void drawn();
    void rendererFailed();
    void present();
    /// In which the document's frames are drawn.
    [[nodiscard]] PixelSize pictureSize() const;
    [[nodiscard]] PicturePlace place() const;

    std::filesystem::path program_;
    GObjectPtr<GtkWidget> area_;
    Size initialSize_;
    FrameTick tick_;
    Rect frame_;
    LottieContentMode mode_ = LottieContentMode::scaleAspectFit;
    std::optional<Opened> opened_;
    VisibilityWatch visibility_;
    FrameTicks ticks_;
    SignalConnection scaleChanged_;
};

class DesktopAnimationSurfaces final : public AnimationSurfaces {
public:
    [[nodiscard]] Outcome<AnimationDocument> prepare(AnimationDocument document) const override;
    [[nodiscard]] std::shared_ptr<AnimationSurface> make(Size size) override;
};

} // namespace orken::desktop
