#include "browser/LoginParameter.h"

namespace orken {

void startLoginParameter(BrowserView&)
{
    // The device description needs the cipher and script evaluation, which the ports do not offer yet.
}

} // namespace orken
