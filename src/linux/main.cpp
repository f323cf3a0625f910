#include "app/VistroApp.h"
#include "linux/Desktop.h"

int main()
{
    const orken::Endpoints endpoints = orken::builtEndpoints();
    orken::desktop::Desktop desktop({.bundleIdentifier = endpoints.bundleIdentifier,
                                     .version = endpoints.version,
                                     .certificateAuthorityFile = std::nullopt,
                                     .expectedHost = endpoints.loginHost});
    orken::VistroApp app(orken::portsOf(desktop), endpoints);
    return app.main();
}
