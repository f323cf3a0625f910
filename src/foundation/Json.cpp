#include "foundation/Json.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace orken {

namespace {

using Json = nlohmann::json;

constexpr int kWrongShape = 1;
/// Of a document, in bytes. The provider's are some dozens long; one that nests for megabytes takes many times its
/// size.
constexpr std::size_t kLongestDocument = 64 * 1024;

PlatformError jsonError(int code, std::string_view reason)
{
    return platformError("json", code, "", reason);
}

/// The library quotes what it has read last, whatever bytes and however many those are.
PlatformError parseError(const Json::exception& error)
{
    constexpr std::size_t kLongestReason = 200;
    std::string reason(error.what());
    reason.resize(std::min(reason.size(), kLongestReason));
    std::replace_if(
        reason.begin(), reason.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
    return jsonError(error.id, reason);
}

Outcome<Json> parse(std::string_view document)
{
    if (document.size() > kLongestDocument) {
        return jsonError(kWrongShape, "the document is too large");
    }
    try {
        return Json::parse(document);
    } catch (const Json::exception& error) {
        return parseError(error);
    }
}

} // namespace

Outcome<std::string> jsonTextMember(std::string_view document, std::string_view key)
{
    const auto json = parse(document);
    if (!json) {
        return json.error();
    }
    if (!json.value().is_object()) {
        return jsonError(kWrongShape, "the document is not an object");
    }
    const auto member = json.value().find(key);
    if (member == json.value().end()) {
        return jsonError(kWrongShape, "no member \"" + std::string(key) + "\"");
    }
    if (!member->is_string()) {
        return jsonError(kWrongShape, "member \"" + std::string(key) + "\" is not a string");
    }
    return member->get<std::string>();
}

Outcome<std::optional<JsonNumbers>> jsonNumbers(std::string_view document)
{
    const auto json = parse(document);
    if (!json) {
        return json.error();
    }
    if (!json.value().is_structured()) {
        return jsonError(kWrongShape, "the document is neither an object nor an array");
    }
    if (!json.value().is_object()) {
        return std::optional<JsonNumbers>();
    }
    JsonNumbers numbers;
    for (const auto& [key, value] : json.value().items()) {
        if (!value.is_number()) {
            return std::optional<JsonNumbers>();
        }
        numbers[key] = value.get<double>();
    }
    return std::optional(std::move(numbers));
}

} // namespace orken
