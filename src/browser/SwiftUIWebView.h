#pragma once

#include "browser/Coordinator.h"
#include "browser/UpdatePass.h"
#include "browser/WebViewModel.h"
#include "platform/BrowserView.h"
#include "view/Representable.h"
#include "view/State.h"

#include <memory>

namespace orken {

/// Puts the browser view into the session screen: configures it once, loads the model's link, and runs the page
/// scripts on every redraw. Main thread only.
class SwiftUIWebView {
public:
    using Context = RepresentableContext<Coordinator>;

    struct Services {
        Coordinator::Services coordinator;
        UpdatePass& updatePass;
    };

    SwiftUIWebView(std::shared_ptr<WebViewModel> viewModel, State<bool> removedIdentity,
                   std::shared_ptr<BrowserView> webView, const Services& services)
        : viewModel_(std::move(viewModel)), removedIdentity_(std::move(removedIdentity)), webView_(std::move(webView)),
          services_(services)
    {
    }

    [[nodiscard]] std::shared_ptr<Coordinator> makeCoordinator() const;

    /// The browser view given at construction. An invalid link loads nothing; the configuration is made all the same.
    [[nodiscard]] std::shared_ptr<BrowserView> makeNSView(const Context& context);

    void updateNSView(BrowserView& nsView, const Context& context);

private:
    std::shared_ptr<WebViewModel> viewModel_;
    /// Carried with the view; the flag that the page scripts use is the model's.
    State<bool> removedIdentity_;
    std::shared_ptr<BrowserView> webView_;
    Services services_;
};

} // namespace orken
