#include "linux/engine/ProcessRestart.h"

#include <chrono>
#include <utility>

namespace orken::desktop {

namespace {

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
    const std::string line = std::string("orken: the page's process ") + reason;
    if (!limit_.allows(std::chrono::steady_clock::now().time_since_epoch())) {
        report_(line + "; the page is left as it is");
        return;
    }
    report_(line + "; the page is loaded again");
    reload_();
}

} // namespace orken::desktop
