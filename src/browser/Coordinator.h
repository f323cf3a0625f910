#pragma once

#include "browser/LoginParameter.h"
#include "browser/PdfDownload.h"
#include "browser/WebViewModel.h"
#include "platform/Console.h"
#include "platform/NavigationDelegate.h"

#include <memory>

namespace orken {

/// The session's navigation delegate: copies what finished pages say into the model, accepts every server's
/// certificate, also one that the system would refuse, because providers run sites with certificates of their own, and
/// lets every navigation through except those to `blob:` addresses. SECURITY.md says what that means. Main thread only.
class Coordinator final : public NavigationDelegate, public std::enable_shared_from_this<Coordinator> {
public:
    struct Services {
        Console& console;
        LoginParameter& loginParameter;
        PdfDownload& pdfDownload;
    };

    Coordinator(std::shared_ptr<WebViewModel> viewModel, const Services& services)
        : viewModel_(std::move(viewModel)), services_(services)
    {
    }

    void didFailNavigation(BrowserView& view, const PlatformError& error) override;
    void didFailProvisionalNavigation(BrowserView& view, const PlatformError& error) override;
    void didFinishNavigation(BrowserView& view) override;
    void didReceiveAuthenticationChallenge(BrowserView& view, const AuthenticationChallenge& challenge,
                                           std::function<void(ChallengeDisposition)> decide) override;
    void decidePolicyForNavigationAction(BrowserView& view, const NavigationAction& action,
                                         std::function<void(NavigationPolicy)> decide) override;

private:
    std::shared_ptr<WebViewModel> viewModel_;
    Services services_;
};

} // namespace orken
