#pragma once

#include "linux/loop/GObjectPtr.h"
#include "linux/loop/SignalConnection.h"

#include <webkit/webkit.h>

#include <functional>
#include <string>

namespace orken::desktop {

/// A view in which a blank page is loaded ahead of time, so that its processes run, and the engine is connected to the
/// site (host or host:port; empty: to none), so that the first real page waits for neither. Main thread only.
class SpareView {
public:
    SpareView(GObjectPtr<WebKitWebView> view, const std::string& expectedHost);

    [[nodiscard]] const GObjectPtr<WebKitWebView>& view() const { return view_; }

    /// Calls once when the blank page is through, at once if it is already; a later callback replaces an earlier one.
    /// A load that begins only then shares no event with the blank page's.
    void whenReady(std::function<void()> callback);

private:
    void becomeReady();

    GObjectPtr<WebKitWebView> view_;
    bool isReady_ = false;
    std::function<void()> callback_;
    SignalConnection loadChanged_;
    SignalConnection processTerminated_;
};

} // namespace orken::desktop
