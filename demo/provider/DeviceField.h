#pragma once

#include <string>
#include <string_view>

namespace orken::demo {

/// What the login form's device field says, for people: its text when it can be decrypted, else what it is.
[[nodiscard]] std::string deviceFieldText(std::string_view value);

} // namespace orken::demo
