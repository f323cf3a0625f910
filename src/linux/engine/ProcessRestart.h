#pragma once

#include "linux/SignalConnection.h"

#include <webkit/webkit.h>

#include <chrono>
#include <deque>
#include <functional>
#include <string>

namespace orken::desktop {

/// Brings a page back whose process has ended, whatever the reason: at most three times in a minute, after which the
/// view is left as it is. One line is reported each time. Main thread only.
class ProcessRestart {
public:
    ProcessRestart(WebKitWebView* view, std::function<void()> reload, std::function<void(const std::string&)> report);

private:
    void terminated(const char* reason);

    std::function<void()> reload_;
    std::function<void(const std::string&)> report_;
    std::deque<std::chrono::steady_clock::time_point> reloads_;
    SignalConnection processTerminated_;
};

} // namespace orken::desktop
