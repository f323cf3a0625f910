#include "linux/engine/WebKitConfiguration.h"

namespace orken::desktop {

namespace {

void addUserScript(WebKitWebView* view, const UserScript& script)
{
    WebKitUserScript* made = webkit_user_script_new(script.source.c_str(),
                                                    script.forMainFrameOnly ? WEBKIT_USER_CONTENT_INJECT_TOP_FRAME
                                                                            : WEBKIT_USER_CONTENT_INJECT_ALL_FRAMES,
                                                    WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_END, nullptr, nullptr);
    webkit_user_content_manager_add_script(webkit_web_view_get_user_content_manager(view), made);
    webkit_user_script_unref(made);
}

} // namespace

void configure(WebKitWebView* view, const BrowserConfiguration& configuration)
{
    WebKitSettings* settings = webkit_web_view_get_settings(view);
    webkit_settings_set_user_agent(settings, configuration.customUserAgent.c_str());
    // Only what the page itself brings along: with scripting switched off as a whole the client's own scripts would not
    // run either.
    webkit_settings_set_enable_javascript(settings, TRUE);
    webkit_settings_set_enable_javascript_markup(settings, configuration.allowsContentJavaScript);
    webkit_settings_set_enable_developer_extras(settings, configuration.developerExtrasEnabled);
    for (const UserScript& script : configuration.userScripts) {
        addUserScript(view, script);
    }
}

} // namespace orken::desktop
