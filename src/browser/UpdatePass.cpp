#include "browser/UpdatePass.h"

#include "browser/AntiDebuggingScript.h"
#include "provider/Conventions.h"

namespace orken {

void UpdatePass::runUpdatePass(BrowserView& webView, const std::shared_ptr<WebViewModel>& viewModel)
{
    if (viewModel->webView) {
        viewModel->webView->evaluateJavaScript(kAntiDebuggingScript, nullptr);
    }
    const auto url = webView.url();
    if (!url) {
        return;
    }
    services_.console.printLine("Gelen url " + *url);
    services_.addressReader.readAddress(*url);
    if (!isVideoPage(*url) || services_.values.decryptedHashValue.value_or("").empty()) {
        viewModel->removedIdentity = false;
    } else if (services_.videoPage.measureAndUncover(webView, *url, viewModel) == VideoPage::Cover::wasRemovedBefore) {
        return;
    }
    services_.periodicCheck.run();
}

} // namespace orken
