#pragma once

#include "browser/SwiftUIWebView.h"
#include "session/WebViewModel.h"
#include "session/WindowControl.h"
#include "view/View.h"

#include <memory>
#include <string>

namespace orken {

/// The screen of one web session, filling its window. Main thread only.
class WebView final : public View {
public:
    struct Ports {
        BrowserViews& browserViews;
        WindowControl& windowControl;
        SwiftUIWebView::Services browserServices;
    };

    WebView(const std::string& link, const Ports& ports);

    [[nodiscard]] Element body() override;

private:
    void setUpWindow();

    Ports ports_;
    std::shared_ptr<WebViewModel> model_;
    /// Mirror of the window's state.
    State<bool> isFullScreen_;
};

} // namespace orken
