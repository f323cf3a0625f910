#include "app/SavedState.h"

namespace orken {

void removeSavedStateDirectory()
{
    // This desktop's client writes no saved state yet.
}

void updateRestoreCount()
{
    // The counter's file comes with the property lists.
}

} // namespace orken
