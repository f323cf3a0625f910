#pragma once

#include "platform/BrowserView.h"
#include "simulated/Journal.h"
#include "simulated/MainLoop.h"

#include <map>
#include <memory>
#include <optional>
#include <string>

namespace orken::simulated {

/// What a site answers for one address.
struct Page {
    std::optional<std::string> title;
    /// Where the server sends the browser instead.
    std::optional<std::string> redirect;
    /// There is no answer.
    bool fails = false;
    /// The server's certificate fails the checks.
    bool untrusted = false;
    /// From the request to the end of the page.
    Seconds loadTime{0};
};

using Site = std::map<std::string, Page>;

/// A browser view whose pages are a table; addresses that are not in it fail.
class SimulatedBrowserView final : public BrowserView,
                                   public BrowserConfiguration,
                                   public std::enable_shared_from_this<SimulatedBrowserView> {
public:
    SimulatedBrowserView(MainLoop& loop, Journal& journal, const Site& site)
        : loop_(loop), journal_(journal), site_(site)
    {
    }

    [[nodiscard]] void* native() override { return this; }

    [[nodiscard]] BrowserConfiguration& configuration() override { return *this; }

    [[nodiscard]] std::optional<std::string> title() const override { return title_; }

    [[nodiscard]] std::optional<std::string> url() const override { return address_; }

    void setNavigationDelegate(std::weak_ptr<NavigationDelegate> delegate) override;
    void load(const UrlRequest& request) override;

    void setCustomUserAgent(const std::string& userAgent) override { setUp("user agent ", userAgent_ = userAgent); }

    void setAllowsLinkPreview(bool allows) override { setUp("link previews ", allows ? "on" : "off"); }

    void setAllowsContentJavaScript(bool allows) override { setUp("page scripts ", allows ? "on" : "off"); }

    void setDeveloperExtrasEnabled(bool enabled) override { setUp("developer extras ", enabled ? "on" : "off"); }

    void addUserScript(const UserScript& script) override;

    /// The page or the user goes to an address.
    void navigate(const std::string& url);

private:
    void setUp(const std::string& setting, const std::string& value) { journal_.add(setting + value); }

    void askPolicy(const std::string& url);
    void request(const std::string& url);
    void answer(const std::string& url, const Page& page);
    void failProvisionally(const std::string& reason);
    /// Nothing happens once another load has begun.
    void onThisLoad(Seconds delay, std::function<void()> step);

    MainLoop& loop_;
    Journal& journal_;
    const Site& site_;
    std::weak_ptr<NavigationDelegate> delegate_;
    std::string userAgent_ = "default";
    std::optional<std::string> address_;
    std::optional<std::string> committed_;
    std::optional<std::string> title_;
    unsigned loads_ = 0;
};

class SimulatedBrowserViews final : public BrowserViews {
public:
    SimulatedBrowserViews(MainLoop& loop, Journal& journal) : loop_(loop), journal_(journal) {}

    [[nodiscard]] std::shared_ptr<BrowserView> make() override
    {
        loop_.requireMainThread();
        journal_.add("browser view");
        return latest = std::make_shared<SimulatedBrowserView>(loop_, journal_, site);
    }

    Site site;
    /// The view that was made last.
    std::shared_ptr<SimulatedBrowserView> latest;

private:
    MainLoop& loop_;
    Journal& journal_;
};

} // namespace orken::simulated
