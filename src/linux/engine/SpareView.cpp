#include "linux/engine/SpareView.h"

#include <utility>

namespace orken::desktop {

namespace {

std::string blankPage(const std::string& expectedHost)
{
    std::string page = "<!DOCTYPE html>";
    if (!expectedHost.empty()) {
        // The address lookup, the TLS library with its authorities and the handshake, but no request.
        const GText host(g_markup_escape_text(expectedHost.c_str(), -1));
        page += std::string("<link rel=preconnect href=\"https://") + host.get() + "/\">";
    }
    return page;
}

} // namespace

SpareView::SpareView(GObjectPtr<WebKitWebView> view, const std::string& expectedHost) : view_(std::move(view))
{
    loadChanged_ = SignalConnection::make<void(WebKitWebView*, WebKitLoadEvent)>(
        view_.get(), "load-changed", [this](WebKitWebView*, WebKitLoadEvent event) {
            if (event == WEBKIT_LOAD_FINISHED) {
                becomeReady();
            }
        });
    // A view whose process has gone starts a new one for its next load.
    processTerminated_ = SignalConnection::make<void(WebKitWebView*, WebKitWebProcessTerminationReason)>(
        view_.get(), "web-process-terminated",
        [this](WebKitWebView*, WebKitWebProcessTerminationReason) { becomeReady(); });
    // A text, not the address about:blank, which would stay in the history as a page to go back to.
    webkit_web_view_load_html(view_.get(), blankPage(expectedHost).c_str(), nullptr);
}

void SpareView::whenReady(std::function<void()> callback)
{
    if (isReady_) {
        callback();
    } else {
        callback_ = std::move(callback);
    }
}

void SpareView::becomeReady()
{
    isReady_ = true;
    loadChanged_.disconnect();
    processTerminated_.disconnect();
    if (const auto callback = std::exchange(callback_, nullptr)) {
        callback();
    }
}

} // namespace orken::desktop
