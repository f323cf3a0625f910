#pragma once

#include "provider/Http.h"

#include <optional>
#include <string>
#include <string_view>

namespace orken::demo {

inline constexpr std::string_view kGoodAnimation = "good";

/// The waiting animation under `kGoodAnimation`; under other names documents that a client must come to terms with, and
/// answers that are odd only in how they come. Absent when there is none of that name.
[[nodiscard]] std::optional<Answer> animation(std::string_view name);

/// Every name that `animation` knows, for people.
[[nodiscard]] std::string animationNames();

} // namespace orken::demo
