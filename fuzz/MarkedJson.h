#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

// JSON that its writer would not write: values without quotes that are no JSON, keys that stand twice.

namespace orken::fuzz {

/// Keeps the members' order, which matters to the renderer.
using OrderedJson = nlohmann::ordered_json;

/// A value that `written` writes as it stands.
[[nodiscard]] OrderedJson bare(std::string_view token);

/// A name for a member that `written` writes as `key`, beside the member that has it.
[[nodiscard]] std::string again(std::string_view key);

[[nodiscard]] std::string written(const OrderedJson& root);

} // namespace orken::fuzz
