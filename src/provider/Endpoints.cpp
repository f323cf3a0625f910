#include "provider/Endpoints.h"

#include "provider/Keys.h"

namespace orken {

std::string Endpoints::loginURL(std::string_view serial) const
{
    std::string url = "https://" + loginHost + "//accounts/login?param=";
    url += serial;
    url += "&xppKey=";
    url += kApplicationKey;
    return url;
}

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
