#include "linux/animation/RlottieDocument.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdint>
#include <map>
#include <string_view>

namespace orken::desktop {

namespace {

/// Puts "ty" before every other key.
struct TypeFirst {
    bool operator()(std::string_view left, std::string_view right) const
    {
        constexpr std::string_view kType = "ty";
        return right != kType && (left == kType || left < right);
    }
};

template <class Key, class Value, class, class Allocator>
using Members = std::map<Key, Value, TypeFirst, Allocator>;

/// Is written in the order of its members.
using Json = nlohmann::basic_json<Members>;

PlatformError unusable(std::string_view reason)
{
    return platformError("animation", 2, "animation", reason);
}

/// Moves the time of this name, if there is one. False when it leaves the bound.
bool moveTime(Json& object, const char* key, double frames)
{
    const auto time = object.find(key);
    if (time == object.end() || !time->is_number()) {
        return true;
    }
    *time = time->get<double>() + frames;
    return std::abs(time->get<double>()) <= AnimationDocument::kLargestNumber;
}

/// Keyframes are the objects of an array "k"; "t" is their time.
bool moveKeyframes(Json& value, double frames)
{
    bool isWithinBound = true;
    if (value.is_object()) {
        const auto keyframes = value.find("k");
        if (keyframes != value.end() && keyframes->is_array()) {
            for (Json& keyframe : *keyframes) {
                isWithinBound = (!keyframe.is_object() || moveTime(keyframe, "t", frames)) && isWithinBound;
            }
        }
    }
    if (value.is_structured()) {
        for (Json& item : value) {
            isWithinBound = moveKeyframes(item, frames) && isWithinBound;
        }
    }
    return isWithinBound;
}

bool beginAtZero(Json& root)
{
    const auto first = root.value("ip", std::int64_t{0});
    if (first >= 0) {
        return true;
    }
    const auto frames = static_cast<double>(-first);
    const auto end = root.value("op", std::int64_t{0}) - first;
    root["ip"] = 0;
    root["op"] = end;
    bool isWithinBound = static_cast<double>(end) <= AnimationDocument::kLargestNumber;
    // Compositions inside have a time of their own, which the start time of the layer that shows them moves.
    for (Json& layer : root["layers"]) {
        if (layer.is_object()) {
            for (const char* key : {"ip", "op", "st"}) {
                isWithinBound = moveTime(layer, key, frames) && isWithinBound;
            }
            isWithinBound = moveKeyframes(layer, frames) && isWithinBound;
        }
    }
    return isWithinBound;
}

void sayWhatIsFlat(Json& value)
{
    if (value.is_object()) {
        const auto layers = value.find("layers");
        if (layers != value.end() && layers->is_array()) {
            for (Json& layer : *layers) {
                if (layer.is_object()) {
                    layer.emplace("ddd", 0);
                }
            }
        }
    }
    if (value.is_structured()) {
        for (Json& item : value) {
            sayWhatIsFlat(item);
        }
    }
}

} // namespace

Outcome<AnimationDocument> rlottieDocument(AnimationDocument document)
{
    constexpr bool kThrows = false;
    Json root = Json::parse(document.json, nullptr, kThrows);
    if (!root.is_object()) {
        return unusable("no JSON document");
    }
    if (!beginAtZero(root)) {
        return unusable("a number is too large");
    }
    sayWhatIsFlat(root);
    document.json = root.dump();
    return document;
}

} // namespace orken::desktop
