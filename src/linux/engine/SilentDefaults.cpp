#include "linux/engine/SilentDefaults.h"

namespace orken::desktop {

namespace {

gboolean endScriptDialog(WebKitWebView*, WebKitScriptDialog* dialog)
{
    // An alert returns, a confirmation is false, a prompt null; a page that asks before it is left lets go.
    const auto type = webkit_script_dialog_get_dialog_type(dialog);
    if (type == WEBKIT_SCRIPT_DIALOG_CONFIRM || type == WEBKIT_SCRIPT_DIALOG_BEFORE_UNLOAD_CONFIRM) {
        webkit_script_dialog_confirm_set_confirmed(dialog, type == WEBKIT_SCRIPT_DIALOG_BEFORE_UNLOAD_CONFIRM);
    }
    return TRUE;
}

gboolean cancelFileChooser(WebKitWebView*, WebKitFileChooserRequest* request)
{
    webkit_file_chooser_request_cancel(request);
    return TRUE;
}

gboolean cancelColorChooser(WebKitWebView*, WebKitColorChooserRequest* request)
{
    webkit_color_chooser_request_cancel(request);
    return TRUE;
}

gboolean denyPermission(WebKitWebView*, WebKitPermissionRequest* request)
{
    webkit_permission_request_deny(request);
    return TRUE;
}

gboolean denyPermissionState(WebKitWebView*, WebKitPermissionStateQuery* query)
{
    webkit_permission_state_query_finish(query, WEBKIT_PERMISSION_STATE_DENIED);
    return TRUE;
}

} // namespace

std::vector<SignalConnection> silenceDefaults(WebKitWebView* view)
{
    std::vector<SignalConnection> handlers;
    handlers.push_back(SignalConnection::make<decltype(endScriptDialog)>(view, "script-dialog", endScriptDialog));
    handlers.push_back(
        SignalConnection::make<decltype(cancelFileChooser)>(view, "run-file-chooser", cancelFileChooser));
    handlers.push_back(
        SignalConnection::make<decltype(cancelColorChooser)>(view, "run-color-chooser", cancelColorChooser));
    handlers.push_back(SignalConnection::make<decltype(denyPermission)>(view, "permission-request", denyPermission));
    handlers.push_back(
        SignalConnection::make<decltype(denyPermissionState)>(view, "query-permission-state", denyPermissionState));
    handlers.push_back(SignalConnection::make<gboolean(WebKitWebView*, WebKitPrintOperation*)>(
        view, "print", [](WebKitWebView*, WebKitPrintOperation*) { return gboolean{TRUE}; }));
    handlers.push_back(SignalConnection::make<gboolean(WebKitWebView*, WebKitNotification*)>(
        view, "show-notification", [](WebKitWebView*, WebKitNotification*) { return gboolean{TRUE}; }));
    handlers.push_back(SignalConnection::make<GtkWidget*(WebKitWebView*, WebKitNavigationAction*)>(
        view, "create", [](WebKitWebView*, WebKitNavigationAction*) -> GtkWidget* { return nullptr; }));
    return handlers;
}

} // namespace orken::desktop
