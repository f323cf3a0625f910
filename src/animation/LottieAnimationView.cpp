#include "animation/LottieAnimationView.h"

#include "animation/DocumentChecker.h"

#include <utility>

namespace orken {

namespace {

constexpr Seconds kScreenFrame{1.0 / 60};

PlatformError cannotBeShown()
{
    return platformError("animation", 1, "", "the animation cannot be shown");
}

Outcome<AnimationDocument> documentOf(const DataTaskResult& result, const AnimationSurfaces& surfaces)
{
    if (!result || !result.value()) {
        return result ? cannotBeShown() : result.error();
    }
    return usableAnimationDocument(asText(*result.value()), surfaces);
}

} // namespace

LottieAnimationView::LottieAnimationView(std::shared_ptr<AnimationSurface> surface, MainQueue& mainQueue)
    : surface_(std::move(surface)), mainQueue_(mainQueue)
{
}

LottieAnimationView::~LottieAnimationView()
{
    removeFromSuperview();
}

std::shared_ptr<LottieAnimationView> LottieAnimationView::ofAnimation(std::optional<AnimationDocument> animation,
                                                                      std::shared_ptr<AnimationSurface> surface,
                                                                      MainQueue& mainQueue)
{
    auto view = std::make_shared<LottieAnimationView>(std::move(surface), mainQueue);
    view->document_ = std::move(animation);
    return view;
}

std::shared_ptr<LottieAnimationView> LottieAnimationView::ofUrl(const std::string& url, UrlSession& session,
                                                                DownloadClosure closure,
                                                                const AnimationSurfaces& surfaces,
                                                                std::shared_ptr<AnimationSurface> surface,
                                                                MainQueue& mainQueue)
{
    auto view = std::make_shared<LottieAnimationView>(std::move(surface), mainQueue);
    // What belongs to the main thread is handed on as it is: the background queue must not be the last to hold it.
    auto completion = [view = std::weak_ptr(view), closure = std::move(closure), &surfaces,
                       &mainQueue](const DataTaskResult& result) mutable {
        mainQueue.async(
            [view = std::move(view), closure = std::move(closure), document = documentOf(result, surfaces)]() mutable {
                if (const auto alive = view.lock()) {
                    alive->documentArrived(std::move(document), std::move(closure));
                } else {
                    closure(cannotBeShown());
                }
            });
    };
    session.startDataTask(url, std::move(completion));
    return view;
}

void LottieAnimationView::addToSuperview()
{
    isOnSurface_ = true;
    surface_->setPlacement(frame_, contentMode_);
    if (document_) {
        open({});
    }
}

void LottieAnimationView::removeFromSuperview()
{
    endPlay(false);
    if (std::exchange(isOnSurface_, false)) {
        surface_->setFrameTick({});
        surface_->close();
    }
    wasRemoved_ = true;
    stage_ = Stage::empty;
}

void LottieAnimationView::setFrame(const Rect& frame)
{
    frame_ = frame;
    if (isOnSurface_) {
        surface_->setPlacement(frame_, contentMode_);
    }
}

void LottieAnimationView::setContentMode(LottieContentMode mode)
{
    contentMode_ = mode;
    if (isOnSurface_) {
        surface_->setPlacement(frame_, contentMode_);
    }
}

void LottieAnimationView::setCurrentProgress(double progress)
{
    endPlay(false);
    progress_ = progress;
    showProgress();
}

void LottieAnimationView::play(double fromProgress, double toProgress, std::optional<LottieLoopMode> loopMode,
                               Completion completion)
{
    endPlay(false);
    if (stage_ == Stage::empty) {
        mainQueue_.async([completion = std::move(completion)] { completion(false); });
        return;
    }
    const LUProgressRange range{.from = fromProgress, .to = toProgress};
    play_ = Play{.playback = Playback(range, loopMode.value_or(loopMode_), duration_, speed_),
                 .completion = std::move(completion)};
    if (stage_ == Stage::ready) {
        startTicks();
    }
}

void LottieAnimationView::documentArrived(Outcome<AnimationDocument> document, DownloadClosure closure)
{
    if (!document || wasRemoved_) {
        closure(document ? cannotBeShown() : document.error());
        return;
    }
    document_ = std::move(document).value();
    open(std::move(closure));
}

void LottieAnimationView::open(DownloadClosure closure)
{
    stage_ = Stage::opening;
    frameCount_ = document_->frameCount;
    duration_ = Seconds{document_->frameCount / document_->frameRate};
    const auto weak = weak_from_this();
    auto onOpened = [weak, closure = std::move(closure)](bool usable) {
        if (const auto alive = weak.lock()) {
            alive->opened(usable, closure);
        }
    };
    auto onFailed = [weak] {
        if (const auto alive = weak.lock()) {
            alive->failed();
        }
    };
    surface_->open(*std::exchange(document_, std::nullopt), {.opened = std::move(onOpened), .failed = onFailed});
}

void LottieAnimationView::opened(bool usable, const DownloadClosure& closure)
{
    if (!usable) {
        failed();
    } else {
        stage_ = Stage::ready;
        showProgress();
        if (play_) {
            startTicks();
        }
    }
    if (closure) {
        closure(usable ? std::nullopt : std::optional(cannotBeShown()));
    }
}

void LottieAnimationView::failed()
{
    stage_ = Stage::empty;
    endPlay(false);
}

void LottieAnimationView::startTicks()
{
    surface_->setFrameTick([weak = weak_from_this()](Seconds elapsed) {
        if (const auto alive = weak.lock()) {
            alive->tick(elapsed);
        }
    });
}

void LottieAnimationView::tick(Seconds elapsed)
{
    play_->playback.advance(elapsed);
    progress_ = play_->playback.progress();
    showProgress();
    if (play_->playback.hasEnded()) {
        endPlay(true);
    } else if (play_->playback.isStill()) {
        surface_->setFrameTick({});
    }
}

void LottieAnimationView::showProgress()
{
    if (stage_ == Stage::ready) {
        const double next = play_ ? play_->playback.progressAfter(kScreenFrame) : progress_;
        surface_->show(frameAt(progress_, frameCount_), frameAt(next, frameCount_));
    }
}

void LottieAnimationView::endPlay(bool finished)
{
    if (!play_) {
        return;
    }
    mainQueue_.async([completion = std::move(play_->completion), finished] { completion(finished); });
    play_.reset();
    if (isOnSurface_) {
        surface_->setFrameTick({});
    }
}

} // namespace orken
