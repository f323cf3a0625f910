#pragma once

#include "linux/GObjectPtr.h"
#include "linux/SignalConnection.h"

#include <webkit/webkit.h>

#include <functional>

namespace orken::desktop {

/// A view in which a blank page is loaded ahead of time, so that its processes run and the first real page does not
/// wait for them. Main thread only.
class SpareView {
public:
    explicit SpareView(GObjectPtr<WebKitWebView> view);

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
