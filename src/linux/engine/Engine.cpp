#include "linux/engine/Engine.h"

#include <utility>

namespace orken::desktop {

Engine::Engine(const EngineSettings& settings)
    : settings_(settings), session_(settings_), websiteData_(session_.dataManager())
{
}

void Engine::warmUp()
{
    if (!spare_) {
        spare_ = std::make_unique<SpareView>(session_.makeView(), settings_.expectedHost);
    }
}

std::shared_ptr<BrowserView> Engine::make()
{
    auto view = spare_ ? std::make_shared<WebKitBrowserView>(std::exchange(spare_, nullptr), settings_.report)
                       : std::make_shared<WebKitBrowserView>(session_.makeView(), settings_.report);
    views_.push_back(view);
    return view;
}

void Engine::stop()
{
    for (const auto& view : views_) {
        if (const auto alive = view.lock()) {
            alive->stop();
        }
    }
}

} // namespace orken::desktop

extern "C" __attribute__((visibility("default"))) orken::desktop::EngineModule*
orkenMakeEngine(const orken::desktop::EngineSettings& settings)
{
    return new orken::desktop::Engine(settings);
}
