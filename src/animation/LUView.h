#pragma once

#include "animation/LUStateData.h"
#include "animation/LottieAnimationView.h"
#include "platform/BundleInfo.h"
#include "platform/Files.h"
#include "platform/NotificationCenter.h"
#include "platform/Ports.h"
#include "view/Representable.h"

#include <memory>

namespace orken {

/// What the views of the animation layer need of a platform.
struct AnimationServices {
    AnimationSurfaces& surfaces;
    UrlSession& urlSession;
    MainQueue& mainQueue;
    const Files& files;
    const BundleInfo& bundle;
    const NotificationCenter& notifications;
};

[[nodiscard]] AnimationServices animationServices(const Ports& ports);

/// The platform view that hosts the animation view, keeps it as large as itself and starts its play. Held by shared
/// pointers: a download keeps it alive. Main thread only.
class LUView final : public PlatformView, public std::enable_shared_from_this<LUView> {
public:
    [[nodiscard]] static std::shared_ptr<LUView> make(Size frame, const AnimationServices& services);

    /// Creates the animation view for the state's source and starts it.
    void load(const std::shared_ptr<LUStateData>& state);

    /// Null before `load`.
    [[nodiscard]] const std::shared_ptr<LottieAnimationView>& animationView() const { return animationView_; }

    [[nodiscard]] NativeHandle* native() override { return surface_->native(); }

private:
    LUView(Size frame, const AnimationServices& services);

    void subscribe();
    void fitAnimationView();
    void load(const LULoadType::Name& source, const std::shared_ptr<LUStateData>& state);
    void load(const LULoadType::LoadedFrom& source, const std::shared_ptr<LUStateData>& state);
    void load(const LULoadType::FilePath& source, const std::shared_ptr<LUStateData>& state);
    void loadFile(const std::filesystem::path& file, const std::shared_ptr<LUStateData>& state);
    void configure(const std::shared_ptr<LottieAnimationView>& animationView, const LUStateData& state);
    void playLater(const std::shared_ptr<LUStateData>& state, LottieAnimationView::Completion completion);
    void playAnimation(const LUStateData& state, LottieAnimationView::Completion completion);
    void notifyDownloaded(const std::shared_ptr<LUStateData>& state, bool flag);

    AnimationServices services_;
    std::shared_ptr<AnimationSurface> surface_;
    std::shared_ptr<LottieAnimationView> animationView_;
    std::vector<Subscription> cancellables_;
};

} // namespace orken
