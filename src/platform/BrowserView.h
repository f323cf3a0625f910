#pragma once

#include "foundation/NonCopyable.h"
#include "platform/NavigationDelegate.h"
#include "platform/ScriptValue.h"
#include "platform/Seconds.h"
#include "view/Representable.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orken {

enum class CachePolicy { useProtocolCachePolicy };

struct UrlRequest {
    std::string url;
    CachePolicy cachePolicy = CachePolicy::useProtocolCachePolicy;
    /// The load fails when the server has not begun to answer by then. The same for every load of the client.
    Seconds timeout{60};
};

enum class ScriptInjectionTime { documentEnd };

struct UserScript {
    std::string source;
    ScriptInjectionTime injectionTime = ScriptInjectionTime::documentEnd;
    bool forMainFrameOnly = true;
};

/// How the product sets up a browser view.
struct BrowserConfiguration {
    /// Sent with every request in the place of the engine's own.
    std::string customUserAgent;
    bool allowsLinkPreview = false;
    /// Whether the pages' own scripts run; the client's always do.
    bool allowsContentJavaScript = true;
    /// The engine's inspector can be opened.
    bool developerExtrasEnabled = false;
    std::vector<UserScript> userScripts;
};

/// The web engine's view, held by shared pointers. Main thread only, its destruction included.
///
/// Nothing that a page does by itself brings up a window or a question, or leaves a file. It goes on as if the user had
/// declined: dialogs return empty (one that is asked before a page is left lets it go), choosers of files and colours
/// are cancelled, permissions denied, printing, notifications, new windows and full screen for an element do not come
/// about, and downloads are cancelled; documents pass through the navigation delegate.
class BrowserView : public PlatformView, public std::enable_shared_from_this<BrowserView> {
public:
    /// Not kept alive by the view; without one every navigation is allowed and every challenge cancelled.
    virtual void setNavigationDelegate(std::weak_ptr<NavigationDelegate> delegate) = 0;

    /// Nothing is loaded for an address that cannot be parsed.
    virtual void load(const UrlRequest& request) = 0;

    /// Once a view. What comes after a load call in the same turn of the main loop still holds for that load.
    virtual void configure(const BrowserConfiguration& configuration) = 0;

    /// Title of the page; absent when it has none.
    [[nodiscard]] virtual std::optional<std::string> title() const = 0;

    /// Absolute address of the page, from the load call on that of the requested one; absent before the first load and
    /// after a failed first one.
    [[nodiscard]] virtual std::optional<std::string> url() const = 0;

    /// Runs a script in the page's own world of the main frame. The completion comes once, later; without one the
    /// result and its errors are dropped.
    virtual void evaluateJavaScript(const std::string& script, ScriptCompletion completion) = 0;

    /// Runs the body of an asynchronous function, which may `await` and `return`, in the main frame and in the client's
    /// own world: the page can put nothing in the place of the standard functions there. The completion comes once when
    /// the returned promise has settled, so it may never come.
    virtual void callAsyncJavaScript(const std::string& functionBody, ScriptCompletion completion) = 0;
};

class BrowserViews : NonCopyable {
public:
    virtual ~BrowserViews() = default;

    /// A new view without a page; never null. Main thread only.
    [[nodiscard]] virtual std::shared_ptr<BrowserView> make() = 0;
};

} // namespace orken
