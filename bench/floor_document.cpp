// The least that handing a page's document over costs: the engine with one view, the address given as the only
// argument. When the page goes to a blob, asks for its data URL as a text and prints "handed over BYTES".

#include "Floor.h"

#include <cstdio>
#include <cstring>

#include <webkit/webkit.h>

namespace {

constexpr const char* kScript = R"(
    const blob = await (await fetch(address)).blob();
    return await new Promise((resolve, reject) => {
        const reader = new FileReader();
        reader.onload = () => resolve(reader.result);
        reader.onerror = reject;
        reader.readAsDataURL(blob);
    });)";

void handedOver(GObject* view, GAsyncResult* result, gpointer data)
{
    JSCValue* value = webkit_web_view_call_async_javascript_function_finish(WEBKIT_WEB_VIEW(view), result, nullptr);
    char* text = value ? jsc_value_to_string(value) : nullptr;
    std::printf("handed over %zu\n", text ? std::strlen(text) : 0);
    std::fflush(stdout);
    g_free(text);
    g_clear_object(&value);
    webkit_policy_decision_ignore(WEBKIT_POLICY_DECISION(data));
    g_object_unref(data);
}

gboolean decide(WebKitWebView* view, WebKitPolicyDecision* decision, WebKitPolicyDecisionType type)
{
    if (type != WEBKIT_POLICY_DECISION_TYPE_NAVIGATION_ACTION) {
        return FALSE;
    }
    auto* action = webkit_navigation_policy_decision_get_navigation_action(WEBKIT_NAVIGATION_POLICY_DECISION(decision));
    const char* address = webkit_uri_request_get_uri(webkit_navigation_action_get_request(action));
    if (!g_str_has_prefix(address, "blob:")) {
        return FALSE;
    }
    GVariantDict arguments;
    g_variant_dict_init(&arguments, nullptr);
    g_variant_dict_insert(&arguments, "address", "s", address);
    webkit_web_view_call_async_javascript_function(view, kScript, -1, g_variant_dict_end(&arguments), "floor", nullptr,
                                                   nullptr, handedOver, g_object_ref(decision));
    return TRUE;
}

void activate(GtkApplication* application, const char* address)
{
    WebKitNetworkSession* session = webkit_network_session_new_ephemeral();
    webkit_network_session_set_tls_errors_policy(session, WEBKIT_TLS_ERRORS_POLICY_IGNORE);
    auto* view = WEBKIT_WEB_VIEW(g_object_new(WEBKIT_TYPE_WEB_VIEW, "network-session", session, nullptr));
    g_object_unref(session);
    if (!orken::bench::hasRenderNode()) {
        webkit_settings_set_hardware_acceleration_policy(webkit_web_view_get_settings(view),
                                                         WEBKIT_HARDWARE_ACCELERATION_POLICY_NEVER);
    }
    g_signal_connect(view, "decide-policy", G_CALLBACK(decide), nullptr);

    GtkWidget* window = gtk_application_window_new(application);
    gtk_window_set_child(GTK_WINDOW(window), GTK_WIDGET(view));
    gtk_window_fullscreen(GTK_WINDOW(window));
    gtk_window_present(GTK_WINDOW(window));
    webkit_web_view_load_uri(view, address);
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        std::fputs("usage: floor_document ADDRESS\n", stderr);
        return 2;
    }
    return orken::bench::runFloor(G_CALLBACK(activate), arguments[1]);
}
