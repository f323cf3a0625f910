#include "linux/gtk/DesktopAnimationSurface.h"

#include "linux/animation/RlottieDocument.h"
#include "linux/services/InstalledFolders.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orken::desktop {

namespace {

constexpr const char* kRenderer = "orken-animation-renderer";
constexpr double kLargestExtent = 4096;
static_assert(kLargestExtent * kLargestExtent * renderer::kBytesPerPixel <= renderer::kPixelBytes);
/// Of the first picture when the layout has not given any room yet.
constexpr double kTrialExtent = 300;

graphene_rect_t rectangle(const Rect& rect)
{
    return {.origin = {static_cast<float>(rect.x), static_cast<float>(rect.y)},
            .size = {static_cast<float>(rect.width), static_cast<float>(rect.height)}};
}

/// The composition at its scale, centred in the frame.
Rect composition(Size size, const Rect& frame, LottieContentMode mode)
{
    const double horizontal = frame.width / size.width;
    const double vertical = frame.height / size.height;
    const double scale =
        mode == LottieContentMode::scaleAspectFit ? std::min(horizontal, vertical) : std::max(horizontal, vertical);
    return {.x = frame.x + (frame.width - size.width * scale) / 2,
            .y = frame.y + (frame.height - size.height * scale) / 2,
            .width = size.width * scale,
            .height = size.height * scale};
}

GObjectPtr<GdkTexture> textureOf(const void* pixels, PixelSize size)
{
    const std::size_t stride = static_cast<std::size_t>(size.width) * renderer::kBytesPerPixel;
    // A copy: the renderer draws the next frame there, and what is on the screen may be drawn again at any time.
    GBytes* bytes = g_bytes_new(pixels, stride * static_cast<std::size_t>(size.height));
    auto texture = GObjectPtr<GdkTexture>::adopt(
        gdk_memory_texture_new(size.width, size.height, GDK_MEMORY_B8G8R8A8_PREMULTIPLIED, bytes, stride));
    g_bytes_unref(bytes);
    return texture;
}

} // namespace

DesktopAnimationSurface::DesktopAnimationSurface(Size size, std::filesystem::path renderer)
    : program_(std::move(renderer)), area_(GObjectPtr<GtkWidget>::share(animationAreaNew())), initialSize_(size),
      visibility_(area_.get(), [this] { visibilityChanged(); }), ticks_(area_.get(), [this](Seconds elapsed) {
          const auto tick = tick_;
          tick(elapsed);
      })
{
    scaleChanged_ = SignalConnection::make<void(GObject*, GParamSpec*)>(
        area_.get(), "notify::scale-factor", [this](GObject*, GParamSpec*) { requestWhatIsMissing(); });
}

DesktopAnimationSurface::~DesktopAnimationSurface()
{
    animationAreaOnResize(area_.get(), {});
}

Size DesktopAnimationSurface::bounds() const
{
    const Size size{.width = static_cast<double>(gtk_widget_get_width(area_.get())),
                    .height = static_cast<double>(gtk_widget_get_height(area_.get()))};
    return size == Size{} ? initialSize_ : size;
}

void DesktopAnimationSurface::setOnResize(std::function<void()> callback)
{
    animationAreaOnResize(area_.get(), std::move(callback));
}

void DesktopAnimationSurface::open(AnimationDocument document, Events events)
{
    close();
    opened_ = Opened{.document = std::move(document), .events = std::move(events)};
    request({.frame = 0, .size = pictureSize()});
}

void DesktopAnimationSurface::close()
{
    const bool hasPicture = opened_ && opened_->pipeline.shown();
    opened_.reset();
    if (hasPicture) {
        animationAreaShow(area_.get(), nullptr, {});
    }
}

void DesktopAnimationSurface::setPlacement(const Rect& frame, LottieContentMode mode)
{
    if (frame == frame_ && mode == mode_) {
        return;
    }
    frame_ = frame;
    mode_ = mode;
    if (opened_ && opened_->pipeline.shown()) {
        present();
        requestWhatIsMissing();
    }
}

void DesktopAnimationSurface::show(int frame, int next)
{
    if (opened_) {
        opened_->pipeline.want(frame, next);
        requestWhatIsMissing();
    }
}

void DesktopAnimationSurface::setFrameTick(FrameTick tick)
{
    tick_ = std::move(tick);
    startTicks();
}

