#include "../Target.h"

#include "animation/DocumentChecker.h"
#include "linux/animation/RlottieDocument.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <string>

// Animation documents, before a renderer sees them: within bounds, also in the form that its library needs.

namespace orken::fuzz {

namespace {

using Json = nlohmann::json;

constexpr double kLargestNumber = 32768;

void checkValue(const Json& value, int depth)
{
    constexpr int kDeepest = 64;
    demand(depth <= kDeepest, "an accepted document is not deep");
    demand(!value.is_number() || std::abs(value.get<double>()) <= kLargestNumber, "its numbers are not large");
    if (value.is_structured()) {
        for (const Json& item : value) {
            checkValue(item, depth + 1);
        }
    }
}

void checkDocument(const AnimationDocument& usable, std::string_view input)
{
    // `{}` may become `{"ddd":0}`, `9e4` may become `90000.0`.
    demand(usable.json.size() <= 4 * input.size(), "what is written anew is not much larger");
    const Json root = Json::parse(usable.json, nullptr, false);
    demand(root.is_object(), "what is written anew is a document");
    checkValue(root, 0);
    const auto again = checkAnimationDocument(usable.json);
    demand(bool(again), "what was accepted is accepted again");
    demand(again.value().frameCount == usable.frameCount && again.value().size == usable.size, "with the same facts");
}

} // namespace

void run(std::string_view input)
{
    const auto document = checkAnimationDocument(input);
    if (!document) {
        demand(!document.error().message.empty(), "a refusal has a reason");
        return;
    }
    const AnimationDocument& usable = document.value();
    demand(usable.frameCount >= 1 && usable.frameCount <= 36000, "an animation has frames, and an end");
    demand(usable.frameRate >= 1 && usable.frameRate <= 240, "frames come at a usable rate");
    demand(usable.size.width >= 1 && usable.size.width <= 8192, "a composition has a usable width");
    demand(usable.size.height >= 1 && usable.size.height <= 8192, "a composition has a usable height");
    checkDocument(usable, input);
    demand(checkAnimationDocument(usable.json).value().json == usable.json, "and as it is");
    const auto prepared = desktop::rlottieDocument(usable);
    if (!prepared) {
        demand(!prepared.error().message.empty(), "a refusal has a reason");
        return;
    }
    checkDocument(prepared.value(), input);
    demand(desktop::rlottieDocument(prepared.value()).value().json == prepared.value().json, "and needs no more");
}

} // namespace orken::fuzz
