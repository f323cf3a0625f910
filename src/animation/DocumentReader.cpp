#include "animation/DocumentReader.h"

#include "animation/DocumentChecker.h"

#include <string>

namespace orken {

namespace {

using Json = nlohmann::json;

constexpr std::size_t kDeepest = 64;
/// Real documents of several megabytes stay well below; each value costs some tens of bytes while it is looked at.
constexpr std::size_t kMostValues = 1'000'000;

/// Follows the parser without keeping anything, so that a hostile document is given up before it fills the memory.
class Bounds final : public nlohmann::json_sax<Json> {
public:
    bool null() override { return value(); }

    bool boolean(bool) override { return value(); }

    bool number_integer(Json::number_integer_t) override { return value(); }

    bool number_unsigned(Json::number_unsigned_t) override { return value(); }

    bool number_float(Json::number_float_t, const std::string&) override { return value(); }

    bool string(std::string&) override { return value(); }

    bool binary(Json::binary_t&) override { return value(); }

    bool start_object(std::size_t) override { return open(); }

    bool key(std::string&) override { return true; }

    bool end_object() override { return close(); }

    bool start_array(std::size_t) override { return open(); }

    bool end_array() override { return close(); }

    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override { return false; }

private:
    bool value() { return ++values_ <= kMostValues; }

    bool open() { return ++depth_ <= kDeepest && value(); }

    bool close()
    {
        --depth_;
        return true;
    }

    std::size_t values_ = 0;
    std::size_t depth_ = 0;
};

} // namespace

const nlohmann::json* member(const nlohmann::json& object, const char* key)
{
    const auto place = object.find(key);
    return object.is_object() && place != object.end() ? &*place : nullptr;
}

PlatformError unusableAnimation(std::string_view reason)
{
    return platformError("animation", 2, "animation", reason);
}

Outcome<Json> readAnimationDocument(std::string_view document)
{
    if (document.size() > kLargestAnimationDocument) {
        return unusableAnimation("the document is too large");
    }
    try {
        Bounds bounds;
        if (!Json::sax_parse(document, &bounds)) {
            return unusableAnimation("no JSON document within bounds");
        }
        return Json::parse(document);
    } catch (const Json::exception&) {
        return unusableAnimation("no JSON document");
    }
}

} // namespace orken
