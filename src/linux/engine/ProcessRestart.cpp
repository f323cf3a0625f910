#include "linux/engine/ProcessRestart.h"

#include <utility>

namespace orken::desktop {

namespace {

constexpr std::size_t kMostReloads = 3;
constexpr std::chrono::seconds kPeriod{60};

const char* reasonText(WebKitWebProcessTerminationReason reason)
{
    switch (reason) {
    case WEBKIT_WEB_PROCESS_CRASHED:
        return "crashed";
    case WEBKIT_WEB_PROCESS_EXCEEDED_MEMORY_LIMIT:
        return "exceeded the memory limit";
    case WEBKIT_WEB_PROCESS_TERMINATED_BY_API:
        return "was terminated";
    }
    return "ended";
}

} // namespace

ProcessRestart::ProcessRestart(WebKitWebView* view, std::function<void()> reload,
                               std::function<void(const std::string&)> report)
    : reload_(std::move(reload)), report_(std::move(report))
{
    processTerminated_ = SignalConnection::make<void(WebKitWebView*, WebKitWebProcessTerminationReason)>(
        view, "web-process-terminated",
        [this](WebKitWebView*, WebKitWebProcessTerminationReason reason) { terminated(reasonText(reason)); });
}

void ProcessRestart::terminated(const char* reason)
{
    const auto now = std::chrono::steady_clock::now();
    while (!reloads_.empty() && now - reloads_.front() >= kPeriod) {
        reloads_.pop_front();
    }
    const std::string line = std::string("orken: the page's process ") + reason;
    if (reloads_.size() >= kMostReloads) {
        report_(line + "; the page is left as it is");
        return;
    }
    reloads_.push_back(now);
    report_(line + "; the page is loaded again");
    reload_();
}

} // namespace orken::desktop
