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

GObjectPtr<GdkTexture> textureOf(const void* pixels, int width, int height)
{
    const std::size_t stride = static_cast<std::size_t>(width) * renderer::kBytesPerPixel;
    // A copy: the renderer draws the next frame there, and what is on the screen may be drawn again at any time.
    GBytes* bytes = g_bytes_new(pixels, stride * static_cast<std::size_t>(height));
    auto texture = GObjectPtr<GdkTexture>::adopt(
        gdk_memory_texture_new(width, height, GDK_MEMORY_B8G8R8A8_PREMULTIPLIED, bytes, stride));
    g_bytes_unref(bytes);
    return texture;
}

} // namespace

DesktopAnimationSurface::DesktopAnimationSurface(Size size, std::filesystem::path renderer)
    : program_(std::move(renderer)), area_(GObjectPtr<GtkWidget>::share(animationAreaNew())), initialSize_(size),
      seen_(area_.get(), [this] { seenChanged(); }), ticks_(area_.get(), [this](Seconds elapsed) {
          const auto tick = tick_;
          tick(elapsed);
      })
{
    animationAreaOnResize(area_.get(), [this] {
        if (onResize_) {
            onResize_();
        }
    });
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
    onResize_ = std::move(callback);
}

void DesktopAnimationSurface::open(AnimationDocument document, Events events)
{
    close();
    document_ = std::move(document);
    events_ = std::move(events);
    startRenderer();
    request(pictureOf(0));
}

void DesktopAnimationSurface::close()
{
    renderer_.reset();
    requested_.reset();
    document_.reset();
    events_ = {};
    isOpen_ = false;
    wanted_.reset();
    next_.reset();
    ahead_.reset();
    if (std::exchange(shown_, std::nullopt)) {
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
    if (shown_) {
        present();
        requestWhatIsMissing();
    }
}

void DesktopAnimationSurface::show(int frame, int next)
{
    wanted_ = frame;
    next_ = next;
    requestWhatIsMissing();
}

void DesktopAnimationSurface::setFrameTick(FrameTick tick)
{
    tick_ = std::move(tick);
    startTicks();
}

void DesktopAnimationSurface::seenChanged()
{
    startTicks();
    if (seen_.isSeen()) {
        requestWhatIsMissing();
    } else if (isOpen_) {
        renderer_.reset();
        requested_.reset();
        ahead_.reset();
    }
}

void DesktopAnimationSurface::startTicks()
{
    tick_&& seen_.isSeen() ? ticks_.start() : ticks_.stop();
}

void DesktopAnimationSurface::startRenderer()
{
    renderer_ = std::make_unique<RendererProcess>(
        program_, document_->json,
        RendererProcess::Events{.drawn = [this] { drawn(); }, .failed = [this] { rendererFailed(); }});
}

void DesktopAnimationSurface::requestWhatIsMissing()
{
    if (!isOpen_ || !wanted_ || !seen_.isSeen()) {
        return;
    }
    const Picture wanted = pictureOf(*wanted_);
    if (ahead_ && ahead_->picture == wanted) {
        shown_ = std::exchange(ahead_, std::nullopt);
        present();
    }
    if (renderer_ && renderer_->isBusy()) {
        return;
    }
    const Picture next = pictureOf(next_.value_or(*wanted_));
    if (!shown_ || shown_->picture != wanted) {
        request(wanted);
    } else if (next != wanted && !(ahead_ && ahead_->picture == next)) {
        request(next);
    }
}

void DesktopAnimationSurface::request(const Picture& picture)
{
    if (!renderer_) {
        startRenderer();
    }
    requested_ = picture;
    renderer_->request({.frame = static_cast<std::uint32_t>(picture.frame),
                        .width = static_cast<std::uint32_t>(picture.width),
                        .height = static_cast<std::uint32_t>(picture.height)});
}

void DesktopAnimationSurface::drawn()
{
    const auto self = shared_from_this();
    const Picture picture = *std::exchange(requested_, std::nullopt);
    if (!isOpen_) {
        isOpen_ = true;
        const auto opened = std::exchange(events_.opened, nullptr);
        if (!seen_.isSeen()) {
            renderer_.reset();
        }
        opened(true);
        return;
    }
    Drawn drawn{.picture = picture, .texture = textureOf(renderer_->pixels(), picture.width, picture.height)};
    if (next_ && picture == pictureOf(*next_) && picture.frame != *wanted_) {
        ahead_ = std::move(drawn);
    } else {
        shown_ = std::move(drawn);
        present();
    }
    requestWhatIsMissing();
}

void DesktopAnimationSurface::rendererFailed()
{
    const auto self = shared_from_this();
    const bool wasOpen = isOpen_;
    const Events events = std::exchange(events_, {});
    close();
    if (wasOpen) {
        events.failed();
    } else {
        events.opened(false);
    }
}

void DesktopAnimationSurface::present()
{
    animationAreaShow(area_.get(), shown_->texture.get(), place());
}

DesktopAnimationSurface::Picture DesktopAnimationSurface::pictureOf(int frame) const
{
    const Rect space = frame_.width > 0 && frame_.height > 0
                           ? frame_
                           : Rect{.x = 0, .y = 0, .width = kTrialExtent, .height = kTrialExtent};
    // Where all of it is seen, the renderer centres it in the whole frame, which has whole pixels.
    const Rect drawn = mode_ == LottieContentMode::scaleAspectFit ? space : composition(document_->size, space, mode_);
    const double scale = gtk_widget_get_scale_factor(area_.get());
    const double shrink = std::min(1.0, kLargestExtent / (std::max(drawn.width, drawn.height) * scale));
    const auto pixels = [&](double length) {
        return std::max(1, static_cast<int>(std::min(std::round(length * scale * shrink), kLargestExtent)));
    };
    return {.frame = frame, .width = pixels(drawn.width), .height = pixels(drawn.height)};
}

PicturePlace DesktopAnimationSurface::place() const
{
    // The renderer does not cut what leaves the composition.
    const Rect drawn = composition(document_->size, frame_, mode_);
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
