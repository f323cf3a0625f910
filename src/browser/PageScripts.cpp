#include "browser/PageScripts.h"

namespace orken {

void runPageScripts(BrowserView&, WebViewModel&)
{
    // Needs script evaluation, which the ports do not offer yet.
}

} // namespace orken
