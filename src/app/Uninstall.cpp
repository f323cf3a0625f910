#include "app/Uninstall.h"

namespace orken {

void confirmUninstall()
{
    // There is no installed bundle to remove yet.
}

} // namespace orken
