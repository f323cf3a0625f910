#pragma once

#include "browser/PageValues.h"
#include "browser/PeriodicCheck.h"
#include "browser/WebViewModel.h"
#include "foundation/Query.h"
#include "platform/BrowserView.h"
#include "platform/Console.h"

#include <memory>
#include <string>

namespace orken {

/// The work on the page that every redraw of the session screen brings. Outlives every script that it starts. Main
/// thread only.
class PageScripts {
public:
    struct Ports {
        Console& console;
        MainQueue& mainQueue;
        PeriodicCheck& periodicCheck;
    };

    PageScripts(const Ports& ports, PageValues& values) : ports_(ports), values_(values) {}

    /// `webView` shows the page; the model's own view, once it is there, gets the anti-debugging script.
    void runUpdatePass(BrowserView& webView, const std::shared_ptr<WebViewModel>& viewModel);

    /// Takes what the geometry script came to.
    void handleVideoGeometry(const ScriptResult& result);

private:
    enum class Then { startCheck, end };

    void readAddress(const std::string& url);
    void readAesKey(const std::vector<QueryItem>& items);
    void readHash(const std::vector<QueryItem>& items);
    [[nodiscard]] Then workOnPage(BrowserView& webView, const std::string& url,
                                  const std::shared_ptr<WebViewModel>& viewModel);

    Ports ports_;
    PageValues& values_;
};

} // namespace orken
