#include "linux/animation/RlottieDocument.h"

#include <gtest/gtest.h>

namespace orken::desktop {
namespace {

TEST(RlottieDocument, isWhatTheLibraryDrawsRight)
{
    const struct {
        const char* name;
        std::string document;
        std::string prepared;
    } cases[] = {
        {"the type first", R"({"ip":0,"op":1,"b":{"a":"\u015f\"","it":[{"nm":"x","ty":"gr"}],"ty":4}})",
         R"({"b":{"ty":4,"a":"ş\"","it":[{"ty":"gr","nm":"x"}]},"ip":0,"op":1})"},
        {"flat where nothing is said", R"({"ip":0,"op":1,"layers":[{"ty":4},{"ty":4,"ddd":1}]})",
         R"({"ip":0,"layers":[{"ty":4,"ddd":0},{"ty":4,"ddd":1}],"op":1})"},
        {"a start before 0 is moved",
         R"({"ip":-10,"op":20,"layers":[{"ddd":0,"ip":-10,"op":20,"st":-10,)"
         R"("ks":{"o":{"a":1,"k":[{"t":-10,"s":[0]},{"t":5,"s":[9]}]}}}],)"
         R"("assets":[{"id":"c","layers":[{"ddd":0,"ip":-3,"k":[{"t":-3}]}]}]})",
         R"({"assets":[{"id":"c","layers":[{"ddd":0,"ip":-3,"k":[{"t":-3}]}]}],"ip":0,"layers":[{"ddd":0,"ip":0.0,)"
         R"("ks":{"o":{"a":1,"k":[{"s":[0],"t":0.0},{"s":[9],"t":15.0}]}},"op":30.0,"st":0.0}],"op":30})"},
    };

    for (const auto& test : cases) {
        const auto prepared = rlottieDocument({.json = test.document});
        ASSERT_TRUE(prepared) << test.name << ": " << prepared.error().message;
        EXPECT_EQ(prepared.value().json, test.prepared) << test.name;
    }
    for (const char* moved : {R"({"ip":-10,"op":20,"layers":[{"op":32768}]})", R"({"ip":-10,"op":32759,"layers":[]})",
                              R"({"ip":-10,"op":20,"layers":[{"x":{"k":[{"t":32759}]}}]})"}) {
        const auto prepared = rlottieDocument({.json = moved});
        EXPECT_TRUE(!prepared && prepared.error().message == "animation: a number is too large") << moved;
    }
}

} // namespace
} // namespace orken::desktop
