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

    [[nodiscard]] std::string untrustedPage() override
    {
        auto answer = +[](SoupServer*, SoupServerMessage* message, const char*, GHashTable*, gpointer) {
            soup_server_message_set_status(message, SOUP_STATUS_OK, nullptr);
            soup_server_message_set_response(message, "text/html", SOUP_MEMORY_STATIC, "page", 4);
        };
        identity_ = std::make_unique<SelfSignedIdentity>();
        untrusted_ = std::make_unique<LoopbackServer>(answer, identity_.get());
        return untrusted_->url("/");
    }

    [[nodiscard]] Ports ports() override { return portsOf(desktop_); }

private:
    std::unique_ptr<SelfSignedIdentity> identity_;
    std::unique_ptr<LoopbackServer> untrusted_;
    Desktop desktop_{{.bundleIdentifier = "com.orken.contract", .version = "1.0"}};
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

INSTANTIATE_TEST_SUITE_P(linux_, Contract, testing::Values(&desktop::makeDesktop),
                         [](const auto&) { return "desktop"; });

} // namespace orken
