#pragma once

#include <nlohmann/json.hpp>

#include <string>

namespace orken {

/// The document as the renderer reads it: "ty" is the first member of each object. Any thread.
[[nodiscard]] std::string writeAnimationDocument(const nlohmann::json& document);

} // namespace orken
