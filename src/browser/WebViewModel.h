#pragma once

#include "platform/BrowserView.h"
#include "view/ObservableObject.h"

#include <memory>
#include <string>

namespace orken {

/// The state of one web session, shared by the session screen, the browser view host and the navigation delegate. Main
/// thread only.
class WebViewModel final : public ObservableObject {
public:
    /// Starts nothing: no request, no timer, no observer.
    explicit WebViewModel(std::string startLink) : link(*this, std::move(startLink)) {}

    /// First the address to load, then the address of the page that finished last; empty for a page without one.
    Published<std::string> link;
    /// Some page has finished. Never false again.
    Published<bool> didFinishLoading{*this, false};
    /// Title of the page that finished last.
    Published<std::string> pageTitle{*this, {}};
    Published<bool> showExitButton{*this, false};

    /// The first finished page has been handled.
    bool hasExecuted = false;
    /// The covering element of the present video page has been removed.
    bool removedIdentity = false;
    /// Address of the video page that the page scripts handled last.
    std::string videoUrl;
    /// The session's browser view, once it has been made.
    std::shared_ptr<BrowserView> webView;
};

} // namespace orken
