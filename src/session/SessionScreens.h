#pragma once

#include "browser/BrowserServices.h"
#include "machine/MachineServices.h"
#include "platform/Ports.h"
#include "provider/Endpoints.h"
#include "view/View.h"

#include <memory>
#include <string>

namespace orken {

/// Makes the screens of a session, and outlives them. Main thread only.
class SessionScreens {
public:
    SessionScreens(const Ports& ports, const Endpoints& endpoints, MachineServices& machine, BrowserServices& browser)
        : ports_(ports), endpoints_(endpoints), machine_(machine), browser_(browser)
    {
    }

    /// The root of the session window.
    [[nodiscard]] std::unique_ptr<View> makeContentView();

    /// The screen of a session that starts at this address.
    [[nodiscard]] std::unique_ptr<View> makeSessionScreen(const std::string& link);

private:
    Ports ports_;
    Endpoints endpoints_;
    MachineServices& machine_;
    BrowserServices& browser_;
};

} // namespace orken
