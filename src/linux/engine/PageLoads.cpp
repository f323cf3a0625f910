#include "linux/engine/PageLoads.h"

#include <utility>

namespace orken::desktop {

PageLoads::PageLoads(WebKitWebView* view, Events events) : view_(view), events_(std::move(events))
{
    loadChanged_ = SignalConnection::make<void(WebKitWebView*, WebKitLoadEvent)>(
        view_, "load-changed", [this](WebKitWebView*, WebKitLoadEvent event) { changed(event); });
    loadFailed_ = SignalConnection::make<gboolean(WebKitWebView*, WebKitLoadEvent, const char*, GError*)>(
        view_, "load-failed", [this](WebKitWebView*, WebKitLoadEvent event, const char* address, GError* error) {
            failed(event, address, *error);
            // Handled: otherwise the engine loads an error page, which would finish under the failed address.
            return gboolean{TRUE};
        });
}

void PageLoads::request(const UrlRequest& request)
{
    request_ = Request::made;
    // The engine's request has no time-out of its own.
    deadline_ = Source::after(request.timeout, [this, address = request.url] { timedOut(address); });
    webkit_web_view_load_uri(view_, request.url.c_str());
}

void PageLoads::changed(WebKitLoadEvent event)
{
    switch (event) {
    case WEBKIT_LOAD_STARTED:
        finishIsOfFailure_ = false;
        failureIsKnown_ = false;
        if (request_ == Request::made) {
            request_ = Request::started;
        }
        events_.started();
        break;
    case WEBKIT_LOAD_REDIRECTED:
        break;
    case WEBKIT_LOAD_COMMITTED:
        hasCommitted_ = true;
        endRequest();
        break;
    case WEBKIT_LOAD_FINISHED:
        if (!std::exchange(finishIsOfFailure_, false)) {
            events_.finished();
        }
        break;
    }
}

void PageLoads::failed(WebKitLoadEvent event, const char* address, const GError& error)
{
    finishIsOfFailure_ = true;
    endRequest();
    if (std::exchange(failureIsKnown_, false)) {
        return;
    }
    events_.failed(event == WEBKIT_LOAD_COMMITTED ? Stage::committed : Stage::provisional,
                   platformError(g_quark_to_string(error.domain), error.code, address, error.message));
}

void PageLoads::timedOut(const std::string& address)
{
    // A load that was refused by policy has ended without any event.
    if (!webkit_web_view_is_loading(view_)) {
        return;
    }
    request_ = Request::none;
    failureIsKnown_ = true;
    webkit_web_view_stop_loading(view_);
    events_.failed(Stage::provisional,
                   platformError(g_quark_to_string(G_IO_ERROR), G_IO_ERROR_TIMED_OUT, address, "Timed out"));
}

/// Before its own start, what commits or fails is the load that the request supersedes.
void PageLoads::endRequest()
{
    if (request_ == Request::started) {
        request_ = Request::none;
        deadline_.end();
    }
}

} // namespace orken::desktop
