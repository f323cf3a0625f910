#pragma once

#include "foundation/PlatformError.h"
#include "linux/loop/SignalConnection.h"
#include "linux/loop/Source.h"
#include "platform/BrowserView.h"

#include <webkit/webkit.h>

#include <functional>

namespace orken::desktop {

/// The loads of one view, the engine's peculiarities taken out: each load either fails or finishes, and a request that
/// is not answered in time fails. Main thread only.
class PageLoads {
public:
    enum class Stage { provisional, committed };

    /// Called last in what this class does: each may destroy it.
    struct Events {
        std::function<void()> started;
        std::function<void()> finished;
        std::function<void(Stage, const PlatformError&)> failed;
    };

    PageLoads(WebKitWebView* view, Events events);

    void request(const UrlRequest& request);

    /// A page has been there at some time.
    [[nodiscard]] bool hasCommitted() const { return hasCommitted_; }

private:
    enum class Request { none, made, started };

    void changed(WebKitLoadEvent event);
    void failed(WebKitLoadEvent event, const char* address, const GError& error);
    void timedOut(const std::string& address);
    void endRequest();

    WebKitWebView* view_;
    Events events_;
    bool hasCommitted_ = false;
    /// A failed load is followed by a "finished" of its own.
    bool finishIsOfFailure_ = false;
    bool failureIsKnown_ = false;
    Request request_ = Request::none;
    Source deadline_;
    SignalConnection loadChanged_;
    SignalConnection loadFailed_;
};

} // namespace orken::desktop
