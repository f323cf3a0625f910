#include "app/OtherApplications.h"

namespace orken {

void closeOtherApplications()
{
    // The desktops do not list running applications yet: there is nothing to close.
}

} // namespace orken