void DesktopAnimationSurface::visibilityChanged()
{
    startTicks();
    if (visibility_.isVisible()) {
        requestWhatIsMissing();
    } else if (opened_ && opened_->hasFirstFrame) {
        opened_->renderer.reset();
        opened_->pipeline.rendererEnded();
    }
}

void DesktopAnimationSurface::startTicks()
{
    tick_&& visibility_.isVisible() ? ticks_.start() : ticks_.stop();
}

void DesktopAnimationSurface::startRenderer()
{
    opened_->renderer = std::make_unique<RendererProcess>(
        program_, opened_->document.json,
        RendererProcess::Events{.drawn = [this] { drawn(); }, .failed = [this] { rendererFailed(); }});
}

void DesktopAnimationSurface::requestWhatIsMissing()
{
    if (!opened_ || !opened_->hasFirstFrame || !visibility_.isVisible()) {
        return;
    }
    const PixelSize size = pictureSize();
    if (opened_->pipeline.advance(size)) {
        present();
    }
    if (const auto missing = opened_->pipeline.missing(size)) {
        request(*missing);
    }
}

void DesktopAnimationSurface::request(const Picture& picture)
{
    if (!opened_->renderer) {
        startRenderer();
    }
    opened_->pipeline.requested(picture);
    opened_->renderer->request({.frame = static_cast<std::uint32_t>(picture.frame),
                                .width = static_cast<std::uint32_t>(picture.size.width),
                                .height = static_cast<std::uint32_t>(picture.size.height)});
}

void DesktopAnimationSurface::drawn()
{
    const auto self = shared_from_this();
    const Picture picture = opened_->pipeline.answered();
    if (!opened_->hasFirstFrame) {
        opened_->hasFirstFrame = true;
        const auto opened = std::exchange(opened_->events.opened, nullptr);
        if (!visibility_.isVisible()) {
            opened_->renderer.reset();
        }
        opened(true);
        return;
    }
    if (opened_->pipeline.take(picture, textureOf(opened_->renderer->pixels(), picture.size), pictureSize())) {
        present();
    }
    requestWhatIsMissing();
}

void DesktopAnimationSurface::rendererFailed()
{
    const auto self = shared_from_this();
    const bool hadFirstFrame = opened_->hasFirstFrame;
    const Events events = std::exchange(opened_->events, {});
    close();
    if (hadFirstFrame) {
        events.failed();
    } else {
        events.opened(false);
    }
}

void DesktopAnimationSurface::present()
{
    animationAreaShow(area_.get(), opened_->pipeline.shown()->get(), place());
}

PixelSize DesktopAnimationSurface::pictureSize() const
{
    const Rect space = frame_.width > 0 && frame_.height > 0
                           ? frame_
                           : Rect{.x = 0, .y = 0, .width = kTrialExtent, .height = kTrialExtent};
    // Where all of it is seen, the renderer centres it in the whole frame, which has whole pixels.
    const Rect drawn =
        mode_ == LottieContentMode::scaleAspectFit ? space : composition(opened_->document.size, space, mode_);
    const double scale = gtk_widget_get_scale_factor(area_.get());
    const double shrink = std::min(1.0, kLargestExtent / (std::max(drawn.width, drawn.height) * scale));
    const auto pixels = [&](double length) {
        return std::max(1, static_cast<int>(std::min(std::round(length * scale * shrink), kLargestExtent)));
    };
    return {.width = pixels(drawn.width), .height = pixels(drawn.height)};
}

PicturePlace DesktopAnimationSurface::place() const
{
    // The renderer does not cut what leaves the composition.
    const Rect drawn = composition(opened_->document.size, frame_, mode_);
    return mode_ == LottieContentMode::scaleAspectFit
               ? PicturePlace{.picture = rectangle(frame_), .clip = rectangle(drawn)}
               : PicturePlace{.picture = rectangle(drawn), .clip = rectangle(frame_)};
}

Outcome<AnimationDocument> DesktopAnimationSurfaces::prepare(AnimationDocument document) const
{
    return rlottieDocument(std::move(document));
}

std::shared_ptr<AnimationSurface> DesktopAnimationSurfaces::make(Size size)
{
    return std::make_shared<DesktopAnimationSurface>(size, modulesFolder() / kRenderer);
}

} // namespace orken::desktop
