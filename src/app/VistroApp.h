#pragma once

#include "app/AppDelegate.h"
#include "app/VersionGate.h"
#include "browser/LoginParameter.h"
#include "browser/PageScripts.h"
#include "browser/PdfDownload.h"
#include "browser/PeriodicCheck.h"
#include "crypto/DeviceIdentity.h"
#include "machine/OtherApplications.h"
#include "machine/SavedState.h"
#include "machine/Uninstall.h"
#include "machine/WindowControl.h"
#include "platform/Ports.h"
#include "provider/Endpoints.h"

namespace orken {

/// The application: one window group with the start screen, and the delegate that cleans up at the end. It wires the
/// product together and lives as long as the process. Main thread only.
class VistroApp {
public:
    VistroApp(const Ports& ports, Endpoints endpoints);

    VistroApp(const VistroApp&) = delete;
    VistroApp& operator=(const VistroApp&) = delete;

    /// The process's exit status.
    [[nodiscard]] int main();

    [[nodiscard]] WindowGroup body();

private:
    [[nodiscard]] std::unique_ptr<View> makeFirstView();
    [[nodiscard]] std::unique_ptr<View> makeContentView();
    [[nodiscard]] std::unique_ptr<View> makeSessionScreen(const std::string& link);

    Ports ports_;
    Endpoints endpoints_;
    AppDelegate appDelegate_;
    DeviceIdentity identity_;
    SavedState savedState_;
    OtherApplications otherApplications_;
    Uninstall uninstall_;
    VersionGate versionGate_;
    WindowControl windowControl_;
    LoginParameter loginParameter_;
    PdfDownload pdfDownload_;
    PeriodicCheck periodicCheck_;
    PageValues pageValues_;
    PageScripts pageScripts_;
};

} // namespace orken
