#include "animation/DocumentChecker.h"

#include "animation/DocumentReader.h"
#include "animation/LayerCount.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <set>
#include <string>

namespace orken {

namespace {

using Json = nlohmann::json;

constexpr double kLargestNumber = AnimationDocument::kLargestNumber;
constexpr double kLargestExtent = 8192;
constexpr double kLargestFrameRate = 240;
constexpr double kMostFrames = 36000;
constexpr double kLargestEasing = 100;
constexpr double kMostCopies = 100;
constexpr std::size_t kMostAssets = 2000;

// Numbers of the format that name the kind of a layer.
constexpr int kImageLayer = 2;
constexpr int kNullLayer = 3;

std::optional<double> numberOf(const Json& object, const char* key)
{
    const Json* value = member(object, key);
    return value && value->is_number() ? std::optional(value->get<double>()) : std::nullopt;
}

bool isText(const Json* value, const char* text)
{
    return value && value->is_string() && value->get_ref<const std::string&>() == text;
}

bool isWithin(std::optional<double> number, double low, double high)
{
    return number && *number >= low && *number <= high;
}

void clampNumbers(Json& value, double low, double high)
{
    if (value.is_number()) {
        value = std::clamp(value.get<double>(), low, high);
    } else if (value.is_array()) {
        for (Json& item : value) {
            clampNumbers(item, low, high);
        }
    }
}

/// Handles of an easing curve: real documents carry numbers here that are far too large and mean nothing.
void clampEasing(Json& keyframe)
{
    for (const char* key : {"i", "o"}) {
        const auto handle = keyframe.find(key);
        if (handle != keyframe.end() && handle->is_object()) {
            if (const auto x = handle->find("x"); x != handle->end()) {
                clampNumbers(*x, 0, 1);
            }
            if (const auto y = handle->find("y"); y != handle->end()) {
                clampNumbers(*y, -kLargestEasing, kLargestEasing);
            }
        }
    }
}

double largestNumber(const Json& value)
{
    if (value.is_number()) {
        return std::abs(value.get<double>());
    }
    double largest = 0;
    if (value.is_structured()) {
        for (const Json& item : value) {
            largest = std::max(largest, largestNumber(item));
        }
    }
    return largest;
}

/// The copies of a repeater: a number, or keyframes with values before and after.
bool hasTooManyCopies(const Json& object)
{
    const Json* copies = isText(member(object, "ty"), "rp") ? member(object, "c") : nullptr;
    const Json* value = copies ? member(*copies, "k") : nullptr;
    if (!value) {
        return copies && largestNumber(*copies) > kMostCopies;
    }
    if (!value->is_array()) {
        return largestNumber(*value) > kMostCopies;
    }
    return std::any_of(value->begin(), value->end(), [](const Json& item) {
        if (!item.is_object()) {
            return largestNumber(item) > kMostCopies;
        }
        const Json* before = member(item, "s");
        const Json* after = member(item, "e");
        return (before && largestNumber(*before) > kMostCopies) || (after && largestNumber(*after) > kMostCopies);
    });
}

/// Pictures are left out of the document.
void emptyImageLayers(Json& owner)
{
    const auto layers = owner.find("layers");
    if (layers == owner.end() || !layers->is_array()) {
        return;
    }
    for (Json& layer : *layers) {
        // A layer without its picture keeps its place: others count on it.
        if (numberOf(layer, "ty") == kImageLayer) {
            layer["ty"] = kNullLayer;
            layer.erase("refId");
        }
    }
}

/// Brings what can be brought within bounds there, everywhere in the document; says what cannot.
std::optional<PlatformError> boundValues(Json& value)
{
    if (value.is_number() && !(std::abs(value.get<double>()) <= kLargestNumber)) {
        return unusableAnimation("a number is too large");
    }
    if (value.is_object()) {
        clampEasing(value);
        emptyImageLayers(value);
        if (hasTooManyCopies(value)) {
            return unusableAnimation("a repeater makes too many copies");
        }
    }
    if (value.is_structured()) {
        for (Json& item : value) {
            if (auto error = boundValues(item)) {
                return error;
            }
        }
    }
    return std::nullopt;
}

/// What layers call a composition by: a text, or a number that stands for one. Absent when it is neither.
std::optional<std::string> nameOf(const Json& composition)
{
    const Json* id = member(composition, "id");
    if (!id || (!id->is_string() && !id->is_number_integer())) {
        return std::nullopt;
    }
    return id->is_string() ? id->get<std::string>() : id->dump();
}

/// Pictures and sounds go; compositions stay, one of each name.
void dropFileAssets(Json& root)
{
    const auto assets = root.find("assets");
    if (assets == root.end()) {
        return;
    }
    if (!assets->is_array()) {
        root.erase(assets);
        return;
    }
    Json kept = Json::array();
    std::set<std::string> names;
    for (Json& asset : *assets) {
        const Json* layers = member(asset, "layers");
        const auto name = layers && layers->is_array() ? nameOf(asset) : std::nullopt;
        if (name && names.insert(*name).second) {
            asset["id"] = *name;
            for (const char* key : {"p", "u", "e"}) {
                asset.erase(key);
            }
            kept.push_back(std::move(asset));
        }
    }
    *assets = std::move(kept);
}

/// Cuts the first and the end frame to whole ones. Returns the number of frames, which may be 0 or less.
double useWholeFrames(Json& root)
{
    for (const char* key : {"ip", "op"}) {
        root[key] = static_cast<std::int64_t>(std::floor(root[key].get<double>()));
    }
    return root["op"].get<double>() - root["ip"].get<double>();
}

} // namespace

Outcome<AnimationDocument> checkAnimationDocument(std::string_view document)
{
    auto read = readAnimationDocument(document);
    if (!read) {
        return read.error();
    }
    Json root = std::move(read).value();
    const auto width = numberOf(root, "w");
    const auto height = numberOf(root, "h");
    const auto frameRate = numberOf(root, "fr");
    const Json* layers = member(root, "layers");
    if (!isWithin(width, 1, kLargestExtent) || !isWithin(height, 1, kLargestExtent) ||
        !isWithin(frameRate, 1, kLargestFrameRate) || !layers || !layers->is_array()) {
        return unusableAnimation("no composition of a usable size and frame rate");
    }
    // Layers are counted by following compositions from one to the next, as deep as the stack allows.
    if (const Json* assets = member(root, "assets"); assets && assets->size() > kMostAssets) {
        return unusableAnimation("too many compositions");
    }
    dropFileAssets(root);
    if (!isWithin(numberOf(root, "ip"), -kLargestNumber, kLargestNumber) ||
        !isWithin(numberOf(root, "op"), -kLargestNumber, kLargestNumber)) {
        return unusableAnimation("no usable first and last frame");
    }
    const double frames = useWholeFrames(root);
    if (auto error = boundValues(root)) {
        return *error;
    }
    if (frames < 1 || frames > kMostFrames) {
        return unusableAnimation("no usable number of frames");
    }
    if (!hasUsableLayerCount(root)) {
        return unusableAnimation("too many layers");
    }
    AnimationDocument usable{.json = root.dump(),
                             .size = {.width = *width, .height = *height},
                             .frameRate = *frameRate,
                             .frameCount = static_cast<int>(frames)};
    return usable;
}

Outcome<AnimationDocument> usableAnimationDocument(std::string_view document, const AnimationSurfaces& surfaces)
{
    auto checked = checkAnimationDocument(document);
    return checked ? surfaces.prepare(std::move(checked).value()) : checked;
}

} // namespace orken
