#include "provider/Endpoints.h"

namespace orken {

Endpoints builtEndpoints()
{
    return {.bundleIdentifier = ORKEN_BUNDLE_IDENTIFIER,
            .version = ORKEN_VERSION,
            .contentHost = ORKEN_CONTENT_HOST,
            .loginHost = ORKEN_LOGIN_HOST,
            .mainPageURL = ORKEN_MAIN_PAGE_URL,
            .animationHost = ORKEN_ANIMATION_HOST,
            .ipEchoURL = ORKEN_IP_ECHO_URL};
}

} // namespace orken
