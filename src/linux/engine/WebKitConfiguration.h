#pragma once

#include "platform/BrowserView.h"

#include <webkit/webkit.h>

namespace orken::desktop {

/// The settings of a view that lives longer than this. Main thread only.
class WebKitConfiguration final : public BrowserConfiguration {
public:
    explicit WebKitConfiguration(WebKitWebView* view) : view_(view) {}

    void setCustomUserAgent(const std::string& userAgent) override;
    void setAllowsLinkPreview(bool allows) override;
    void setAllowsContentJavaScript(bool allows) override;
    void setDeveloperExtrasEnabled(bool enabled) override;
    void addUserScript(const UserScript& script) override;

private:
    [[nodiscard]] WebKitSettings* settings() const { return webkit_web_view_get_settings(view_); }

    WebKitWebView* view_;
};

} // namespace orken::desktop
