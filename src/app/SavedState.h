#pragma once

namespace orken {

/// The client's saved-application-state entry. Main thread only.
void removeSavedStateDirectory();
void updateRestoreCount();

} // namespace orken
