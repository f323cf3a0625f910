#pragma once

#include "browser/PageValues.h"
#include "browser/WebViewModel.h"
#include "platform/BrowserView.h"
#include "platform/Console.h"
#include "platform/MainQueue.h"

#include <memory>
#include <string>

namespace orken {

/// The work on a page with a video: measures its player, and once removes what covers it. Outlives every script that it
/// starts. Main thread only.
class VideoPage {
public:
    struct Ports {
        Console& console;
        MainQueue& mainQueue;
    };

    /// Of the element that covers the present page's video.
    enum class Cover { isBeingRemoved, wasRemovedBefore };

    VideoPage(const Ports& ports, PageValues& values) : ports_(ports), values_(values) {}

    /// `webView` shows the page at this address.
    Cover measureAndUncover(BrowserView& webView, const std::string& url,
                            const std::shared_ptr<WebViewModel>& viewModel);

    /// Takes the result of the geometry script.
    void handleVideoGeometry(const ScriptResult& result);

private:
    Ports ports_;
    PageValues& values_;
};

} // namespace orken
