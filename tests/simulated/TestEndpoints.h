#pragma once

#include "provider/Endpoints.h"

namespace orken::simulated {

inline const Endpoints kEndpoints{.bundleIdentifier = "com.orken.test",
                                  .version = "2.1",
                                  .contentHost = "content.example",
                                  .loginHost = "login.example",
                                  .mainPageURL = "https://site.example/",
                                  .animationHost = "animation.example",
                                  .ipEchoURL = "https://ip.example/"};

} // namespace orken::simulated
