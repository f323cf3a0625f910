#pragma once

namespace orken {

/// Removes the installed bundle after the user's confirmation and ends the application. Main thread only.
void confirmUninstall();

} // namespace orken
