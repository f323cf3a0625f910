#include "contract/ContractDesktop.h"
#include "linux/Desktop.h"
#include "linux/LoopbackServer.h"

#include <gio/gio.h>
#include <gtk/gtk.h>

#include <fstream>

namespace orken::desktop {
namespace {

std::vector<GtkWidget*> buttonsIn(GtkWidget* widget)
{
    if (GTK_IS_BUTTON(widget)) {
        return {widget};
    }
    std::vector<GtkWidget*> found;
    for (auto* child = gtk_widget_get_first_child(widget); child; child = gtk_widget_get_next_sibling(child)) {
        const auto inside = buttonsIn(child);
        found.insert(found.end(), inside.begin(), inside.end());
    }
    return found;
}

/// The buttons of the alert that is up, first one first; it stands at the trailing edge.
std::vector<GtkWidget*> alertButtons()
{
    std::vector<GtkWidget*> buttons;
    GListModel* toplevels = gtk_window_get_toplevels();
    for (guint i = 0; i < g_list_model_get_n_items(toplevels); ++i) {
        const auto window = GObjectPtr<GtkWindow>::adopt(static_cast<GtkWindow*>(g_list_model_get_item(toplevels, i)));
        if (gtk_window_get_modal(window.get()) && gtk_widget_get_mapped(GTK_WIDGET(window.get()))) {
            buttons = buttonsIn(gtk_window_get_child(window.get()));
        }
    }
    std::reverse(buttons.begin(), buttons.end());
    return buttons;
}

class ContractSide final : public ContractDesktop {
public:
    void launch(ApplicationDelegate& delegate, const WindowGroup& group) override
    {
        EXPECT_FALSE(desktop_.application.launch(delegate, group));
        EXPECT_TRUE(runUntil([&] { return desktop_.windows.key() != nullptr; }, Seconds{10}));
    }

    [[nodiscard]] bool runUntil(const std::function<bool()>& done, Seconds limit) override
    {
        bool late = false;
        // Completions of the background queue wake nobody here, so the condition is looked at now and then.
        auto look = +[](gpointer) -> gboolean { return G_SOURCE_CONTINUE; };
        const auto limiter = Source::after(limit, [&late] { late = true; });
        const guint looker = g_timeout_add(10, look, nullptr);
        while (!done() && !late) {
            g_main_context_iteration(nullptr, TRUE);
        }
        g_source_remove(looker);
        return done();
    }

    void answerNextAlert(std::size_t button) override
    {
        auto press = +[](gpointer data) -> gboolean {
            const auto buttons = alertButtons();
            const auto index = GPOINTER_TO_SIZE(data);
            if (index >= buttons.size()) {
                return G_SOURCE_CONTINUE;
            }
            g_signal_emit_by_name(buttons[index], "clicked");
            return G_SOURCE_REMOVE;
        };
        g_timeout_add(10, press, GSIZE_TO_POINTER(button));
    }

    [[nodiscard]] std::filesystem::path makeFolder() override
    {
        const GText folder(g_dir_make_tmp("orken-contract-XXXXXX", nullptr));
        std::filesystem::path path = folder.get();
        std::filesystem::create_directory(path / "b");
        for (const auto* file : {"a", "b/c"}) {
            std::ofstream(path / file) << "content";
        }
        return path;
    }

    [[nodiscard]] std::string refusedAddress() override
    {
        // Taken from the system and given back: nobody listens there.
        const auto socket = GObjectPtr<GSocketListener>::adopt(g_socket_listener_new());
        const auto port = g_socket_listener_add_any_inet_port(socket.get(), nullptr, nullptr);
        return "http://127.0.0.1:" + std::to_string(port) + "/";
    }

    [[nodiscard]] Ports ports() override { return portsOf(desktop_); }

private:
    Desktop desktop_{{.bundleIdentifier = "com.orken.contract", .version = "1.0"}};
};

/// Answers a server's certificate in one of three ways, and tells how its page's load ended.
class Judge final : public NavigationDelegate {
public:
    Judge(bool makesExceptions, ChallengeDisposition answer) : makesExceptions_(makesExceptions), answer_(answer) {}

