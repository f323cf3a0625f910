#include "animation/LUView.h"

#include "animation/DocumentChecker.h"

namespace orken {

namespace {

std::optional<AnimationDocument> readDocument(const AnimationServices& services, const std::filesystem::path& file)
{
    const auto content = services.files.readFile(file, kLargestAnimationDocument);
    if (!content) {
        return std::nullopt;
    }
    auto document = usableAnimationDocument(asText(content.value()), services.surfaces);
    return document ? std::optional(std::move(document).value()) : std::nullopt;
}

} // namespace

AnimationServices animationServices(const Ports& ports)
{
    return {.surfaces = ports.animationSurfaces,
            .urlSession = ports.urlSession,
            .mainQueue = ports.mainQueue,
            .files = ports.files,
            .bundle = ports.bundle,
            .notifications = ports.notifications};
}

LUView::LUView(Size frame, const AnimationServices& services)
    : services_(services), surface_(services.surfaces.make(frame))
{
}

std::shared_ptr<LUView> LUView::make(Size frame, const AnimationServices& services)
{
    // Not make_shared: the constructor is private.
    std::shared_ptr<LUView> view(new LUView(frame, services));
    view->subscribe();
    return view;
}

void LUView::subscribe()
{
    auto fit = [weak = weak_from_this()] {
        if (const auto alive = weak.lock()) {
            alive->fitAnimationView();
        }
    };
    surface_->setOnResize(fit);
    cancellables_.push_back(
        services_.notifications.publisher(NotificationName::windowDidResize)->subscribe(std::move(fit)));
}

void LUView::fitAnimationView()
{
    if (animationView_) {
        const Size bounds = surface_->bounds();
        animationView_->setFrame({.x = 0, .y = 0, .width = bounds.width, .height = bounds.height});
    }
}

void LUView::load(const std::shared_ptr<LUStateData>& state)
{
    std::visit([&](const auto& source) { load(source, state); }, state->type.source);
}

void LUView::load(const LULoadType::Name& source, const std::shared_ptr<LUStateData>& state)
{
    // A resource has a plain name: what leads into or out of a folder names none.
    const bool isPlain = !source.name.empty() && source.name.find('/') == std::string::npos;
    const auto folder = source.bundle.folder().value_or(services_.bundle.resourcesFolder());
    loadFile(isPlain ? folder / (source.name + ".json") : std::filesystem::path(), state);
}

void LUView::load(const LULoadType::FilePath& source, const std::shared_ptr<LUStateData>& state)
{
    loadFile(source.path, state);
}

void LUView::loadFile(const std::filesystem::path& file, const std::shared_ptr<LUStateData>& state)
{
    configure(LottieAnimationView::ofAnimation(readDocument(services_, file), surface_, services_.mainQueue), *state);
    notifyDownloaded(state, true);
    if (!state->isControlEnabled) {
        playLater(state, [&queue = services_.mainQueue, state](bool finished) {
            queue.async([state, finished] { state->onCompleted.send(finished); });
        });
    }
}

void LUView::load(const LULoadType::LoadedFrom& source, const std::shared_ptr<LUStateData>& state)
{
    auto downloaded = [self = shared_from_this(), state](const std::optional<PlatformError>& error) {
        self->notifyDownloaded(state, !error);
        if (!state->isControlEnabled) {
            self->playLater(state, [state](bool finished) { state->onCompleted.send(finished); });
        }
    };
    configure(LottieAnimationView::ofUrl(source.url, services_.urlSession, std::move(downloaded), services_.surfaces,
                                         surface_, services_.mainQueue),
              *state);
}

void LUView::configure(const std::shared_ptr<LottieAnimationView>& animationView, const LUStateData& state)
{
    if (animationView_) {
        animationView_->removeFromSuperview();
    }
    animationView_ = animationView;
    animationView_->setContentMode(state.contentMode == LUContentMode::fit ? LottieContentMode::scaleAspectFit
                                                                           : LottieContentMode::scaleAspectFill);
    animationView_->setLoopMode(state.loopMode);
    animationView_->setAnimationSpeed(state.speed);
    animationView_->addToSuperview();
}

void LUView::playLater(const std::shared_ptr<LUStateData>& state, LottieAnimationView::Completion completion)
{
    services_.mainQueue.async([weak = weak_from_this(), state, completion = std::move(completion)] {
        if (const auto alive = weak.lock()) {
            alive->playAnimation(*state, completion);
        }
    });
}

void LUView::playAnimation(const LUStateData& state, LottieAnimationView::Completion completion)
{
    if (animationView_) {
        animationView_->play(state.range.from, state.range.to, state.loopMode, std::move(completion));
    }
}

void LUView::notifyDownloaded(const std::shared_ptr<LUStateData>& state, bool flag)
{
    services_.mainQueue.async([state, flag] { state->onDownloaded.send(flag); });
}

} // namespace orken
