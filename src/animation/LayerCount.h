#pragma once

#include <nlohmann/json.hpp>

namespace orken {

/// Whether a document shows a number of layers that can be drawn, 2000 at most, each composition's as often as it is
/// shown, and none inside itself. Assets must have unique names, and be few enough for a chain of them to be followed.
/// Any thread.
[[nodiscard]] bool hasUsableLayerCount(const nlohmann::json& document);

} // namespace orken
