#include "DocumentMutator.h"

#include <algorithm>
#include <array>
#include <utility>

namespace orken::fuzz {

namespace {

using Json = OrderedJson;

void collect(Json& value, std::vector<Json*>& found)
{
    found.push_back(&value);
    if (value.is_structured()) {
        for (Json& item : value) {
            collect(item, found);
        }
    }
}

} // namespace

DocumentMutator::DocumentMutator(const std::vector<std::string>& documents, std::uint64_t seed) : random_(seed)
{
    for (const std::string& document : documents) {
        documents_.push_back(Json::parse(document));
    }
}

std::string DocumentMutator::next()
{
    using OfTree = void (DocumentMutator::*)(Json&);
    using OfText = void (DocumentMutator::*)(std::string&);
    // Numbers most often: they are most of a document, and another number seldom makes it unusable.
    constexpr std::array<OfTree, 14> kOfTree{&DocumentMutator::replaceNumber,  &DocumentMutator::replaceNumber,
                                             &DocumentMutator::replaceNumber,  &DocumentMutator::replaceNumber,
                                             &DocumentMutator::replaceNumber,  &DocumentMutator::replaceNumber,
                                             &DocumentMutator::removeMember,   &DocumentMutator::duplicateMember,
                                             &DocumentMutator::reorderMembers, &DocumentMutator::swapType,
                                             &DocumentMutator::nest,           &DocumentMutator::repeatItems,
                                             &DocumentMutator::graft,          &DocumentMutator::chainCompositions};
    constexpr std::array<OfText, 3> kOfText{&DocumentMutator::flipBytes, &DocumentMutator::truncate,
                                            &DocumentMutator::moveSlice};
    constexpr std::size_t kMostSteps = 5;

    Json root = documents_[below(documents_.size())];
    for (std::size_t step = 0, steps = 1 + below(kMostSteps); step < steps; ++step) {
        (this->*kOfTree.at(below(kOfTree.size())))(root);
    }
    std::string text = written(root);
    // Hardly any text that was spoilt as one is a document afterwards.
    if (below(8) == 0 && !text.empty()) {
        (this->*kOfText.at(below(kOfText.size())))(text);
    }
    return text;
}

DocumentMutator::Json& DocumentMutator::anyValue(Json& root)
{
    std::vector<Json*> found;
    collect(root, found);
    return *found[below(found.size())];
}

DocumentMutator::Json& DocumentMutator::anyParent(Json& root)
{
    std::vector<Json*> found;
    collect(root, found);
    std::erase_if(found, [](const Json* value) { return !value->is_structured() || value->empty(); });
    return found.empty() ? root : *found[below(found.size())];
}

DocumentMutator::Json DocumentMutator::otherType()
{
    constexpr std::array<const char*, 8> kKinds{"null", "true", "\"text\"",     "{}",
                                                "[]",   "7",    R"({"k":[1]})", "[[1,2],[3]]"};
    return Json::parse(kKinds.at(below(kKinds.size())));
}

DocumentMutator::Json DocumentMutator::extremeNumber()
{
    constexpr std::array<std::string_view, 26> kTokens{"0",
                                                       "-1",
                                                       "1e-300",
                                                       "-0",
                                                       "0.5",
                                                       "32768",
                                                       "-32768",
                                                       "32769",
                                                       "65536",
                                                       "240",
                                                       "8192",
                                                       "36000",
                                                       "100",
                                                       "1e5",
                                                       "2147483648",
                                                       "-2147483649",
                                                       "1e308",
                                                       "1e999",
                                                       "-1e999",
                                                       "4e-324",
                                                       "NaN",
                                                       "-Infinity",
                                                       "0x10",
                                                       "18446744073709551616",
                                                       "1e+2000000000",
                                                       "00"};
    return bare(kTokens.at(below(kTokens.size())));
}

void DocumentMutator::removeMember(Json& root)
{
    Json& parent = anyParent(root);
    if (parent.is_structured() && !parent.empty()) {
        parent.erase(std::next(parent.begin(), static_cast<std::ptrdiff_t>(below(parent.size()))));
    }
}

void DocumentMutator::duplicateMember(Json& root)
{
    Json& parent = anyParent(root);
    if (parent.is_object() && !parent.empty()) {
        const auto member = std::next(parent.begin(), static_cast<std::ptrdiff_t>(below(parent.size())));
        Json value = below(2) == 0 ? member.value() : otherType();
        parent[again(member.key())] = std::move(value);
    } else if (parent.is_array() && !parent.empty()) {
        parent.push_back(Json(parent[below(parent.size())]));
    }
}

void DocumentMutator::reorderMembers(Json& root)
{
    Json& parent = anyParent(root);
    if (!parent.is_structured()) {
        return;
    }
    std::vector<std::pair<std::string, Json>> members;
    for (const auto& [key, value] : parent.items()) {
        members.emplace_back(key, value);
    }
    std::shuffle(members.begin(), members.end(), random_);
    Json shuffled = parent.is_object() ? Json::object() : Json::array();
    for (auto& [key, value] : members) {
        if (parent.is_object()) {
            shuffled[key] = std::move(value);
        } else {
            shuffled.push_back(std::move(value));
        }
    }
    parent = std::move(shuffled);
}

void DocumentMutator::replaceNumber(Json& root)
{
    std::vector<Json*> found;
    collect(root, found);
    std::erase_if(found, [](const Json* value) { return !value->is_number(); });
    if (found.empty()) {
        return;
    }
    Json& number = *found[below(found.size())];
    if (below(3) == 0) {
        number = extremeNumber();
    } else {
        constexpr std::array<double, 6> kFactors{-1, 0, 0.001, 2, 10, 300};
        number = number.get<double>() * kFactors.at(below(kFactors.size()));
    }
}

void DocumentMutator::swapType(Json& root)
{
    anyValue(root) = otherType();
}

void DocumentMutator::nest(Json& root)
{
    constexpr std::array<std::size_t, 4> kDepths{1, 20, 58, 3000};
    Json& value = anyValue(root);
    const bool inArrays = below(2) == 0;
    const std::string begin = inArrays ? "[" : "{\"it\":";
    const std::string end = inArrays ? "]" : "}";
    std::string front;
    std::string back;
    for (std::size_t depth = kDepths.at(below(kDepths.size())); depth > 0; --depth) {
        front += begin;
        back += end;
    }
    if (front.size() > 1000) {
        // Too deep to be kept as a tree.
        value = bare(front + "0" + back);
    } else if (Json nested = Json::parse(front + written(value) + back, nullptr, false); !nested.is_discarded()) {
        value = std::move(nested);
    }
}

void DocumentMutator::repeatItems(Json& root)
{
    constexpr std::array<std::size_t, 4> kTimes{2, 10, 100, 2500};
    constexpr std::size_t kMostBytes = 200'000;
    Json& parent = anyParent(root);
    if (!parent.is_array() || parent.empty()) {
        return;
    }
    const Json items = parent;
    const std::size_t weight = items.dump().size();
    for (std::size_t times = kTimes.at(below(kTimes.size()));
         times > 0 && parent.size() * weight < kMostBytes * items.size(); --times) {
        parent.insert(parent.end(), items.begin(), items.end());
    }
}

void DocumentMutator::graft(Json& root)
{
    Json& other = documents_[below(documents_.size())];
    const Json taken = anyValue(other);
    anyValue(root) = taken;
}

void DocumentMutator::chainCompositions(Json& root)
{
    constexpr std::array<std::size_t, 3> kLengths{3, 60, 1999};
    // Once in a while as many as the largest document can hold, with the least that makes them one.
    const bool isLong = below(25) == 0;
    const std::size_t length = isLong ? 150'000 : kLengths.at(below(kLengths.size()));
    const std::string facts = isLong ? "" : R"("ty":0,"ip":0,"op":60,"st":0,"ks":{},)";
    std::string assets = R"([{"id":"0","layers":[]})";
    for (std::size_t i = 1; i < length; ++i) {
        assets += R"(,{"id":")" + std::to_string(i) + R"(","layers":[{)" + facts + R"("refId":")" +
                  std::to_string(i - 1) + "\"}]}";
    }
    if (root.is_object()) {
        root["assets"] = bare(assets + "]");
        if (root.contains("layers") && root["layers"].is_array()) {
            root["layers"].push_back(
                Json::parse(R"({"ty":0,"ip":0,"op":60,"st":0,"ks":{},"refId":")" + std::to_string(length - 1) + "\"}"));
        }
    }
}

void DocumentMutator::flipBytes(std::string& text)
{
    for (std::size_t i = 0, count = 1 + below(4); i < count; ++i) {
        text[below(text.size())] = static_cast<char>(below(256));
    }
}

void DocumentMutator::truncate(std::string& text)
{
    text.resize(below(text.size()));
}

void DocumentMutator::moveSlice(std::string& text)
{
    const std::string slice = text.substr(below(text.size()), 1 + below(80));
    text.insert(below(text.size()), slice);
}

} // namespace orken::fuzz
