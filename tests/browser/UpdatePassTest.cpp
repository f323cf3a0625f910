#include "browser/Bed.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr const char* kFailed = "print Decryption failed: Invalid cipher text or key/IV mismatch.";
const std::string kVideo = "https://h/course/playlist/1?hash=B6xUEGCyo%2FeXAqNDLYnlZw%3D%3D";
const std::string kOther = "https://h/course/playlist/2";

struct Bed : BrowserBed {
    Bed() { model->webView = made; }

    /// One redraw with that address; answers what it printed and ran, the queue's items not included.
    std::vector<std::string> pass(const std::string& url)
    {
        desktop.browserViews.site = {{url, {}}};
        view->navigate(url);
        desktop.loop.run();
        (void)desktop.journal.take();
        services.updatePass.runUpdatePass(*view, model);
        return acts();
    }

    /// With the scripts by their kinds.
    std::vector<std::string> acts()
    {
        auto found = desktop.journal.take();
        for (auto& act : found) {
            for (const auto& [part, kind] : {std::pair{"orken.shortcuts", "guard"},
                                             {"getBoundingClientRect", "geometry"},
                                             {"overlayRemove", "removal"}}) {
                act = act.find(part) != std::string::npos ? kind : act;
            }
        }
        return found;
    }
};

std::vector<std::string> passOver(const std::string& url, const std::vector<std::string>& lines)
{
    std::vector<std::string> acts{"guard", "print Gelen url " + url};
    acts.insert(acts.end(), lines.begin(), lines.end());
    acts.emplace_back("quit other");
    return acts;
}

TEST(AddressReader, readsWhatThePagesAddressHolds)
{
    const std::string hash = "B6xUEGCyo%2FeXAqNDLYnlZw%3D%3D";
    const std::string shown = "B6xUEGCyo/eXAqNDLYnlZw==";
    const std::tuple<std::string, std::vector<std::string>, std::optional<std::string>> cases[] = {
        {"https://h.example/a%20b", {"print Host: h.example", "print Path: /a b", "print No query items found."}, {}},
        {"about:blank", {"print Host: No Host", "print Path: blank", "print No query items found."}, {}},
        {"data:text/html,<b>", {"print Invalid URL components."}, {}},
        {"https://h/?",
         {"print Host: h", "print Path: /", "print Query Items: []", "print Hash query parameter not found."},
         {}},
        {"https://h/?Hash=x&hash&hash=" + hash,
         {"print Host: h", "print Path: /", "print Query Items: [Hash=x, hash, hash=" + shown + "]",
          "print Hash query parameter not found."},
         {}},
        {"https://h/?dnz=%2BKzf0tf55U%2FjBaU20UpvVw%3D%3D&hash=" + hash,
         {"print Host: h", "print Path: /", "print Gelen AES Key: ABC-1234",
          "print Query Items: [dnz=+Kzf0tf55U/jBaU20UpvVw==, hash=" + shown + "]", "print Hash Value: " + shown,
          "print Decrypted Value: Öğrenci 4711"},
         "Öğrenci 4711"},
        {"https://h/?dnz=QQ==&hash=GpUSST20HtY6b9ZixqvZEw==",
         {"print Host: h", "print Path: /", "print Query Items: [dnz=QQ==, hash=GpUSST20HtY6b9ZixqvZEw==]",
          "print Hash Value: GpUSST20HtY6b9ZixqvZEw==", kFailed},
         {}},
        {"https://h/?hash=%%%", {"print Invalid URL components."}, {}},
    };
    const std::string megabyte(1'000'000, 'A');
    Bed large;
    EXPECT_THAT(large.pass("https://h/" + megabyte + "?dnz=" + megabyte + "&hash=" + megabyte),
                testing::Contains(kFailed));
    EXPECT_EQ(large.services.pageValues.decryptedHashValue, std::nullopt);
    for (const auto& [url, lines, text] : cases) {
        Bed bed;
        bed.desktop.runningApplications.add("other");
        EXPECT_THAT(bed.pass(url), ElementsAreArray(passOver(url, lines))) << url;
        EXPECT_EQ(bed.services.pageValues.decryptedHashValue, text) << url;
    }
}

TEST(UpdatePass, aViewWithoutAnAddressStartsNothing)
{
    Bed bed;
    bed.desktop.runningApplications.add("other");
    (void)bed.desktop.journal.take();
    bed.services.updatePass.runUpdatePass(*bed.view, bed.model);
    EXPECT_THAT(bed.acts(), ElementsAre("guard"));
    bed.desktop.loop.advance(Seconds{60});
    EXPECT_THAT(bed.desktop.journal.take(), IsEmpty());
}

