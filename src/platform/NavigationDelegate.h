#pragma once

#include "foundation/NonCopyable.h"
#include "foundation/PlatformError.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace orken {

class BrowserView;

enum class NavigationPolicy { cancel, allow };

struct NavigationAction {
    /// Absolute text of the requested address.
    std::optional<std::string> requestUrl;
};

/// The certificate chains that servers show.
class ServerTrust : NonCopyable {
public:
    virtual ~ServerTrust() = default;

    /// Accepts what a chain fails in, as if it did not.
    virtual void setOwnExceptions() = 0;
};

struct AuthenticationChallenge {
    /// Null for every challenge that is not about a server's certificate.
    std::shared_ptr<ServerTrust> serverTrust;
};

enum class ChallengeDisposition { useCredential, cancelAuthenticationChallenge };

/// What a browser view asks and reports; all of it on the main thread. Each decision handler is called exactly once,
/// now or later, on the main thread.
class NavigationDelegate : NonCopyable {
public:
    virtual ~NavigationDelegate() = default;

    virtual void didFailNavigation(BrowserView& view, const PlatformError& error) = 0;
    virtual void didFailProvisionalNavigation(BrowserView& view, const PlatformError& error) = 0;
    /// A page has finished; a failed load is never reported here. The view's title and address are the page's.
    virtual void didFinishNavigation(BrowserView& view) = 0;
    /// For a server's certificate and for every other challenge. A refusal of a certificate leaves the desktop's own
    /// check in force. A desktop whose engine cannot ask for each connection asks before each load that the product
    /// calls for, and the answer holds for all servers from then on.
    virtual void didReceiveAuthenticationChallenge(BrowserView& view, const AuthenticationChallenge& challenge,
                                                   std::function<void(ChallengeDisposition)> decide) = 0;
    /// Asked for the main frame and for sub-frames.
    virtual void decidePolicyForNavigationAction(BrowserView& view, const NavigationAction& action,
                                                 std::function<void(NavigationPolicy)> decide) = 0;
};

} // namespace orken