    void didFailNavigation(BrowserView&, const PlatformError&) override { log += "failed "; }

    void didFailProvisionalNavigation(BrowserView&, const PlatformError&) override { log += "failed "; }

    void didFinishNavigation(BrowserView&) override { log += "finished "; }

    void didReceiveAuthenticationChallenge(BrowserView&, const AuthenticationChallenge& challenge,
                                           std::function<void(ChallengeDisposition)> decide) override
    {
        ASSERT_TRUE(challenge.serverTrust);
        if (makesExceptions_) {
            challenge.serverTrust->setOwnExceptions();
        }
        decide(answer_);
    }

    void decidePolicyForNavigationAction(BrowserView&, const NavigationAction&,
                                         std::function<void(NavigationPolicy)> decide) override
    {
        decide(NavigationPolicy::allow);
    }

    std::string log;

private:
    bool makesExceptions_;
    ChallengeDisposition answer_;
};

std::unique_ptr<ContractDesktop> makeDesktop()
{
    return std::make_unique<ContractSide>();
}

} // namespace
} // namespace orken::desktop

namespace orken {

TEST(ScriptValues, ofTheEngineAreWhatTheScriptsEndWith)
{
    gtk_init();
    desktop::ContractSide desktop;
    const auto view = desktop.ports().browserViews.make();
    const auto resultOf = [&](const std::string& script) {
        std::optional<ScriptResult> result;
        view->evaluateJavaScript(script, [&](ScriptResult given) { result = std::move(given); });
        EXPECT_TRUE(desktop.runUntil([&] { return result.has_value(); }, Seconds{30})) << script;
        return *result;
    };
    for (const char* script : {"null", "1.5", "true", "[1]"}) {
        const auto result = resultOf(script);
        EXPECT_TRUE(result && result.value() && !textOf(result) && !dictionaryOf(result)) << script;
    }
    EXPECT_EQ(textOf(resultOf("'Ö\\u0000ş'"))->view(), std::string_view("Ö\0ş", 5));
    const auto dictionary = resultOf("({text: 'a', empty: '', number: 1, nothing: null, undefined: undefined})");
    ASSERT_TRUE(dictionaryOf(dictionary));
    EXPECT_EQ(dictionaryOf(dictionary)->size(), 2U);
    for (const char* script :
         {"document.createElement('p')", "(function() {})", "throw new Error('x')", "nowhere.x", "("}) {
        const auto result = resultOf(script);
        EXPECT_TRUE(!result && !result.error().message.empty() &&
                    result.error().message.find('\n') == std::string::npos)
            << script;
    }
}

TEST(Certificates, thatNobodyVouchesForPassByTheDelegatesExceptionAlone)
{
    gtk_init();
    const desktop::SelfSignedIdentity identity;
    auto page = +[](SoupServer*, SoupServerMessage* message, const char*, GHashTable*, gpointer) {
        soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
        soup_server_message_set_response(message, "text/html", SOUP_MEMORY_STATIC, "page", 4);
    };
    const desktop::LoopbackServer server(page, &identity);
    desktop::ContractSide desktop;
    const std::tuple<bool, ChallengeDisposition, const char*> cases[] = {
        {true, ChallengeDisposition::cancelAuthenticationChallenge, "failed "},
        {false, ChallengeDisposition::useCredential, "failed "},
        {true, ChallengeDisposition::useCredential, "finished "},
    };
    for (const auto& [makesExceptions, answer, end] : cases) {
        const auto view = desktop.ports().browserViews.make();
        const auto judge = std::make_shared<desktop::Judge>(makesExceptions, answer);
        view->setNavigationDelegate(judge);
        view->load({.url = server.url("/")});
        EXPECT_TRUE(desktop.runUntil([&] { return !judge->log.empty(); }, Seconds{10}));
        (void)desktop.runUntil([] { return false; }, Seconds{0.5});
        EXPECT_EQ(judge->log, end);
    }
}

INSTANTIATE_TEST_SUITE_P(linux_, Contract, testing::Values(&desktop::makeDesktop),
                         [](const auto&) { return "desktop"; });

} // namespace orken
