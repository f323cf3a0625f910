#pragma once

#include "foundation/Outcome.h"

#include <nlohmann/json.hpp>

#include <string_view>

namespace orken {

/// Reads a document within bounds: its size, how deep it nests (64) and how many values it holds. Any thread.
[[nodiscard]] Outcome<nlohmann::json> readAnimationDocument(std::string_view document);

/// Null when `object` is none, or has no such member.
[[nodiscard]] const nlohmann::json* member(const nlohmann::json& object, const char* key);

/// Why a document is unusable.
[[nodiscard]] PlatformError unusableAnimation(std::string_view reason);

} // namespace orken
