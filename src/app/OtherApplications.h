#pragma once

namespace orken {

/// Asks the user to agree that every other running application is closed; a refusal ends this one. Main thread only.
void closeOtherApplications();

} // namespace orken
