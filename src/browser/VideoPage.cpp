#include "browser/VideoPage.h"

#include "foundation/Decimal.h"
#include "foundation/Json.h"
#include "foundation/Text.h"

namespace orken {

namespace {

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

std::optional<double> numberAt(const JsonNumbers& numbers, const char* key)
{
    const auto place = numbers.find(key);
    return place == numbers.end() ? std::nullopt : std::optional(place->second);
}

} // namespace

VideoPage::Cover VideoPage::measureAndUncover(BrowserView& webView, const std::string& url,
                                              const std::shared_ptr<WebViewModel>& viewModel)
{
    webView.evaluateJavaScript(kGeometryScript, [this](const ScriptResult& result) { handleVideoGeometry(result); });
    if (viewModel->videoUrl != url) {
        viewModel->videoUrl = url;
        viewModel->removedIdentity = false;
    }
    if (viewModel->removedIdentity) {
        return Cover::wasRemovedBefore;
    }
    ports_.console.printLine("That's working");
    ports_.mainQueue.async([view = webView.shared_from_this(), viewModel] {
        view->evaluateJavaScript(kOverlayRemovalScript, nullptr);
        viewModel->removedIdentity = true;
    });
    return Cover::isBeingRemoved;
}

void VideoPage::handleVideoGeometry(const ScriptResult& result)
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
