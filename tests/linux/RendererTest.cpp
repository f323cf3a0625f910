#include "linux/animation/RendererProcess.h"

#include <gmock/gmock.h>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>
#include <vector>

// Real renderer processes, with the documents that the checker lets through.

namespace orken::desktop {
namespace {

constexpr renderer::Request kPicture{.frame = 0, .width = 60, .height = 60};

std::string document(const std::string& layers, int frames = 10)
{
    return R"({"ty":"","v":"5.5.0","fr":10,"ip":0,"op":)" + std::to_string(frames) + R"(,"w":60,"h":60,"layers":[)" +
           layers + "]}";
}

/// A layer with these shapes; the order of its keys is the test's.
std::string layer(const std::string& shapes)
{
    return R"({"ty":4,"ip":0,"op":10,"st":0,"ks":{},"shapes":[{"ty":"gr","it":[)" + shapes +
           R"(,{"ty":"tr","p":{"k":[30,30]},"a":{"k":[0,0]},"s":{"k":[100,100]},"r":{"k":0},"o":{"k":100}}]}]})";
}

const std::string kRedSquare = layer(R"({"ty":"rc","p":{"k":[0,0]},"s":{"k":[40,40]},"r":{"k":0}},)"
                                     R"({"ty":"fl","c":{"k":[1,0,0,1]},"o":{"k":100}})");

/// Dashes so short, on curves so large, that the renderer would be at it for minutes.
const std::string kEndless =
    layer(R"({"ty":"sh","ks":{"k":{"c":true,"i":[[-30000,0],[30000,0]],"o":[[30000,0],[-30000,0]],)"
          R"("v":[[-30000,-30000],[30000,30000]]}}},)"
          R"({"ty":"st","c":{"k":[1,0,0,1]},"o":{"k":100},"w":{"k":1},"lc":1,"lj":1,)"
          R"("d":[{"n":"d","v":{"k":0.001}},{"n":"g","v":{"k":0.001}}]})");

struct Renderer {
    explicit Renderer(const std::string& json, const std::string& program = ORKEN_RENDERER)
        : process(std::make_unique<RendererProcess>(program, json,
                                                    RendererProcess::Events{.drawn = [this] { ++drawn; },
                                                                            .failed =
                                                                                [this] {
                                                                                    failed = true;
                                                                                    process.reset();
                                                                                }}))
    {
    }

    /// The picture, empty when there is none.
    std::vector<std::uint32_t> draw(const renderer::Request& request = kPicture)
    {
        const int before = drawn;
        process->request(request);
        while (!failed && drawn == before) {
            g_main_context_iteration(nullptr, TRUE);
        }
        std::vector<std::uint32_t> pixels(failed ? 0 : std::size_t{request.width} * request.height);
        if (!failed) {
            std::memcpy(pixels.data(), process->pixels(), pixels.size() * sizeof(std::uint32_t));
        }
        return pixels;
    }

    int drawn = 0;
    bool failed = false;
    std::unique_ptr<RendererProcess> process;
};

/// Processes of this one that run or have not been collected.
std::vector<int> children()
{
    std::ifstream list("/proc/thread-self/children");
    return {std::istream_iterator<int>(list), std::istream_iterator<int>()};
}

std::string contentOf(const std::filesystem::path& file)
{
    std::stringstream content;
    content << std::ifstream(file).rdbuf();
    return content.str();
}

TEST(RendererProcess, worksWhateverNumbersItsDescriptorsHave)
{
    std::vector<FileDescriptor> taken;
    for (int i = 0; i < 12; ++i) {
        Renderer renderer(document(kRedSquare));
        EXPECT_FALSE(renderer.draw().empty()) << i << " more taken";
        taken.emplace_back(dup(STDERR_FILENO));
    }
}

TEST(RendererProcess, drawsFramesAndEndsWithItsOwner)
{
    {
        Renderer renderer(document(kRedSquare));
        const auto pixels = renderer.draw();
        ASSERT_EQ(pixels.size(), 3600U);
        EXPECT_EQ(pixels[30 * 60 + 30], 0xFFFF0000U);
        EXPECT_EQ(pixels[0], 0U);
        EXPECT_EQ(renderer.draw({.frame = 4000, .width = 60, .height = 60}), pixels) << "beyond the last frame";
        EXPECT_EQ(renderer.draw({.frame = 3, .width = 120, .height = 30}).size(), 3600U);
        EXPECT_EQ(children().size(), 1U);
    }
    while (!children().empty()) {
        g_main_context_iteration(nullptr, FALSE);
    }
}

TEST(RendererProcess, failsOnceForWhatItCannotDraw)
{
    const std::pair<const char*, std::string> documents[] = {
        {"nothing", ""},
        {"no document", "<html></html>"},
        {"no frames", document(kRedSquare, 0)},
        {"endless work", document(kEndless)},
    };
    for (const auto& [name, json] : documents) {
        Renderer renderer(json);
        const auto began = std::chrono::steady_clock::now();
        EXPECT_TRUE(renderer.draw().empty() && renderer.failed) << name;
        EXPECT_LT(std::chrono::steady_clock::now() - began, RendererProcess::kStartPatience) << name;
    }
    for (const renderer::Request& request : {renderer::Request{.frame = 0, .width = 0, .height = 1},
                                             renderer::Request{.frame = 0, .width = 70000, .height = 70000}}) {
        Renderer renderer(document(kRedSquare));
        EXPECT_TRUE(renderer.draw(request).empty());
    }
    EXPECT_TRUE(Renderer(document(kRedSquare), "/nowhere").draw().empty());
    EXPECT_TRUE(Renderer(document(kRedSquare), "/bin/false").draw().empty());
}

TEST(RendererProcess, failsWhenItIsKilled)
{
    Renderer renderer(document(kRedSquare));
    (void)renderer.draw();
    kill(children().at(0), SIGKILL);
    EXPECT_TRUE(renderer.draw().empty());
}

TEST(RendererProcess, isConfined)
{
    Renderer renderer(document(kRedSquare));
    (void)renderer.draw();
    const std::filesystem::path process = "/proc/" + std::to_string(children().at(0));
    // Its drawing threads, too.
    for (const auto& thread : std::filesystem::directory_iterator(process / "task")) {
        EXPECT_THAT(contentOf(thread.path() / "status"),
                    testing::AllOf(testing::HasSubstr("NoNewPrivs:\t1"), testing::HasSubstr("Seccomp:\t2")));
    }
    const auto limits = contentOf(process / "limits");
    EXPECT_THAT(limits, testing::ContainsRegex("Max core file size +0 +0"));
#if !defined(__SANITIZE_ADDRESS__)
    EXPECT_THAT(limits, testing::ContainsRegex("Max address space +536870912 +536870912"));
#endif
}

} // namespace
} // namespace orken::desktop
