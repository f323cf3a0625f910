#pragma once

#include "linux/loop/SignalConnection.h"
#include "platform/BrowserView.h"

#include <webkit/webkit.h>

#include <memory>

namespace orken::desktop {

/// Puts the engine's questions about navigations and challenges to the navigation delegate. Main thread only.
class NavigationPolicies {
public:
    /// `owner` is the port's side of `view`. Both it and `delegate` outlive this.
    NavigationPolicies(WebKitWebView* view, BrowserView& owner, const std::weak_ptr<NavigationDelegate>& delegate);

private:
    void askAboutNavigation(WebKitPolicyDecision* decision, bool opensWindow);
    void askAboutChallenge(WebKitAuthenticationRequest* request);

    BrowserView& owner_;
    const std::weak_ptr<NavigationDelegate>& delegate_;
    SignalConnection decidePolicy_;
    SignalConnection authenticate_;
};

} // namespace orken::desktop
