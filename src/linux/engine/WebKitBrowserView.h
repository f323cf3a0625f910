#pragma once

#include "linux/engine/NavigationPolicies.h"
#include "linux/engine/PageLoads.h"
#include "linux/engine/PageTitle.h"
#include "linux/engine/ProcessRestart.h"
#include "linux/engine/SpareView.h"
#include "linux/engine/WebKitConfiguration.h"
#include "linux/gtk/WidgetView.h"
#include "linux/loop/GObjectPtr.h"
#include "platform/BrowserView.h"

#include <webkit/webkit.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orken::desktop {

/// The browser view on the engine's widget. Main thread only.
///
/// A page that has finished is reported when its title is known, a moment later; the address is the one that it had
/// when it finished. Each finished page is reported once and in order: when the next load starts before the title is
/// known, the report is made right then with the title that the engine has. Nothing is reported once the view has gone.
class WebKitBrowserView final : public BrowserView, public WidgetView {
public:
    using Report = std::function<void(const std::string& line)>;

    WebKitBrowserView(GObjectPtr<WebKitWebView> view, Report report);

    /// Takes over a spare view, also one whose blank page is still loading: the first load then waits for it.
    WebKitBrowserView(std::unique_ptr<SpareView> spare, Report report);

    [[nodiscard]] NativeHandle* native() override { return this; }

    [[nodiscard]] GtkWidget* widget() const override { return GTK_WIDGET(view_.get()); }

    void becameEnabled() override { gtk_widget_grab_focus(widget()); }

    /// The delegate is called no more, no script's completion comes, and a page whose process ends is not loaded again.
    void stop();

    void setNavigationDelegate(std::weak_ptr<NavigationDelegate> delegate) override;
    void load(const UrlRequest& request) override;

    void configure(const BrowserConfiguration& configuration) override
    {
        desktop::configure(view_.get(), configuration);
    }

    [[nodiscard]] std::optional<std::string> title() const override;
    [[nodiscard]] std::optional<std::string> url() const override;
    void evaluateJavaScript(const std::string& script, ScriptCompletion completion) override;
    void callAsyncJavaScript(const std::string& functionBody, ScriptCompletion completion) override;

private:
    using FinishScript = JSCValue* (*)(WebKitWebView*, GAsyncResult*, GError**);

    struct FinishedPage {
        std::optional<std::string> title;
        std::optional<std::string> url;
    };

    [[nodiscard]] gpointer scriptReply(FinishScript finish, ScriptCompletion completion);
    void beginRequest();
    void connect();
    void loadAgain();
    void endTitleQuestion();
    void pageFinished();
    void reportFinished(FinishedPage page);
    void reportFailed(PageLoads::Stage stage, const PlatformError& error);

    std::unique_ptr<SpareView> spare_;
    GObjectPtr<WebKitWebView> view_;
    Report report_;
    std::weak_ptr<NavigationDelegate> delegate_;
    std::optional<UrlRequest> request_;
    /// The page that is being reported right now.
    std::optional<FinishedPage> finished_;
    std::unique_ptr<PageTitle> pageTitle_;

    bool isStopped_ = false;

    // Made with the first load: nothing of a spare view's blank page gets here.
    std::unique_ptr<PageLoads> loads_;
    std::unique_ptr<NavigationPolicies> policies_;
    std::unique_ptr<ProcessRestart> restart_;
    std::vector<SignalConnection> silentDefaults_;
};

} // namespace orken::desktop
