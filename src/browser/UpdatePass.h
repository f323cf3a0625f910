#pragma once

#include "browser/AddressReader.h"
#include "browser/PeriodicCheck.h"
#include "browser/VideoPage.h"

namespace orken {

/// The work on the page that every redraw of the session screen brings. Main thread only.
class UpdatePass {
public:
    struct Services {
        Console& console;
        const PageValues& values;
        AddressReader& addressReader;
        VideoPage& videoPage;
        PeriodicCheck& periodicCheck;
    };

    explicit UpdatePass(const Services& services) : services_(services) {}

    /// `webView` shows the page. The model knows the same view from its first redraw on; only then the anti-debugging
    /// script runs.
    void runUpdatePass(BrowserView& webView, const std::shared_ptr<WebViewModel>& viewModel);

private:
    Services services_;
};

} // namespace orken