TEST(VideoPage, aCoverIsRemovedOncePerVideoAndOnlyWithATextToShow)
{
    Bed bed;
    auto acts = bed.pass(kOther);
    EXPECT_EQ(std::count(acts.begin(), acts.end(), "geometry"), 0) << "nothing has been decrypted yet";

    acts = bed.pass(kVideo);
    EXPECT_THAT(std::vector(acts.end() - 2, acts.end()), ElementsAre("geometry", "print That's working"));
    EXPECT_FALSE(bed.model->removedIdentity) << "only in the queued item";
    bed.desktop.loop.run();
    EXPECT_THAT(bed.acts(), ElementsAre("removal"));
    EXPECT_TRUE(bed.model->removedIdentity);

    EXPECT_EQ(bed.pass(kVideo).back(), "geometry") << "measured again, and no more than that";
    acts = bed.pass(kOther);
    EXPECT_EQ(acts.back(), "print That's working") << "another video; the text stays";
    bed.desktop.loop.run();
    (void)bed.pass("https://h/course");
    EXPECT_FALSE(bed.model->removedIdentity);
}

TEST(VideoPage, geometryIsTakenFromAnObjectOfNumbersAlone)
{
    const auto text = [](const std::string& json) {
        return ScriptResult(std::optional<ScriptValue>(ScriptText(json)));
    };
    const std::vector<std::string> measured{"print Max Width: Optional(640.0), Max Height: Optional(360.5)",
                                            "print X Position: Optional(-0.0), Y Position: 1e-05",
                                            "print X Main Position: Optional(-0.0), Y Main Position: Optional(1e-05)"};
    const std::vector<std::string> nothing{"print Max Width: nil, Max Height: nil",
                                           "print X Position: nil, Y Position: 0.0",
                                           "print X Main Position: nil, Y Main Position: Optional(0.0)"};
    const std::pair<ScriptResult, std::vector<std::string>> cases[] = {
        {text(R"({"maxWidth":640,"maxHeight":360.5,"xPosition":-0.0,"yPosition":1e-5,"more":1})"), measured},
        {text("{}"), nothing},
        {text(R"({"maxWidth":640,"z":null})"), {}},
        {text(R"({"maxWidth":true})"), {}},
        {text("[1]"), {}},
        {std::optional<ScriptValue>(), {}},
        {std::optional<ScriptValue>(OtherScriptValue{}), {}},
        {platformError("script", 699, "", "null is not an object"),
         {"print JavaScript evaluation error: null is not an object"}},
    };
    for (const auto& [result, lines] : cases) {
        Bed bed;
        (void)bed.desktop.journal.take();
        bed.services.videoPage.handleVideoGeometry(result);
        EXPECT_EQ(bed.desktop.journal.take(), lines);
    }
    for (const char* bad : {"", "5", "null", "{", R"({"maxWidth":1e400})"}) {
        Bed bed;
        (void)bed.desktop.journal.take();
        bed.services.videoPage.handleVideoGeometry(text(bad));
        EXPECT_THAT(bed.desktop.journal.take(), ElementsAre(testing::StartsWith("print JSON Parsing Error: "))) << bad;
    }
}

TEST(UpdatePass, theScriptsAreTheProvidersToTheLetter)
{
    Bed bed;
    (void)bed.pass("https://h/course?hash=B6xUEGCyo/eXAqNDLYnlZw==");
    bed.view->navigate(kOther);
    bed.desktop.browserViews.site = {{kOther, {}}};
    bed.desktop.loop.run();
    (void)bed.desktop.journal.take();
    bed.services.updatePass.runUpdatePass(*bed.view, bed.model);
    bed.desktop.loop.run();
    const auto scripts = bed.desktop.journal.starting("script\n");
    ASSERT_EQ(scripts.size(), 3U);
    EXPECT_NE(scripts[1].find(
                  "\n        var videoElement = document.querySelector('.video');\n        \n        var maxWidth"),
              std::string::npos);
    EXPECT_NE(scripts[1].find("\n            maxWidth: maxWidth, \n            maxHeight: maxHeight,\n"),
              std::string::npos);
    EXPECT_TRUE(scripts[1].starts_with("script\n    (function() {\n") &&
                scripts[1].ends_with("\n        });\n    })();"));
    EXPECT_EQ(scripts[2], "script\nvar overlayElements = document.getElementsByClassName(\"overlay\");\n"
                          "if (overlayElements.length > 0) {\n"
                          "    var overlayRemove = overlayElements[0];\n"
                          "    overlayRemove.parentNode.removeChild(overlayRemove);\n}");
}

TEST(PeriodicCheck, runsWithEveryPassAndEveryTenSecondsOfOneTimer)
{
    Bed bed;
    bed.desktop.runningApplications.add("other");
    const auto window = bed.desktop.windows.makeWindow({}, 15);
    for (int pass = 0; pass < 3; ++pass) {
        (void)bed.pass("https://h/");
        bed.desktop.loop.advance(Seconds{1});
    }
    (void)bed.desktop.journal.take();
    bed.desktop.loop.advance(Seconds{60});
    EXPECT_THAT(bed.desktop.journal.starting("quit other"), testing::SizeIs(6));
}

} // namespace
} // namespace orken
