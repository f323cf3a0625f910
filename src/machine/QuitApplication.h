#pragma once

#include "platform/Application.h"

namespace orken {

/// Asks the platform to terminate the application; what the client leaves behind is cleared on the way. Main thread
/// only.
inline void quitApplication(Application& application)
{
    application.terminate();
}

} // namespace orken
