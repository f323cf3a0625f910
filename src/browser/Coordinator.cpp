#include "browser/Coordinator.h"

#include "foundation/Url.h"
#include "provider/Conventions.h"

namespace orken {

// A failed load changes nothing: the model keeps its values and the session screen's waiting overlay stays.
void Coordinator::didFailNavigation(BrowserView&, const PlatformError&) {}

void Coordinator::didFailProvisionalNavigation(BrowserView&, const PlatformError&) {}

void Coordinator::didFinishNavigation(BrowserView& view)
{
    const std::string url = view.url().value_or("");
    viewModel_->pageTitle.set(view.title().value_or(""));
    viewModel_->link.set(url);
    viewModel_->didFinishLoading.set(true);
    if (viewModel_->hasExecuted) {
        return;
    }
    if (isLoginPage(url)) {
        services_.loginParameter.startLoginParameter(weak_from_this(), view.shared_from_this());
    }
    // Set for any first page: a login page that comes later gets no parameter.
    viewModel_->hasExecuted = true;
}

void Coordinator::didReceiveAuthenticationChallenge(BrowserView&, const AuthenticationChallenge& challenge,
                                                    std::function<void(ChallengeDisposition)> decide)
{
    if (!challenge.serverTrust) {
        decide(ChallengeDisposition::cancelAuthenticationChallenge);
        return;
    }
    challenge.serverTrust->setOwnExceptions();
    decide(ChallengeDisposition::useCredential);
}

void Coordinator::decidePolicyForNavigationAction(BrowserView& view, const NavigationAction& action,
                                                  std::function<void(NavigationPolicy)> decide)
{
    const auto scheme = action.requestUrl ? urlScheme(*action.requestUrl) : std::nullopt;
    if (action.requestUrl) {
        services_.console.printLine("Gelen data tipi " + scheme.value_or("unknown"));
    }
    if (!scheme) {
        // The engine waits for an answer to every action, and there is nothing here that could be loaded.
        decide(NavigationPolicy::cancel);
    } else if (*scheme == "blob") {
        services_.pdfDownload.downloadBlob(view, action, decide);
    } else {
        decide(NavigationPolicy::allow);
    }
}

} // namespace orken
