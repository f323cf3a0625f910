#include "browser/Bed.h"

namespace orken {

TEST(VideoPage, aCoverIsRemovedOncePerVideo)
{
    using enum VideoPage::Cover;
    BrowserBed bed;
    (void)bed.desktop.journal.take();
    const auto geometry = testing::AllOf(
        StartsWith("script\n    (function() {\n"),
        HasSubstr("\n        var videoElement = document.querySelector('.video');\n        \n        var maxWidth"),
        HasSubstr("\n            maxWidth: maxWidth, \n            maxHeight: maxHeight,\n"),
        testing::EndsWith("\n        });\n    })();"));
    const auto removal =
        testing::AllOf(StartsWith("script\nvar overlayElements = document.getElementsByClassName(\"overlay\");\nif ("),
                       testing::EndsWith("    overlayRemove.parentNode.removeChild(overlayRemove);\n}"));
    const std::vector<testing::Matcher<std::string>> first{geometry, "print That's working", removal};
    for (const auto& [url, cover] : {std::pair("https://h/1", isBeingRemoved),
                                     {"https://h/1", wasRemovedBefore},
                                     {"https://h/2", isBeingRemoved}}) {
        EXPECT_EQ(bed.services.videoPage.measureAndUncover(*bed.view, url, bed.model), cover);
        EXPECT_EQ(bed.model->removedIdentity, cover == wasRemovedBefore) << "only in the queued item";
        bed.desktop.loop.run();
        EXPECT_TRUE(bed.model->removedIdentity);
        EXPECT_THAT(bed.desktop.journal.take(),
                    ElementsAreArray(first.begin(), cover == isBeingRemoved ? first.end() : first.begin() + 1));
    }
}

TEST(VideoPage, geometryIsTakenFromAnObjectOfNumbersAlone)
{
    const std::vector<std::string> measured{"print Max Width: Optional(640.0), Max Height: Optional(360.5)",
                                            "print X Position: Optional(-0.0), Y Position: 1e-05",
                                            "print X Main Position: Optional(-0.0), Y Main Position: Optional(1e-05)"};
    const std::vector<std::string> nothing{"print Max Width: nil, Max Height: nil",
                                           "print X Position: nil, Y Position: 0.0",
                                           "print X Main Position: nil, Y Main Position: Optional(0.0)"};
    const auto text = [](const std::string& json) -> ScriptResult {
        return std::optional<ScriptValue>(ScriptText(json));
    };
    const std::pair<ScriptResult, std::vector<std::string>> cases[] = {
        {text(R"({"maxWidth":640,"maxHeight":360.5,"xPosition":-0.0,"yPosition":1e-5,"more":1})"), measured},
        {text("{}"), nothing},
        {text(R"({"maxWidth":640,"z":null})"), {}},
        {text("[1]"), {}},
        {std::optional<ScriptValue>(OtherScriptValue{}), {}},
        {platformError("script", 699, "", "null is not an object"),
         {"print JavaScript evaluation error: null is not an object"}},
    };
    BrowserBed bed;
    for (const auto& [result, lines] : cases) {
        (void)bed.desktop.journal.take();
        bed.services.videoPage.handleVideoGeometry(result);
        EXPECT_EQ(bed.desktop.journal.take(), lines);
    }
    for (const char* bad : {"", "5", "null", "{", R"({"maxWidth":1e400})"}) {
        bed.services.videoPage.handleVideoGeometry(text(bad));
        EXPECT_THAT(bed.desktop.journal.take(), ElementsAre(StartsWith("print JSON Parsing Error: "))) << bad;
    }
}

} // namespace orken
