#pragma once

#include "linux/loop/Alive.h"
#include "linux/loop/SignalConnection.h"
#include "platform/BrowserView.h"

#include <webkit/webkit.h>

#include <functional>
#include <memory>

namespace orken::desktop {

/// Puts the engine's questions about navigations and challenges to the navigation delegate, and obeys its answers. Main
/// thread only.
class NavigationPolicies {
public:
    /// `owner` is the port's side of `view`. Both it and `delegate` outlive this.
    NavigationPolicies(WebKitWebView* view, BrowserView& owner, const std::weak_ptr<NavigationDelegate>& delegate);

    /// Asks for what the servers of the view's session may show as certificates, sets the session's rule by the answer,
    /// and then calls back, now or later; not at all once this has gone.
    ///
    /// Asking each time is not possible here: the engine reports a bad certificate only for the page itself, a failed
    /// one for an image or a frame is just dropped, and an exception covers a single host.
    void askAboutServers(std::function<void()> whenAnswered);

private:
    void askAboutNavigation(WebKitPolicyDecision* decision, bool opensWindow);
    void askAboutChallenge(WebKitAuthenticationRequest* request);

    WebKitWebView* view_;
    BrowserView& owner_;
    const std::weak_ptr<NavigationDelegate>& delegate_;
    SignalConnection decidePolicy_;
    SignalConnection authenticate_;
    Alive alive_;
};

} // namespace orken::desktop
