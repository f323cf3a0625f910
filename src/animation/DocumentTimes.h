#pragma once

#include <nlohmann/json_fwd.hpp>

#include <optional>

namespace orken {

/// Cuts the first and the end frame of a document ("ip" and "op") to whole ones, as the renderer does, and moves a
/// document that begins before 0, which the renderer cannot show, so that it begins there. Returns the number of
/// frames, which may be 0 or less; absent when the document does not say. Any thread.
[[nodiscard]] std::optional<double> useWholeFrames(nlohmann::json& root);

} // namespace orken
