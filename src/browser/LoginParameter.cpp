#include "browser/LoginParameter.h"

#include "crypto/AESCrypto.h"
#include "foundation/Dates.h"
#include "foundation/Text.h"
#include "foundation/Url.h"
#include "provider/Keys.h"

namespace orken {

namespace {

constexpr const char* kScriptHead = R"(    var param = document.createElement('input');
    param.type = 'hidden';
    param.value = ')";
constexpr const char* kScriptTail = R"(';
    param.name = 'param';
    document.getElementById('loginform').appendChild(param);
    $('.resetID').css('display','none');)";

} // namespace

std::string buildDeviceInfoJson(std::string_view serial, std::string_view date, std::string_view address)
{
    std::string json = R"([{"OsName": "mac", "DiskSerial": ")";
    json += serial;
    json += R"(", "CurrentDate": ")";
    json += date;
    json += R"(", "Ip": ")";
    json += address;
    json += R"("}])";
    return json;
}

void LoginParameter::startLoginParameter(const std::weak_ptr<const NavigationDelegate>& delegate,
                                         std::shared_ptr<BrowserView> webView)
{
    if (!isUrl(ipEchoURL_)) {
        return;
    }
    // On the background queue: the delegate is only asked whether it is there, and the browser view goes back to the
    // main queue whatever the answer is, so that neither is destroyed off the main thread.
    auto answered = [this, delegate, webView = std::move(webView)](const DataTaskResult& echo) mutable {
        auto value = delegate.expired() ? std::nullopt : parameterValue(echo);
        ports_.mainQueue.async([this, webView = std::move(webView), value = std::move(value)] {
            if (value) {
                injectLoginParameter(*webView, *value);
            }
        });
    };
    ports_.urlSession.startDataTask(ipEchoURL_, std::move(answered));
}

void LoginParameter::injectLoginParameter(BrowserView& webView, const std::string& value)
{
    // A script that does its work ends with the page's own selection, which cannot leave the page: that is an error,
    // too.
    webView.evaluateJavaScript(
        kScriptHead + value + kScriptTail, [&console = ports_.console](const ScriptResult& result) {
            if (!result) {
                console.printLine("JavaScript execution failed: " + result.error().localisedDescription());
            }
        });
}

std::optional<std::string> LoginParameter::parameterValue(const DataTaskResult& echo) const
{
    if (!echo) {
        ports_.console.printLine("Error fetching IP address: " + echo.error().localisedDescription());
        return std::nullopt;
    }
    const auto address = echo.value() ? textFromUtf8(asText(*echo.value())) : std::nullopt;
    const std::string json = buildDeviceInfoJson(ports_.identity.platformSerialNumber().value_or(kUnknownSerialNumber),
                                                 iso8601(ports_.clock.now()), trimmed(address.value_or("")));
    ports_.console.printLine("json: " + json);
    auto value = AESCrypto::encrypt(kApplicationKey, json);
    if (!value) {
        ports_.console.printLine("Error encrypting JSON");
    }
    return value;
}

} // namespace orken
