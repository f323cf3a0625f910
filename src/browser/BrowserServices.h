#pragma once

#include "browser/LoginParameter.h"
#include "browser/PdfDownload.h"
#include "browser/SwiftUIWebView.h"
#include "browser/UpdatePass.h"
#include "foundation/NonCopyable.h"
#include "machine/MachineServices.h"
#include "platform/Ports.h"
#include "provider/Endpoints.h"

namespace orken {

/// What the session's browser works with, one set a process; it outlives every view, script and request. Main thread
/// only.
class BrowserServices : NonCopyable {
public:
    BrowserServices(const Ports& ports, const Endpoints& endpoints, MachineServices& machine);

    /// What the browser view in a session's screen needs.
    [[nodiscard]] SwiftUIWebView::Services forView();

    PageValues pageValues;
    DeviceIdentity identity;
    LoginParameter loginParameter;
    PdfDownload pdfDownload;
    PeriodicCheck periodicCheck;
    AddressReader addressReader;
    VideoPage videoPage;
    UpdatePass updatePass;

private:
    Console& console_;
};

} // namespace orken
