#include "animation/DocumentChecker.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

using testing::HasSubstr;

std::string with(const std::string& members)
{
    return R"({"w":300,"h":200,"fr":30,"ip":0,"op":60,"layers":[],)" + members + "}";
}

std::string nested(std::size_t depth)
{
    return with("\"x\":" + std::string(depth - 1, '[') + std::string(depth - 1, ']'));
}

/// A chain of compositions, each showing the one before it twice.
std::string doubled(int compositions)
{
    std::string assets = R"({"id":"0","layers":[{},{}]})";
    for (int i = 1; i < compositions; ++i) {
        const auto before = R"({"refId":")" + std::to_string(i - 1) + R"("})";
        assets.append(R"(,{"id":")").append(std::to_string(i)).append(R"(","layers":[)");
        assets.append(before).append(",").append(before).append("]}");
    }
    return R"({"w":1,"h":1,"fr":1,"ip":0,"op":1,"layers":[{"refId":")" + std::to_string(compositions - 1) +
           R"("}],"assets":[)" + assets + "]}";
}

TEST(DocumentChecker, refusesWhatTheRendererCannotBeTrustedWith)
{
    const std::pair<const char*, std::string> cases[] = {
        {"nothing", ""},
        {"an error page", "<!DOCTYPE html><html><body>Not found</body></html>"},
        {"no object", "[]"},
        {"not a number", with("\"x\":NaN")},
        {"beyond every number", with("\"x\":1e999")},
        {"not UTF-8", with("\"nm\":\"\xC3\x28\"")},
        {"UTF-16", std::string("\xFF\xFE{\0}\0", 6)},
        {"something behind it", with("\"v\":1") + "x"},
        {"too deep", nested(65)},
        {"very deep", std::string(500000, '[')},
        {"too large", with("\"nm\":\"" + std::string(kLargestAnimationDocument, 'a') + "\"")},
        {"no width", R"({"h":200,"fr":30,"ip":0,"op":60,"layers":[]})"},
        {"a width that is a text", R"({"w":"300","h":200,"fr":30,"ip":0,"op":60,"layers":[]})"},
        {"huge", R"({"w":8193,"h":200,"fr":30,"ip":0,"op":60,"layers":[]})"},
        {"no frames a second", R"({"w":300,"h":200,"fr":0,"ip":0,"op":60,"layers":[]})"},
        {"ends where it begins", R"({"w":300,"h":200,"fr":30,"ip":60,"op":60.5,"layers":[]})"},
        {"hours long", R"({"w":300,"h":200,"fr":30,"ip":-20000,"op":20000,"layers":[]})"},
        {"no layers", R"({"w":300,"h":200,"fr":30,"ip":0,"op":60,"layers":{}})"},
        {"a large coordinate", with(R"("x":{"k":[[1,2],[-32769,3]]})")},
        {"repeater", with(R"("shapes":[{"ty":"rp","c":{"a":0,"k":101}}])")},
        {"repeater with keyframes", with(R"("shapes":[{"c":{"k":[{"t":0,"s":[1],"e":[500]}]},"ty":"rp"}])")},
        {"compositions in a ring", with(R"("assets":[{"id":"a","layers":[{"refId":"b"}]},)"
                                        R"({"id":"b","layers":[{"refId":"a"}]}])")},
        {"exponential compositions", doubled(30)},
        {"a chain of compositions that no stack holds", doubled(100'000)},
        {"a long one", doubled(2000)},
    };
    for (const auto& [name, document] : cases) {
        EXPECT_FALSE(checkAnimationDocument(document)) << name;
    }
    std::string zeros = "0";
    while (zeros.size() < 2'000'000) {
        zeros += ",0";
    }
    EXPECT_FALSE(checkAnimationDocument(with("\"x\":[" + zeros + "]"))) << "too many values";
}

TEST(DocumentChecker, writesADocumentAnewWithinBounds)
{
    const std::tuple<const char*, std::string, std::string> cases[] = {
        {"pictures leave their assets", with(R"("assets":[{"id":"i","u":"../","p":"a.png","w":1,"h":1}])"),
         "\"assets\":[]"},
        {"and their layers a gap",
         R"({"w":1,"h":1,"fr":1,"ip":0,"op":1,"layers":[{"ty":2,"refId":"i","ind":1},{"ty":4,"ddd":1,"ks":{}}]})",
         R"([{"ind":1,"ty":3},{"ddd":1,"ks":{},"ty":4}])"},
        {"compositions stay", with(R"("assets":[{"id":"c","p":"x","layers":[]}])"),
         "\"assets\":[{\"id\":\"c\",\"layers\":[]}]"},
        {"one of each name", with(R"("assets":[{"id":5,"layers":[]},{"id":"5","layers":[{"refId":"5"}]}])"),
         R"("assets":[{"id":"5","layers":[]}])"},
        {"easing handles are cut", with(R"("k":[{"t":0,"i":{"x":[2],"y":1e7},"o":{"x":-1,"y":[-1e7,0.5]}}])"),
         R"({"i":{"x":[1.0],"y":100.0},"o":{"x":0.0,"y":[-100.0,0.5]},"t":0})"},
        {"paths have other handles", with(R"("k":{"i":[[0,-40]],"o":[[0,40]]})"), "\"i\":[[0,-40]]"},
        {"whole frames", R"({"w":1,"h":1,"fr":30,"ip":0.5,"op":59.5,"layers":[]})", "\"op\":59"},
    };

    for (const auto& [name, document, part] : cases) {
        const auto usable = checkAnimationDocument(document);
        ASSERT_TRUE(usable) << name << ": " << usable.error().message;
        EXPECT_THAT(usable.value().json, HasSubstr(part)) << name;
        const auto again = checkAnimationDocument(usable.value().json);
        EXPECT_TRUE(again && again.value().json == usable.value().json) << name << " is not stable";
    }
    EXPECT_TRUE(checkAnimationDocument(nested(64)));
    EXPECT_TRUE(checkAnimationDocument(doubled(9)));
    const auto document = checkAnimationDocument(R"({"w":300.5,"h":200,"fr":29.97,"ip":10,"op":70,"layers":[]})");
    ASSERT_TRUE(document);
    EXPECT_EQ(document.value().size, (Size{300.5, 200}));
    EXPECT_EQ(document.value().frameRate, 29.97);
    EXPECT_EQ(document.value().frameCount, 60);
}

} // namespace
} // namespace orken
