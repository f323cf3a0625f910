#include "linux/engine/WebKitBrowserView.h"

#include "foundation/Url.h"
#include "linux/engine/ScriptCalls.h"
#include "linux/engine/ScriptWorld.h"
#include "linux/engine/SilentDefaults.h"
#include "linux/loop/AsyncReply.h"

#include <utility>

namespace orken::desktop {

namespace {

constexpr const char* kBlankAddress = "about:blank";

std::optional<std::string> present(const char* text)
{
    return text && *text ? std::optional<std::string>(text) : std::nullopt;
}

} // namespace

WebKitBrowserView::WebKitBrowserView(GObjectPtr<WebKitWebView> view, Report report)
    : view_(std::move(view)), report_(std::move(report))
{
}

WebKitBrowserView::WebKitBrowserView(std::unique_ptr<SpareView> spare, Report report)
    : WebKitBrowserView(spare->view(), std::move(report))
{
    spare_ = std::move(spare);
}

void WebKitBrowserView::stop()
{
    isStopped_ = true;
    delegate_.reset();
    restart_.reset();
    // What would still arrive could leave site data behind that has just been removed.
    webkit_web_view_stop_loading(view_.get());
}

void WebKitBrowserView::setNavigationDelegate(std::weak_ptr<NavigationDelegate> delegate)
{
    delegate_ = std::move(delegate);
}

void WebKitBrowserView::load(const UrlRequest& request)
{
    if (isStopped_ || !parseUrl(request.url)) {
        return;
    }
    request_ = request;
    finished_.reset();
    if (spare_) {
        spare_->whenReady([this] { beginRequest(); });
    } else {
        beginRequest();
    }
}

void WebKitBrowserView::beginRequest()
{
    if (isStopped_) {
        return;
    }
    if (!loads_) {
        connect();
    }
    policies_->askAboutServers([this] {
        if (!isStopped_) {
            loads_->request(*request_);
        }
    });
}

void WebKitBrowserView::connect()
{
    PageLoads::Events events;
    events.started = [this] { endTitleQuestion(); };
    events.finished = [this] { pageFinished(); };
    events.failed = [this](PageLoads::Stage stage, const PlatformError& error) { reportFailed(stage, error); };
    loads_ = std::make_unique<PageLoads>(view_.get(), std::move(events));
    policies_ = std::make_unique<NavigationPolicies>(view_.get(), *this, delegate_);
    const auto loadAgainNow = [this] { loadAgain(); };
    restart_ = std::make_unique<ProcessRestart>(view_.get(), loadAgainNow, report_);
    silentDefaults_ = silenceDefaults(view_.get());
}

void WebKitBrowserView::loadAgain()
{
    if (loads_->hasCommitted()) {
        webkit_web_view_reload(view_.get());
    } else {
        // There is no page yet that the engine could load again.
        loads_->request(*request_);
    }
}

void WebKitBrowserView::endTitleQuestion()
{
    if (pageTitle_) {
        pageTitle_->answerNow();
    }
}

void WebKitBrowserView::pageFinished()
{
    const auto keep = shared_from_this();
    endTitleQuestion();
    pageTitle_ = std::make_unique<PageTitle>(view_.get(), [this, address = url()](const std::string& pageTitle) {
        reportFinished({.title = present(pageTitle.c_str()), .url = address});
    });
}

void WebKitBrowserView::reportFinished(FinishedPage page)
{
    // The delegate may give the view up.
    const auto keep = shared_from_this();
    if (const auto delegate = delegate_.lock()) {
        finished_ = std::move(page);
        delegate->didFinishNavigation(*this);
        finished_.reset();
    }
}

void WebKitBrowserView::reportFailed(PageLoads::Stage stage, const PlatformError& error)
{
    const auto keep = shared_from_this();
    const auto delegate = delegate_.lock();
    if (!delegate) {
        return;
    }
    if (stage == PageLoads::Stage::provisional) {
        delegate->didFailProvisionalNavigation(*this, error);
    } else {
        delegate->didFailNavigation(*this, error);
    }
}

std::optional<std::string> WebKitBrowserView::title() const
{
    if (finished_) {
        return finished_->title;
    }
    return loads_ ? present(webkit_web_view_get_title(view_.get())) : std::nullopt;
}

std::optional<std::string> WebKitBrowserView::url() const
{
    if (finished_) {
        return finished_->url;
    }
    if (!loads_) {
        // Nothing has been asked for, or the first load waits for the spare view's blank page.
        return request_ ? std::optional(request_->url) : std::nullopt;
    }
    auto address = present(webkit_web_view_get_uri(view_.get()));
    // Before its first page, also after a failure, the view is empty, whatever a spare view has in it.
    const bool isOfSpare = !loads_->hasCommitted() && address == kBlankAddress && request_->url != kBlankAddress;
    return isOfSpare ? std::nullopt : address;
}

void WebKitBrowserView::evaluateJavaScript(const std::string& script, ScriptCompletion completion)
{
    constexpr const char* kPageWorld = nullptr;
    const bool isAwaited = static_cast<bool>(completion);
    webkit_web_view_evaluate_javascript(
        view_.get(), script.data(), static_cast<gssize>(script.size()), kPageWorld, nullptr, nullptr,
        isAwaited ? AsyncReply::call : nullptr,
        isAwaited ? scriptReply(webkit_web_view_evaluate_javascript_finish, std::move(completion)) : nullptr);
}

void WebKitBrowserView::callAsyncJavaScript(const std::string& functionBody, ScriptCompletion completion)
{
    webkit_web_view_call_async_javascript_function(
        view_.get(), functionBody.data(), static_cast<gssize>(functionBody.size()), nullptr, kScriptWorld, nullptr,
        nullptr, AsyncReply::call,
        scriptReply(webkit_web_view_call_async_javascript_function_finish, std::move(completion)));
}

gpointer WebKitBrowserView::scriptReply(FinishScript finish, ScriptCompletion completion)
{
    auto ended = [weak = std::weak_ptr(shared_from_this()), this, view = view_.get(), finish,
                  completion = std::move(completion)](GAsyncResult* result) {
        // The engine keeps its widget alive until it has called back.
        GError* error = nullptr;
        JSCValue* value = finish(view, result, &error);
        auto handedOver = takeScriptResult(value, error);
        if (const auto alive = weak.lock(); alive && !isStopped_) {
            completion(std::move(handedOver));
        }
    };
    return AsyncReply::of(std::move(ended));
}

} // namespace orken::desktop
