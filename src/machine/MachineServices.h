#pragma once

#include "foundation/NonCopyable.h"
#include "machine/BrowsingData.h"
#include "machine/OtherApplications.h"
#include "machine/SavedState.h"
#include "machine/Uninstall.h"
#include "machine/WindowControl.h"
#include "platform/Ports.h"
#include "provider/Endpoints.h"

namespace orken {

/// What the client does to the machine around it, one set a process. Main thread only.
struct MachineServices : private NonCopyable {
    MachineServices(const Ports& ports, const Endpoints& endpoints);

    BrowsingData browsingData;
    OtherApplications otherApplications;
    SavedState savedState;
    Uninstall uninstall;
    WindowControl windowControl;
};

} // namespace orken
