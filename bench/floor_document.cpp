// The least that handing a page's document over costs: the engine with one view, the address given as the only
// argument. When the page goes to a blob, asks for its data URL as a text and prints "handed over BYTES".

#include "PageFloor.h"

#include <cstdio>
#include <cstring>

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
    WebKitWebView* view = orken::bench::showView(application, webkit_network_session_new_ephemeral());
    g_signal_connect(view, "decide-policy", G_CALLBACK(decide), nullptr);
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
