#pragma once

#include "animation/LottieView.h"
#include "browser/SwiftUIWebView.h"
#include "browser/WebViewModel.h"
#include "machine/WindowControl.h"
#include "platform/Alerts.h"
#include "platform/Application.h"
#include "platform/BundleInfo.h"
#include "provider/Endpoints.h"
#include "session/LoadCounter.h"
#include "session/WatermarkMovement.h"
#include "view/View.h"

#include <cstdint>
#include <memory>
#include <string>

namespace orken {

/// The screen of one web session, filling its window: the browser, and over it the exit button with the version, the
/// waiting overlay until the first page has finished, the login page's own exit button, and the watermark over video
/// pages. Main thread only.
class WebView final : public View {
public:
    struct Ports {
        BrowserViews& browserViews;
        SwiftUIWebView::Services browser;
        WindowControl& windowControl;
        Alerts& alerts;
        Application& application;
        const BundleInfo& bundle;
        Timers& timers;
        MainQueue& mainQueue;
        const PageValues& pageValues;
        WatermarkMovement::Ports watermark;
        AnimationServices animation;
    };

    WebView(const std::string& link, const Endpoints& endpoints, const Ports& ports);

    [[nodiscard]] Element body() override;

    /// Asks, and ends the application after an agreement.
    void confirmExit();

private:
    [[nodiscard]] Element browserLayer();
    [[nodiscard]] Element cornerLayer();
    [[nodiscard]] Element waitingOverlay();
    [[nodiscard]] Element slowLoadMessage();
    [[nodiscard]] Element loginExitLayer();
    [[nodiscard]] Element watermarkLayer();
    void setUpWindow();
    void openMainPage();

    Ports ports_;
    std::string mainPageURL_;
    std::shared_ptr<WebViewModel> model_;
    /// Centre of the watermark.
    State<Point> position_;
    /// Seconds for which the first page has not finished.
    State<std::int64_t> second_;
    /// Mirror of the window's state.
    State<bool> isFullScreen_;
    std::shared_ptr<LUStateData> loadingAnimation_;
    std::shared_ptr<LoadCounter> loadCounter_;
    std::shared_ptr<WatermarkMovement> watermark_;
};

} // namespace orken
