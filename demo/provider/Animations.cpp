#include "provider/Animations.h"

#include "provider/Pages.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <map>

namespace orken::demo {

namespace {

/// Keeps the order of members: a renderer may want an object's type before everything else.
using Json = nlohmann::ordered_json;

constexpr int kCopies = 100;
constexpr int kRepeaters = 3;
constexpr std::size_t kTooDeep = 65;
constexpr std::size_t kTooBig = (8U << 20U) + 1;

std::string goodText()
{
    return pageFile("animation.json").value();
}

Json goodDocument()
{
    return Json::parse(goodText());
}

Answer answerWith(std::string text)
{
    return {.contentType = "application/json", .body = std::move(text), .headers = {{"Cache-Control", "no-cache"}}};
}

/// The good document with one unmoved layer that shows these shapes.
Answer documentShowing(Json shapes)
{
    Json document = goodDocument();
    Json layer = document["layers"].back();
    layer["shapes"] = std::move(shapes);
    document["layers"] = Json::array({layer});
    return answerWith(document.dump());
}

Answer good()
{
    return answerWith(goodText());
}

Answer html()
{
    return page("main.html");
}

Answer truncated()
{
    const std::string text = goodText();
    return answerWith(text.substr(0, text.size() / 2));
}

Answer nan()
{
    constexpr std::string_view kRate = R"("fr": 60)";
    std::string text = goodText();
    return answerWith(text.replace(text.find(kRate), kRate.size(), R"("fr": NaN)"));
}

Answer deep()
{
    Json nested = Json::array();
    for (std::size_t depth = 1; depth < kTooDeep; ++depth) {
        nested = Json::array({std::move(nested)});
    }
    Json document = goodDocument();
    document["nested"] = std::move(nested);
    return answerWith(document.dump());
}

Answer huge()
{
    Json document = goodDocument();
    document["w"] = 100000;
    return answerWith(document.dump());
}

/// The other layers can be drawn.
Answer image()
{
    Json document = goodDocument();
    document["assets"] =
        Json::parse(R"([{ "id": "image", "w": 300, "h": 300, "u": "../../etc/", "p": "passwd", "e": 0 }])");
    document["layers"].push_back(Json::parse(R"({ "ty": 2, "refId": "image", "ip": 0, "op": 120, "st": 0, "ddd": 0,
        "ks": { "p": { "a": 0, "k": [0, 0, 0] } } })"));
    return answerWith(document.dump());
}

/// A curve from corner to corner of what coordinates may be, in dashes of a thousandth: a renderer measures the curve
/// again for each of tens of millions.
Answer hang()
{
    return documentShowing(Json::parse(R"([{ "ty": "gr", "it": [
        { "ty": "sh", "ks": { "a": 0, "k": { "c": false, "v": [[-32768, -32768], [32768, 32768]],
          "i": [[0, 0], [-32768, 32768]], "o": [[32768, -32768], [0, 0]] } } },
        { "ty": "st", "c": { "a": 0, "k": [1, 1, 1, 1] }, "o": { "a": 0, "k": 100 }, "w": { "a": 0, "k": 2 },
          "d": [{ "n": "d", "v": { "a": 0, "k": 0.001 } }, { "n": "g", "v": { "a": 0, "k": 0.001 } }] },
        { "ty": "tr", "p": { "a": 0, "k": [0, 0] } } ] }])"));
}

/// Repeaters in repeaters: a million discs from a few lines.
Answer memory()
{
    Json shapes = Json::parse(R"([{ "ty": "el", "p": { "a": 0, "k": [0, 0] }, "s": { "a": 0, "k": [40, 40] } },
        { "ty": "fl", "c": { "a": 0, "k": [1, 1, 1, 1] }, "o": { "a": 0, "k": 100 } }])");
    const Json transform = Json::parse(R"({ "ty": "tr", "p": { "a": 0, "k": [0, 0] } })");
    Json repeater = Json::parse(R"({ "ty": "rp", "c": { "a": 0, "k": 0 }, "o": { "a": 0, "k": 0 }, "m": 1,
        "tr": { "ty": "tr", "p": { "a": 0, "k": [1, 1] }, "a": { "a": 0, "k": [0, 0] }, "s": { "a": 0, "k": [100, 100] },
                "r": { "a": 0, "k": 1 }, "so": { "a": 0, "k": 100 }, "eo": { "a": 0, "k": 100 } } })");
    repeater["c"]["k"] = kCopies;
    for (int depth = 0; depth < kRepeaters; ++depth) {
        shapes.push_back(transform);
        shapes = Json::array({Json{{"ty", "gr"}, {"it", std::move(shapes)}}, repeater});
    }
    return documentShowing(std::move(shapes));
}

Answer big()
{
    Json document = goodDocument();
    document["nm"] = std::string(kTooBig, 'x');
    return answerWith(document.dump());
}

Answer slow()
{
    constexpr double kDelay = 3;
    Answer answer = good();
    answer.delay = kDelay;
    return answer;
}

Answer missing()
{
    Answer answer = good();
    answer.status = 404;
    return answer;
}

const std::map<std::string_view, Answer (*)()>& animations()
{
    static const std::map<std::string_view, Answer (*)()> kAnimations = {
        {kGoodAnimation, good}, {"html", html}, {"truncated", truncated}, {"nan", nan},
        {"deep", deep},         {"huge", huge}, {"image", image},         {"hang", hang},
        {"memory", memory},     {"big", big},   {"slow", slow},           {"404", missing},
    };
    return kAnimations;
}

} // namespace

std::optional<Answer> animation(std::string_view name)
{
    const auto found = animations().find(name);
    return found == animations().end() ? std::nullopt : std::optional(found->second());
}

std::string animationNames()
{
    std::string names;
    for (const auto& [name, make] : animations()) {
        names += (names.empty() ? "" : ", ") + std::string(name);
    }
    return names;
}

} // namespace orken::demo
