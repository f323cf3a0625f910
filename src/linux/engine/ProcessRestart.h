#pragma once

#include "linux/loop/SignalConnection.h"
#include "platform/ReloadLimit.h"

#include <webkit/webkit.h>

#include <functional>
#include <string>

namespace orken::desktop {

/// Brings a page back whose process has ended, whatever the reason, as often as `ReloadLimit` allows; after that
/// the view is left as it is. One line is reported each time. Main thread only.
class ProcessRestart {
public:
    ProcessRestart(WebKitWebView* view, std::function<void()> reload, std::function<void(const std::string&)> report);

private:
    void terminated(const char* reason);

    std::function<void()> reload_;
    std::function<void(const std::string&)> report_;
    ReloadLimit limit_;
    SignalConnection processTerminated_;
};

} // namespace orken::desktop
