#include "animation/DocumentTimes.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdint>

namespace orken {

namespace {

using Json = nlohmann::json;

void addTo(Json& object, const char* key, std::int64_t frames)
{
    const auto value = object.find(key);
    if (value != object.end() && value->is_number()) {
        *value = value->get<double>() + static_cast<double>(frames);
    }
}

/// Keyframes are the objects of an array "k"; "t" is their time.
void moveKeyframes(Json& value, std::int64_t frames)
{
    if (value.is_object()) {
        const auto keyframes = value.find("k");
        if (keyframes != value.end() && keyframes->is_array()) {
            for (Json& keyframe : *keyframes) {
                if (keyframe.is_object()) {
                    addTo(keyframe, "t", frames);
                }
            }
        }
    }
    if (value.is_structured()) {
        for (Json& item : value) {
            moveKeyframes(item, frames);
        }
    }
}

} // namespace

std::optional<double> useWholeFrames(Json& root)
{
    for (const char* key : {"ip", "op"}) {
        const auto value = root.find(key);
        if (value == root.end() || !value->is_number()) {
            return std::nullopt;
        }
        *value = static_cast<std::int64_t>(std::floor(value->get<double>()));
    }
    const auto first = root["ip"].get<std::int64_t>();
    const auto end = root["op"].get<std::int64_t>();
    if (first < 0) {
        root["ip"] = 0;
        root["op"] = end - first;
        // Compositions inside have a time of their own, which the start time of the layer that shows them moves.
        for (Json& layer : root["layers"]) {
            if (layer.is_object()) {
                for (const char* key : {"ip", "op", "st"}) {
                    addTo(layer, key, -first);
                }
                moveKeyframes(layer, -first);
            }
        }
    }
    return static_cast<double>(end - first);
}

} // namespace orken
