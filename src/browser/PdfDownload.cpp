#include "browser/PdfDownload.h"

namespace orken {

void downloadBlob(BrowserView&, const NavigationAction&, const std::function<void(NavigationPolicy)>& decide)
{
    // Saving needs script evaluation, which the ports do not offer yet; the page must not leave for the blob in any
    // case.
    decide(NavigationPolicy::cancel);
}

} // namespace orken
