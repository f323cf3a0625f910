#pragma once

#include "crypto/DeviceIdentity.h"
#include "platform/BrowserView.h"
#include "platform/Clock.h"
#include "platform/Console.h"
#include "platform/MainQueue.h"
#include "platform/UrlSession.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace orken {

/// `[{"OsName": "mac", …}]` with the values as they are: what needs escaping in JSON is not escaped, because the
/// provider reads the text as the original client writes it.
[[nodiscard]] std::string buildDeviceInfoJson(std::string_view serial, std::string_view date, std::string_view address);

/// Adds the encrypted device description to the login page's form. Keeps nothing between calls, and outlives every
/// request that it starts.
class LoginParameter {
public:
    struct Ports {
        UrlSession& urlSession;
        MainQueue& mainQueue;
        Console& console;
        const Clock& clock;
        const DeviceIdentity& identity;
    };

    LoginParameter(const Ports& ports, std::string ipEchoURL) : ports_(ports), ipEchoURL_(std::move(ipEchoURL)) {}

    /// Asks for the public address and returns at once; the field is added when the answer has come, unless `delegate`
    /// has gone by then. Without an answer the form stays as it is. Main thread only.
    void startLoginParameter(const std::weak_ptr<const NavigationDelegate>& delegate,
                             std::shared_ptr<BrowserView> webView);

    /// Main thread only. `value` is base64, so it needs no escaping in the script.
    void injectLoginParameter(BrowserView& webView, const std::string& value);

private:
    [[nodiscard]] std::optional<std::string> parameterValue(const DataTaskResult& echo) const;

    Ports ports_;
    std::string ipEchoURL_;
};

} // namespace orken
