#include "simulated/SimulatedBrowser.h"

#include "foundation/Url.h"
#include "simulated/Require.h"

namespace orken::simulated {

namespace {

struct Trust final : ServerTrust {
    void setOwnExceptions() override { accepted = true; }

    bool accepted = false;
};

/// A decision handler of the engine: exactly one call.
template <class Answer>
std::function<void(Answer)> onceOnly(std::function<void(Answer)> decide)
{
    return [decided = std::make_shared<bool>(false), decide = std::move(decide)](Answer answer) {
        require(!std::exchange(*decided, true), "a decision was given twice");
        decide(answer);
    };
}

} // namespace

void SimulatedBrowserView::setNavigationDelegate(std::weak_ptr<NavigationDelegate> delegate)
{
    delegate_ = std::move(delegate);
    journal_.add("navigation delegate");
}

void SimulatedBrowserView::load(const UrlRequest& request)
{
    loop_.requireMainThread();
    if (!parseUrl(request.url)) {
        return;
    }
    journal_.add("load " + request.url + " within " + std::to_string(static_cast<int>(request.timeout.count())) + " s");
    // Only a load call shows its address before the server has answered.
    address_ = request.url;
    navigate(request.url);
}

void SimulatedBrowserView::addUserScript(const UserScript& script)
{
    const bool atEnd = script.injectionTime == ScriptInjectionTime::documentEnd;
    journal_.add(std::string("user script at ") + (atEnd ? "end" : "start") +
                 (script.forMainFrameOnly ? " of the main frame: " : " of every frame: ") + script.source);
}

void SimulatedBrowserView::navigate(const std::string& url)
{
    ++loads_;
    onThisLoad(Seconds{0}, [this, url] { askPolicy(url); });
}

void SimulatedBrowserView::askPolicy(const std::string& url)
{
    const auto delegate = delegate_.lock();
    if (!delegate) {
        request(url);
        return;
    }
    const auto decide = onceOnly<NavigationPolicy>([this, url](NavigationPolicy policy) {
        policy == NavigationPolicy::allow ? request(url) : failProvisionally("cancelled");
    });
    delegate->decidePolicyForNavigationAction(*this, {.requestUrl = url}, decide);
}

void SimulatedBrowserView::request(const std::string& url)
{
    journal_.add("request " + url + " as " + userAgent_);
    const auto delegate = delegate_.lock();
    const auto place = site_.find(url);
    if (place == site_.end() || place->second.fails) {
        failProvisionally("no answer");
    } else if (!place->second.untrusted) {
        answer(url, place->second);
    } else if (delegate) {
        const auto trust = std::make_shared<Trust>();
        const auto decide = onceOnly<ChallengeDisposition>([=, this, page = place->second](auto disposition) {
            const bool accepted = disposition == ChallengeDisposition::useCredential && trust->accepted;
            accepted ? answer(url, page) : failProvisionally("certificate");
        });
        delegate->didReceiveAuthenticationChallenge(*this, {.serverTrust = trust}, decide);
    }
}

void SimulatedBrowserView::answer(const std::string& url, const Page& page)
{
    if (page.redirect) {
        navigate(*page.redirect);
        return;
    }
    address_ = committed_ = url;
    title_ = page.title;
    onThisLoad(page.loadTime, [this] {
        if (const auto delegate = delegate_.lock()) {
            delegate->didFinishNavigation(*this);
        }
    });
}

void SimulatedBrowserView::failProvisionally(const std::string& reason)
{
    address_ = committed_;
    if (const auto delegate = delegate_.lock()) {
        delegate->didFailProvisionalNavigation(*this, platformError("browser", 2, "", reason));
    }
}

void SimulatedBrowserView::onThisLoad(Seconds delay, std::function<void()> step)
{
    loop_.later(delay, [weak = weak_from_this(), load = loads_, step = std::move(step)] {
        if (const auto view = weak.lock(); view && view->loads_ == load) {
            step();
        }
    });
}

} // namespace orken::simulated
