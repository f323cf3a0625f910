#pragma once

#include "foundation/Url.h"
#include "platform/BrowserView.h"
#include "simulated/Part.h"
#include "simulated/Require.h"

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace orken::simulated {

/// What a site answers for one address.
struct Page {
    std::optional<std::string> title;
    /// The server's certificate fails the checks.
    bool untrusted = false;
    /// From the request to the end of the page.
    Seconds loadTime{0};
};

using Site = std::map<std::string, Page>;

/// A browser view whose pages are a table; addresses that are not in it fail.
class SimulatedBrowserView final : public BrowserView, Part {
public:
    SimulatedBrowserView(Common& common, const Site& site) : Part(common), site_(site) {}

    [[nodiscard]] NativeHandle* native() override { return nullptr; }

    [[nodiscard]] std::optional<std::string> title() const override { return title_; }

    [[nodiscard]] std::optional<std::string> url() const override { return address_; }

    void setNavigationDelegate(std::weak_ptr<NavigationDelegate> delegate) override { delegate_ = std::move(delegate); }

    void load(const UrlRequest& request) override
    {
        loop_.requireMainThread();
        if (!parseUrl(request.url)) {
            return;
        }
        journal_.add("load " + request.url + " within " + std::to_string(static_cast<int>(request.timeout.count())) +
                     " s");
        // Only a load call shows its address before the server has answered.
        address_ = request.url;
        navigate(request.url);
    }

    void configure(const BrowserConfiguration& configuration) override
    {
        userAgent_ = configuration.customUserAgent;
        for (const auto& [setting, isOn] : {std::pair("link previews", configuration.allowsLinkPreview),
                                            std::pair("page scripts", configuration.allowsContentJavaScript),
                                            std::pair("developer extras", configuration.developerExtrasEnabled)}) {
            journal_.add(std::string(setting) + (isOn ? " on" : " off"));
        }
        for (const UserScript& script : configuration.userScripts) {
            journal_.add(std::string("user script of ") +
                         (script.forMainFrameOnly ? "the main frame: " : "every frame: ") + script.source);
        }
    }

    void evaluateJavaScript(const std::string& script, ScriptCompletion completion) override
    {
        run("script\n", script, std::move(completion));
    }

    void callAsyncJavaScript(const std::string& functionBody, ScriptCompletion completion) override
    {
        run("function\n", functionBody, std::move(completion));
    }

    /// What a script ends with; absent for one that never does.
    std::function<std::optional<ScriptResult>(const std::string& script)> onScript = [](const auto&) {
        return ScriptResult(std::optional<ScriptValue>());
    };

    /// The page or the user goes to an address.
    void navigate(const std::string& url)
    {
        ++loads_;
        onThisLoad(Seconds{0}, [this, url] { askPolicy(url); });
    }

private:
    void run(const std::string& kind, const std::string& script, ScriptCompletion completion)
    {
        loop_.requireMainThread();
        journal_.add(kind + script);
        if (auto result = onScript(script); result && completion) {
            loop_.later(Seconds{0},
                        [result = std::move(*result), completion = std::move(completion)] { completion(result); });
        }
    }

    void askPolicy(const std::string& url)
    {
        const auto delegate = delegate_.lock();
        if (!delegate) {
            request(url);
            return;
        }
        const auto decide = [this, url, decided = std::make_shared<bool>(false)](NavigationPolicy policy) {
            require(!std::exchange(*decided, true), "a decision was given twice");
            policy == NavigationPolicy::allow ? request(url) : failProvisionally();
        };
        delegate->decidePolicyForNavigationAction(*this, {.requestUrl = url}, decide);
    }

    void request(const std::string& url)
    {
        journal_.add("request " + url + " as " + userAgent_);
        const auto place = site_.find(url);
        if (place == site_.end() || (place->second.untrusted && !isExcepted())) {
            failProvisionally();
            return;
        }
        address_ = committed_ = url;
        title_ = place->second.title;
        onThisLoad(place->second.loadTime, [this] {
            if (const auto delegate = delegate_.lock()) {
                delegate->didFinishNavigation(*this);
            }
        });
    }

    /// Whether the delegate, asked at once, makes an exception for the server's certificate.
    bool isExcepted()
    {
        struct Trust final : ServerTrust {
            void setOwnExceptions() override { isExcepted = true; }

            bool isExcepted = false;
        };

        const auto trust = std::make_shared<Trust>();
        bool isUsed = false;
        if (const auto delegate = delegate_.lock()) {
            delegate->didReceiveAuthenticationChallenge(
                *this, {.serverTrust = trust},
                [&isUsed](ChallengeDisposition answer) { isUsed = answer == ChallengeDisposition::useCredential; });
        }
        return isUsed && trust->isExcepted;
    }

    void failProvisionally()
    {
        address_ = committed_;
        if (const auto delegate = delegate_.lock()) {
            delegate->didFailProvisionalNavigation(*this, platformError("browser", 2, "", "no answer"));
        }
    }

    /// Nothing happens once another load has begun.
    void onThisLoad(Seconds delay, std::function<void()> step)
    {
        loop_.later(delay, [this, weak = weak_from_this(), load = loads_, step = std::move(step)] {
            if (const auto alive = weak.lock(); alive && loads_ == load) {
                step();
            }
        });
    }

    const Site& site_;
    std::weak_ptr<NavigationDelegate> delegate_;
    std::string userAgent_ = "default";
    std::optional<std::string> address_;
    std::optional<std::string> committed_;
    std::optional<std::string> title_;
    unsigned loads_ = 0;
};

class SimulatedBrowserViews final : public BrowserViews, Part {
public:
    using Part::Part;

    [[nodiscard]] std::shared_ptr<BrowserView> make() override
    {
        loop_.requireMainThread();
        journal_.add("browser view");
        return latest = std::make_shared<SimulatedBrowserView>(common_, site);
    }

    Site site;
    /// The view that was made last.
    std::shared_ptr<SimulatedBrowserView> latest;
};

} // namespace orken::simulated
