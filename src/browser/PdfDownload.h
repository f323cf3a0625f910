#pragma once

#include "foundation/Bytes.h"
#include "platform/Alerts.h"
#include "platform/BrowserView.h"
#include "platform/Clock.h"
#include "platform/Console.h"
#include "platform/Files.h"
#include "platform/MainQueue.h"
#include "platform/Workspace.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace orken {

/// The name that an address gives to its file, without an extension. Absent without an address, and for one whose last
/// path component is empty.
[[nodiscard]] std::optional<std::string> fileNameFromURL(const std::optional<std::string>& url);

/// Saves the PDF documents that the site hands out as `blob:` addresses into the Downloads folder, and offers to show
/// them there. Nothing is kept from one download to the next; overlapping ones each run to their end. Outlives every
/// script that it starts. Main thread only.
class PdfDownload {
public:
    struct Ports {
        Console& console;
        MainQueue& mainQueue;
        Files& files;
        Alerts& alerts;
        Workspace& workspace;
        const Clock& clock;
    };

    explicit PdfDownload(const Ports& ports) : ports_(ports) {}

    /// Takes over a navigation to a `blob:` address and returns at once. The decision is cancel, given once the page
    /// has handed the document over; a page that never does holds nothing up but this one navigation.
    void downloadBlob(BrowserView& webView, const NavigationAction& action,
                      const std::function<void(NavigationPolicy)>& decide);

    /// Replaces a file of the same name. Reports on the console, and by an alert from a later turn of the main queue.
    void saveDownloadedFile(const Bytes& content, const std::string& fileName);

private:
    void saveHandedOver(const ScriptResult& result, const std::optional<std::string>& requestUrl);
    void showDownloadAlert(const std::string& fileName, const std::filesystem::path& file);

    Ports ports_;
};

} // namespace orken
