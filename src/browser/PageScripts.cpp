#include "browser/PageScripts.h"

#include "crypto/AESCrypto.h"
#include "foundation/Base64.h"
#include "foundation/Decimal.h"
#include "foundation/Json.h"
#include "foundation/Text.h"
#include "foundation/Url.h"

#include <algorithm>

namespace orken {

namespace {

constexpr std::string_view kQueryKey = "a71c04e9b2f84d3ca6e0h5193d27f8c4";
constexpr std::string_view kQueryVector = "4820613975204863";

// Takes the keys of the developer tools away from the page, once a page however often it runs, and nothing else: a
// course's own keys and scripts are not touched.
constexpr const char* kAntiDebuggingScript = R"(try {
    (function() {
        var installed = Symbol.for('orken.shortcuts');
        if (window[installed]) {
            return;
        }
        Object.defineProperty(window, installed, { value: true });
        window.addEventListener('keydown', function(event) {
            var isTool = event.ctrlKey && event.shiftKey && ['KeyI', 'KeyJ', 'KeyC'].indexOf(event.code) >= 0;
            if (isTool || event.code === 'F12') {
                event.preventDefault();
                event.stopImmediatePropagation();
            }
        }, true);
    })();
} catch (error) {
}
undefined;)";

constexpr const char* kGeometryScript =
    R"(    (function() {
        var videoWrapper = document.querySelector('.plyr__video-wrapper');
        var videoElement = document.querySelector('.video');
        )"
    "\n"
    R"(        var maxWidth = Math.max(videoWrapper.scrollWidth, videoWrapper.offsetWidth, videoElement.scrollWidth, videoElement.offsetWidth);
        var maxHeight = Math.max(videoWrapper.scrollHeight, videoWrapper.offsetHeight, videoElement.scrollHeight, videoElement.offsetHeight);

        // x ve y pozisyonlarını al
        var xPosition = videoWrapper.getBoundingClientRect().left;
        var yPosition = videoWrapper.getBoundingClientRect().top;

        return JSON.stringify({
            maxWidth: maxWidth, )"
    "\n"
    R"(            maxHeight: maxHeight,
            xPosition: xPosition,
            yPosition: yPosition
        });
    })();)";

constexpr const char* kOverlayRemovalScript = R"(var overlayElements = document.getElementsByClassName("overlay");
if (overlayElements.length > 0) {
    var overlayRemove = overlayElements[0];
    overlayRemove.parentNode.removeChild(overlayRemove);
})";

/// The value of the first item of that name, which may have none.
std::optional<std::string> firstValue(const std::vector<QueryItem>& items, std::string_view name)
{
    const auto item = std::find_if(items.begin(), items.end(), [name](const auto& it) { return it.name == name; });
    return item == items.end() ? std::nullopt : item->value;
}

std::optional<std::string> deciphered(const std::string& base64)
{
    const auto bytes = decodeBase64(base64);
    const auto plain = bytes ? AESCrypto::crypt(*bytes, kQueryKey, kQueryVector, kCCDecrypt) : std::nullopt;
    return plain ? textFromUtf8(asText(*plain)) : std::nullopt;
}

std::optional<double> numberAt(const JsonNumbers& numbers, const char* key)
{
    const auto place = numbers.find(key);
    return place == numbers.end() ? std::nullopt : std::optional(place->second);
}

} // namespace

void PageScripts::runUpdatePass(BrowserView& webView, const std::shared_ptr<WebViewModel>& viewModel)
{
    if (viewModel->webView) {
        viewModel->webView->evaluateJavaScript(kAntiDebuggingScript, nullptr);
    }
    const auto url = webView.url();
    if (!url) {
        return;
    }
    ports_.console.printLine("Gelen url " + *url);
    readAddress(*url);
    if (workOnPage(webView, *url, viewModel) == Then::startCheck) {
        ports_.periodicCheck.run();
    }
}

