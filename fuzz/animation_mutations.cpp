#include "DocumentMutator.h"
#include "animation/DocumentChecker.h"
#include "linux/animation/RendererProcess.h"
#include "linux/animation/RlottieDocument.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

// Spoilt animation documents all the way: through the checker and, where it lets them, to real renderer processes. What
// a document may do is to be refused or to fail; the client stays up, and nothing is left behind.

namespace orken::fuzz {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;
using desktop::RendererProcess;

/// From a document to its first picture, its refusal or its failure, and from each further request to its answer.
constexpr Seconds kLongestAnswer{ORKEN_LONGEST_ANSWER};
/// An answer that came late is asked for again: another program may have had the machine.
constexpr int kTries = 3;
/// For what never comes.
constexpr Seconds kLimit{30};

enum class Answer { opened, refused, failed };

/// Serves the main loop until the condition holds; false when it never does.
bool waitFor(const std::function<bool()>& condition)
{
    bool isOver = false;
    const auto limit = desktop::Source::after(kLimit, [&isOver] { isOver = true; });
    while (!condition() && !isOver) {
        g_main_context_iteration(nullptr, TRUE);
    }
    return condition();
}

Seconds since(Clock::time_point began)
{
    return Clock::now() - began;
}

/// Of this thread: the checker waits for nothing, and other programs may have the machine.
Seconds processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return Seconds(static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9);
}

/// Processes of this one that run or have not been collected.
std::ptrdiff_t children()
{
    std::ifstream list("/proc/thread-self/children");
    return std::distance(std::istream_iterator<int>(list), std::istream_iterator<int>());
}

std::ptrdiff_t descriptors()
{
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

struct Visit {
    Answer answer = Answer::refused;
    Seconds longest{0};
};

class Walk {
public:
    /// Absent when a promise was broken, which has then been printed.
    [[nodiscard]] std::optional<Answer> visit(const std::string& document)
    {
        Visit best = visitOnce(document);
        for (int i = 1; i < kTries && best.longest > kLongestAnswer; ++i) {
            const Visit again = visitOnce(document);
            best = again.longest < best.longest ? again : best;
        }
        longest_ = std::max(longest_, best.longest);
        counts_.at(static_cast<std::size_t>(best.answer)) += 1;
        if (best.longest > kLongestAnswer) {
            std::fprintf(stderr, "an answer took %.2f s\n", best.longest.count());
            return std::nullopt;
        }
        return leavesNothing() ? std::optional(best.answer) : std::nullopt;
    }

    void printSummary() const
    {
        std::printf("%d documents: %d opened, %d refused, %d failed; %d pictures; longest answer %.3f s\n",
                    counts_[0] + counts_[1] + counts_[2], counts_[0], counts_[1], counts_[2], pictures_,
                    longest_.count());
    }

private:
    [[nodiscard]] Visit visitOnce(const std::string& document)
    {
        Visit visit;
        const Seconds worked = processorTime();
        const auto checked = checkAnimationDocument(document);
        const auto usable = checked ? desktop::rlottieDocument(checked.value()) : checked;
        visit.longest = processorTime() - worked;
        if (!usable) {
            return visit;
        }
        bool isDrawn = false;
        bool hasFailed = false;
        RendererProcess process(ORKEN_RENDERER, usable.value().json,
                                {.drawn = [&] { isDrawn = true; }, .failed = [&] { hasFailed = true; }});
        const auto last = static_cast<std::uint32_t>(usable.value().frameCount - 1);
        const desktop::renderer::Request requests[] = {{.frame = 0, .width = 300, .height = 300},
                                                       {.frame = last, .width = 1, .height = 1},
                                                       {.frame = last / 2, .width = 1920, .height = 1080},
                                                       {.frame = last / 3, .width = 7, .height = 4096}};
        visit.answer = Answer::failed;
        auto asked = Clock::now() - std::chrono::duration_cast<Clock::duration>(visit.longest);
        for (const auto& request : requests) {
            isDrawn = false;
            process.request(request);
            const bool isAnswered = waitFor([&] { return isDrawn || hasFailed; });
            visit.longest = std::max(visit.longest, isAnswered ? since(asked) : kLimit);
            if (!isDrawn) {
                break;
            }
            ++pictures_;
            visit.answer = Answer::opened;
            asked = Clock::now();
        }
        return visit;
    }

    [[nodiscard]] bool leavesNothing()
    {
        if (!waitFor([] {
                g_main_context_wakeup(nullptr);
                return children() == 0;
            })) {
            std::fprintf(stderr, "%td renderer processes are left\n", children());
            return false;
        }
        const auto open = descriptors();
        // The main loop takes some of its own for the first child.
        openAtFirst_ = openAtFirst_ == 0 ? open : openAtFirst_;
        if (open != openAtFirst_) {
            std::fprintf(stderr, "%td descriptors are open, %td were at first\n", open, openAtFirst_);
            return false;
        }
        return true;
    }

    std::array<int, 3> counts_{};
    int pictures_ = 0;
    Seconds longest_{0};
    std::ptrdiff_t openAtFirst_ = 0;
};

std::string contentOf(const fs::path& file)
{
    std::stringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

/// The demo's own document first.
std::vector<std::string> handWritten()
{
    std::vector<fs::path> files(fs::directory_iterator(ORKEN_FUZZ_CORPUS), fs::directory_iterator{});
    std::sort(files.begin(), files.end());
    files.insert(files.begin(), ORKEN_DEMO_ANIMATION);
    std::vector<std::string> documents(files.size());
    std::transform(files.begin(), files.end(), documents.begin(), contentOf);
    return documents;
}

/// Keeps the document in the working directory, for a second look.
int report(const std::string& document, const std::string& name)
{
    const fs::path file = fs::absolute(name + ".json");
    std::ofstream(file, std::ios::binary) << document;
    std::fprintf(stderr, "the document: %s\n", file.c_str());
    return EXIT_FAILURE;
}

int walk(int count, std::uint64_t seed)
{
    Walk walk;
    // To spoil what is refused or fails as it is would lead nowhere.
    std::vector<std::string> good;
    for (const std::string& document : handWritten()) {
        const auto answer = walk.visit(document);
        if (!answer || (good.empty() && answer != Answer::opened)) {
            std::fputs(good.empty() ? "the demo's document is not drawn\n" : "", stderr);
            return report(document, "hand-written");
        }
        if (answer == Answer::opened) {
            good.push_back(document);
        }
    }
    DocumentMutator mutator(good, seed);
    for (int i = 0; i < count; ++i) {
        const std::string document = mutator.next();
        if (!walk.visit(document)) {
            return report(document, "spoilt-" + std::to_string(seed) + "-" + std::to_string(i));
        }
    }
    walk.printSummary();
    return EXIT_SUCCESS;
}

} // namespace
} // namespace orken::fuzz

int main(int count, char** arguments)
{
    const int documents = count > 2 ? std::atoi(arguments[1]) : 0;
    if (documents <= 0) {
        std::fputs("usage: animation_mutations COUNT SEED\n", stderr);
        return 2;
    }
    const std::uint64_t seed = std::strtoull(arguments[2], nullptr, 10);
    return orken::fuzz::walk(documents, seed);
}
