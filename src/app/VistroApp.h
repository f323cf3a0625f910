#pragma once

#include "app/AppDelegate.h"
#include "app/VersionGate.h"
#include "browser/BrowserServices.h"
#include "foundation/NonCopyable.h"
#include "machine/MachineServices.h"
#include "platform/Ports.h"
#include "provider/Endpoints.h"
#include "session/SessionScreens.h"

namespace orken {

/// The application: one window group with the start screen, and the delegate that cleans up at the end. It puts the
/// rooms of the product together and lives as long as the process. Main thread only.
class VistroApp : NonCopyable {
public:
    VistroApp(const Ports& ports, Endpoints endpoints);

    /// The process's exit status.
    [[nodiscard]] int main();

    [[nodiscard]] WindowGroup body();

private:
    [[nodiscard]] std::unique_ptr<View> makeFirstView();

    Ports ports_;
    Endpoints endpoints_;
    MachineServices machine_;
    BrowserServices browser_;
    SessionScreens session_;
    AppDelegate appDelegate_;
    VersionGate versionGate_;
};

} // namespace orken