void PageScripts::readAddress(const std::string& url)
{
    const auto components = parseUrl(url);
    if (!components) {
        ports_.console.printLine("Invalid URL components.");
        return;
    }
    ports_.console.printLine("Host: " + (components->host ? percentDecoded(*components->host) : "No Host"));
    ports_.console.printLine("Path: " + percentDecoded(components->path));
    const auto items = queryItems(*components);
    if (!items) {
        ports_.console.printLine("No query items found.");
        return;
    }
    readAesKey(*items);
    ports_.console.printLine("Query Items: " + description(*items));
    readHash(*items);
}

void PageScripts::readAesKey(const std::vector<QueryItem>& items)
{
    const auto value = firstValue(items, "dnz");
    if (const auto key = value ? deciphered(*value) : std::nullopt) {
        values_.receivedAesKey = *key;
        ports_.console.printLine("Gelen AES Key: " + *key);
    }
}

void PageScripts::readHash(const std::vector<QueryItem>& items)
{
    const auto value = firstValue(items, "hash");
    if (!value) {
        ports_.console.printLine("Hash query parameter not found.");
        return;
    }
    values_.hashValue = *value;
    ports_.console.printLine("Hash Value: " + *value);
    if (auto text = deciphered(*value)) {
        ports_.console.printLine("Decrypted Value: " + *text);
        values_.decryptedHashValue = std::move(text);
    } else {
        ports_.console.printLine("Decryption failed: Invalid cipher text or key/IV mismatch.");
    }
}

PageScripts::Then PageScripts::workOnPage(BrowserView& webView, const std::string& url,
                                          const std::shared_ptr<WebViewModel>& viewModel)
{
    const bool isVideoPage = url.find("playlist") != std::string::npos;
    if (!isVideoPage || values_.decryptedHashValue.value_or("").empty()) {
        viewModel->removedIdentity = false;
        return Then::startCheck;
    }
    webView.evaluateJavaScript(kGeometryScript, [this](const ScriptResult& result) { handleVideoGeometry(result); });
    if (viewModel->videoUrl != url) {
        viewModel->videoUrl = url;
        viewModel->removedIdentity = false;
    }
    if (viewModel->removedIdentity) {
        return Then::end;
    }
    ports_.console.printLine("That's working");
    ports_.mainQueue.async([view = webView.shared_from_this(), viewModel] {
        view->evaluateJavaScript(kOverlayRemovalScript, nullptr);
        viewModel->removedIdentity = true;
    });
    return Then::startCheck;
}

void PageScripts::handleVideoGeometry(const ScriptResult& result)
{
    const ScriptText* text = textOf(result);
    if (!text) {
        if (!result) {
            ports_.console.printLine("JavaScript evaluation error: " + result.error().localisedDescription());
        }
        return;
    }
    const auto numbers = jsonNumbers(text->view());
    if (!numbers) {
        ports_.console.printLine("JSON Parsing Error: " + numbers.error().localisedDescription());
        return;
    }
    if (!numbers.value()) {
        return;
    }
    const auto width = numberAt(*numbers.value(), "maxWidth");
    const auto height = numberAt(*numbers.value(), "maxHeight");
    const auto x = numberAt(*numbers.value(), "xPosition");
    const double y = numberAt(*numbers.value(), "yPosition").value_or(0);
    ports_.console.printLine("Max Width: " + optionalDescription(width) +
                             ", Max Height: " + optionalDescription(height));
    ports_.console.printLine("X Position: " + optionalDescription(x) + ", Y Position: " + decimalText(y));
    values_.videoXPosition = x;
    values_.videoYPosition = y;
    values_.videoMaxWidth = width;
    values_.videoMaxHeight = height;
    ports_.console.printLine("X Main Position: " + optionalDescription(values_.videoXPosition) +
                             ", Y Main Position: " + optionalDescription(std::optional(values_.videoYPosition)));
}

} // namespace orken
