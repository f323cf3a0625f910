#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

// Sends the files of a corpus through one target, without a fuzzer: what was found once stays mended. A broken promise
// ends the process; the last name printed is that of the file which broke it.

// NOLINTNEXTLINE(readability-identifier-naming)
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> filesOf(int count, char** arguments)
{
    std::vector<fs::path> files;
    for (int i = 1; i < count; ++i) {
        if (fs::is_directory(arguments[i])) {
            std::copy(fs::directory_iterator(arguments[i]), fs::directory_iterator(), std::back_inserter(files));
        } else {
            files.emplace_back(arguments[i]);
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

int main(int count, char** arguments)
{
    const auto files = filesOf(count, arguments);
    for (const fs::path& file : files) {
        std::puts(file.c_str());
        std::fflush(stdout);
        std::ifstream stream(file, std::ios::binary);
        if (!stream) {
            std::fputs("cannot be read\n", stderr);
            return EXIT_FAILURE;
        }
        // Of exactly this size, so that the sanitizer sees a step beyond its end.
        const std::vector<std::uint8_t> input{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
        (void)LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::printf("%zu inputs\n", files.size());
    return files.empty() ? EXIT_FAILURE : EXIT_SUCCESS;
}
