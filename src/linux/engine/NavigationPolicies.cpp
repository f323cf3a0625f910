#include "linux/engine/NavigationPolicies.h"

#include "linux/engine/HeldAnswer.h"
#include "linux/loop/GObjectPtr.h"

namespace orken::desktop {

namespace {

NavigationAction navigationAction(WebKitPolicyDecision* decision)
{
    auto* navigation =
        webkit_navigation_policy_decision_get_navigation_action(WEBKIT_NAVIGATION_POLICY_DECISION(decision));
    const char* address = webkit_uri_request_get_uri(webkit_navigation_action_get_request(navigation));
    return address && *address ? NavigationAction{.requestUrl = address} : NavigationAction{};
}

/// Stands for every server of the session.
class SessionTrust final : public ServerTrust {
public:
    void setOwnExceptions() override { hasExceptions = true; }

    bool hasExceptions = false;
};

void decideResponse(WebKitPolicyDecision* decision)
{
    // What cannot be shown would be saved by default.
    if (webkit_response_policy_decision_is_mime_type_supported(WEBKIT_RESPONSE_POLICY_DECISION(decision))) {
        webkit_policy_decision_use(decision);
    } else {
        webkit_policy_decision_ignore(decision);
    }
}

} // namespace

NavigationPolicies::NavigationPolicies(WebKitWebView* view, BrowserView& owner,
                                       const std::weak_ptr<NavigationDelegate>& delegate)
    : view_(view), owner_(owner), delegate_(delegate)
{
    decidePolicy_ = SignalConnection::make<gboolean(WebKitWebView*, WebKitPolicyDecision*, WebKitPolicyDecisionType)>(
        view, "decide-policy",
        [this](WebKitWebView*, WebKitPolicyDecision* decision, WebKitPolicyDecisionType type) -> gboolean {
            if (type == WEBKIT_POLICY_DECISION_TYPE_RESPONSE) {
                decideResponse(decision);
            } else {
                askAboutNavigation(decision, type == WEBKIT_POLICY_DECISION_TYPE_NEW_WINDOW_ACTION);
            }
            return TRUE;
        });
    authenticate_ = SignalConnection::make<gboolean(WebKitWebView*, WebKitAuthenticationRequest*)>(
        view, "authenticate", [this](WebKitWebView*, WebKitAuthenticationRequest* request) -> gboolean {
            askAboutChallenge(request);
            return TRUE;
        });
}

void NavigationPolicies::askAboutServers(std::function<void()> whenAnswered)
{
    const auto delegate = delegate_.lock();
    const auto trust = std::make_shared<SessionTrust>();
    auto decide = HeldAnswer<ChallengeDisposition>::handler(
        [this, alive = alive_.watch(), trust,
         whenAnswered = std::move(whenAnswered)](ChallengeDisposition disposition) {
            if (alive.expired()) {
                return;
            }
            const bool acceptsAll = disposition == ChallengeDisposition::useCredential && trust->hasExceptions;
            webkit_network_session_set_tls_errors_policy(webkit_web_view_get_network_session(view_),
                                                         acceptsAll ? WEBKIT_TLS_ERRORS_POLICY_IGNORE
                                                                    : WEBKIT_TLS_ERRORS_POLICY_FAIL);
            whenAnswered();
        },
        ChallengeDisposition::cancelAuthenticationChallenge);
    if (delegate) {
        delegate->didReceiveAuthenticationChallenge(owner_, {.serverTrust = trust}, std::move(decide));
    }
}

void NavigationPolicies::askAboutNavigation(WebKitPolicyDecision* decision, bool opensWindow)
{
    auto decide = HeldAnswer<NavigationPolicy>::handler(
        [held = GObjectPtr<WebKitPolicyDecision>::share(decision), opensWindow](NavigationPolicy policy) {
            // There is no second window to show an allowed one in.
            if (policy == NavigationPolicy::allow && !opensWindow) {
                webkit_policy_decision_use(held.get());
            } else {
                webkit_policy_decision_ignore(held.get());
            }
        },
        NavigationPolicy::cancel);
    if (const auto delegate = delegate_.lock()) {
        delegate->decidePolicyForNavigationAction(owner_, navigationAction(decision), std::move(decide));
    } else {
        decide(NavigationPolicy::allow);
    }
}

void NavigationPolicies::askAboutChallenge(WebKitAuthenticationRequest* request)
{
    auto decide = HeldAnswer<ChallengeDisposition>::handler(
        [held = GObjectPtr<WebKitAuthenticationRequest>::share(request)](ChallengeDisposition disposition) {
            if (disposition == ChallengeDisposition::useCredential) {
                webkit_authentication_request_authenticate(held.get(), nullptr);
            } else {
                webkit_authentication_request_cancel(held.get());
            }
        },
        ChallengeDisposition::cancelAuthenticationChallenge);
    if (const auto delegate = delegate_.lock()) {
        delegate->didReceiveAuthenticationChallenge(owner_, {}, std::move(decide));
    }
}

} // namespace orken::desktop
