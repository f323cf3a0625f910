#pragma once

#include <string_view>

namespace orken {

/// Names this client to the provider: sent in the login address, and the key text of the login form's device field.
inline constexpr std::string_view kApplicationKey = "5b2e7a41-93cd-4f08-a6e2-1c7d90b3f584";

/// Key and initialisation vector of the values that the provider encrypts into the addresses of its pages.
inline constexpr std::string_view kQueryKey = "a71c04e9b2f84d3ca6e0h5193d27f8c4";
inline constexpr std::string_view kQueryVector = "4820613975204863";

} // namespace orken
