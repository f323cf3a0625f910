#include "session/WebView.h"

namespace orken {

WebView::WebView(const std::string& link, const Ports& ports)
    : ports_(ports), model_(std::make_shared<WebViewModel>(link)), isFullScreen_(makeState(false))
{
    observe(*model_);
}

Element WebView::body()
{
    // The factory runs once: a redraw must never bring a new browser view.
    auto makeBrowser = [this] {
        return std::make_unique<SwiftUIWebView>(model_, makeState(false), ports_.browserViews.make(),
                                                ports_.browserServices);
    };
    return ZStack({
        Representable<SwiftUIWebView>(makeBrowser).disabled(!model_->didFinishLoading.get()).onAppear([this] {
            setUpWindow();
        }),
    });
}

void WebView::setUpWindow()
{
    ports_.windowControl.enterFullScreen(isFullScreen_);
    ports_.windowControl.closeOtherWindows();
    ports_.windowControl.observeFullScreenChanges(isFullScreen_);
    ports_.windowControl.installKeyMonitor();
}

} // namespace orken
