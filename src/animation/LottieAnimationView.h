#pragma once

#include "animation/Playback.h"
#include "foundation/Bytes.h"
#include "foundation/Outcome.h"
#include "platform/AnimationSurface.h"
#include "platform/MainQueue.h"
#include "platform/UrlSession.h"

#include <functional>
#include <memory>
#include <optional>

namespace orken {

/// The animation view of the hosting view's surface: shows one document, frame by frame, and plays it. Without a usable
/// document it shows nothing. Main thread only, its destruction included.
class LottieAnimationView : public std::enable_shared_from_this<LottieAnimationView> {
public:
    /// Whether the play ran to its end.
    using Completion = std::function<void(bool finished)>;
    /// The error of a download, or none.
    using DownloadClosure = std::function<void(std::optional<PlatformError>)>;

    LottieAnimationView(std::shared_ptr<AnimationSurface> surface, MainQueue& mainQueue);

    LottieAnimationView(const LottieAnimationView&) = delete;
    LottieAnimationView& operator=(const LottieAnimationView&) = delete;
    /// A play that is still running is interrupted.
    ~LottieAnimationView();

    /// Shows nothing when there is no document.
    [[nodiscard]] static std::shared_ptr<LottieAnimationView> ofAnimation(std::optional<AnimationDocument> animation,
                                                                          std::shared_ptr<AnimationSurface> surface,
                                                                          MainQueue& mainQueue);

    /// A view at once. The document is fetched, checked and prepared for `surfaces` in the background; the closure is
    /// called once, on the main thread, when its first frame has been drawn or it has turned out to be unusable.
    [[nodiscard]] static std::shared_ptr<LottieAnimationView>
    ofUrl(const std::string& url, UrlSession& session, DownloadClosure closure, const AnimationSurfaces& surfaces,
          std::shared_ptr<AnimationSurface> surface, MainQueue& mainQueue);

    /// Takes the surface, which whatever was on it has left.
    void addToSuperview();
    /// Leaves the surface; a play is interrupted. Final.
    void removeFromSuperview();

    void setFrame(const Rect& frame);
    void setContentMode(LottieContentMode mode);

    void setLoopMode(const LottieLoopMode& loopMode) { loopMode_ = loopMode; }

    /// Factor for the plays that follow.
    void setAnimationSpeed(double speed) { speed_ = speed; }

    /// Shows the frame at that progress, from 0 to 1; a play is interrupted.
    void setCurrentProgress(double progress);

    /// Interrupts the play before. The completion comes once, through the main queue; at once with false on a view that
    /// shows nothing. Without a loop mode the view's own is taken.
    void play(double fromProgress, double toProgress, std::optional<LottieLoopMode> loopMode, Completion completion);

private:
    enum class Stage { empty, opening, ready };

    struct Play {
        Playback playback;
        Completion completion;
    };

    void documentArrived(Outcome<AnimationDocument> document, DownloadClosure closure);
    void open(DownloadClosure closure);
    void opened(bool usable, const DownloadClosure& closure);
    void failed();
    void startTicks();
    void tick(Seconds elapsed);
    void showProgress();
    void endPlay(bool finished);

    std::shared_ptr<AnimationSurface> surface_;
    MainQueue& mainQueue_;
    bool isOnSurface_ = false;
    bool wasRemoved_ = false;
    std::optional<AnimationDocument> document_;
    Stage stage_ = Stage::empty;
    Seconds duration_{0};
    int frameCount_ = 1;
    Rect frame_;
    LottieContentMode contentMode_ = LottieContentMode::scaleAspectFit;
    LottieLoopMode loopMode_;
    double speed_ = 1;
    double progress_ = 0;
    std::optional<Play> play_;
};

} // namespace orken
