#include "linux/engine/WebKitConfiguration.h"

namespace orken::desktop {

void WebKitConfiguration::setCustomUserAgent(const std::string& userAgent)
{
    webkit_settings_set_user_agent(settings(), userAgent.c_str());
}

// This engine has no link previews.
void WebKitConfiguration::setAllowsLinkPreview(bool) {}

void WebKitConfiguration::setAllowsContentJavaScript(bool allows)
{
    // Only what the page itself brings along: with scripting switched off as a whole the client's own scripts would not
    // run either.
    webkit_settings_set_enable_javascript(settings(), TRUE);
    webkit_settings_set_enable_javascript_markup(settings(), allows);
}

void WebKitConfiguration::setDeveloperExtrasEnabled(bool enabled)
{
    webkit_settings_set_enable_developer_extras(settings(), enabled);
}

void WebKitConfiguration::addUserScript(const UserScript& script)
{
    WebKitUserScript* made = webkit_user_script_new(script.source.c_str(),
                                                    script.forMainFrameOnly ? WEBKIT_USER_CONTENT_INJECT_TOP_FRAME
                                                                            : WEBKIT_USER_CONTENT_INJECT_ALL_FRAMES,
                                                    WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_END, nullptr, nullptr);
    webkit_user_content_manager_add_script(webkit_web_view_get_user_content_manager(view_), made);
    webkit_user_script_unref(made);
}

} // namespace orken::desktop
