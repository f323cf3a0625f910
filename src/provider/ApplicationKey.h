#pragma once

#include <string_view>

namespace orken {

/// Names this client to the provider: sent in the login address, and the key text of the login form's device field.
inline constexpr std::string_view kApplicationKey = "5b2e7a41-93cd-4f08-a6e2-1c7d90b3f584";

} // namespace orken
