#include "linux/LazyEngine.h"

#include "linux/services/InstalledFolders.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace orken::desktop {

namespace {

constexpr const char* kModule = "liborken-engine.so";

} // namespace

LazyEngine::~LazyEngine()
{
    stop();
}

EngineModule* LazyEngine::load()
{
    if (engine_) {
        return engine_.get();
    }
    // Never unloaded: the engine's threads and types stay until the process ends.
    void* module = dlopen((modulesFolder() / kModule).c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    void* symbol = module ? dlsym(module, kMakeEngineSymbol) : nullptr;
    if (!symbol) {
        const char* reason = dlerror();
        settings_.report(std::string("orken: the web engine cannot be loaded: ") + (reason ? reason : "unknown"));
        return nullptr;
    }
    engine_.reset(reinterpret_cast<MakeEngine>(symbol)(settings_));
    return engine_.get();
}

void LazyEngine::loadWhenIdle()
{
    if (loading_.isPending() || engine_) {
        return;
    }
    loading_ = Source::idle(G_PRIORITY_LOW, [this] {
        if (EngineModule* engine = load()) {
            engine->warmUp();
        }
    });
}

std::shared_ptr<BrowserView> LazyEngine::make()
{
    EngineModule* engine = load();
    if (!engine) {
        std::fflush(nullptr);
        std::_Exit(EXIT_FAILURE);
    }
    return engine->browserViews().make();
}

void LazyEngine::fetchDataRecords(WebsiteDataTypes types,
                                  std::function<void(std::vector<WebsiteDataRecord>)> completion)
{
    // Also without a session before: what an earlier client left behind after a crash is cleared too.
    if (EngineModule* engine = load()) {
        engine->websiteData().fetchDataRecords(types, std::move(completion));
        return;
    }
    completion({});
}

void LazyEngine::removeData(WebsiteDataTypes types, const std::vector<WebsiteDataRecord>& records,
                            std::function<void()> completion)
{
    if (EngineModule* engine = load()) {
        engine->websiteData().removeData(types, records, std::move(completion));
    }
}

void LazyEngine::stop()
{
    loading_.end();
    if (engine_) {
        engine_->stop();
    }
}

} // namespace orken::desktop
