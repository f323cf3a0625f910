#pragma once

#include "provider/Http.h"

#include <libsoup/soup.h>

namespace orken::demo {

/// Also of a message that was refused half read: what is not known stays empty.
[[nodiscard]] Request readRequest(SoupServerMessage* message);

} // namespace orken::demo
