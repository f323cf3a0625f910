#include "linux/x11/ProcessTree.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace orken::desktop {

namespace {

std::filesystem::path programOf(int process)
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", error);
}

} // namespace

std::optional<int> ProcessTree::parentOf(int process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    const std::string status((std::istreambuf_iterator<char>(file)), {});
    // "PID (name) state parent …"; the name may hold blanks and parentheses itself.
    const std::size_t name = status.rfind(") ");
    if (name == std::string::npos || name + 4 >= status.size()) {
        return std::nullopt;
    }
    int parent = 0;
    const auto [end, error] = std::from_chars(status.data() + name + 4, status.data() + status.size(), parent);
    return error == std::errc() ? std::optional(parent) : std::nullopt;
}

bool ProcessTree::isAncestor(int process, int descendant)
{
    // A number that is used again while this looks could close the chain to a ring.
    constexpr int kLongestChain = 1000;
    auto parent = parentOf(descendant);
    for (int i = 0; i < kLongestChain && parent && *parent > 0; ++i) {
        if (*parent == process) {
            return true;
        }
        parent = parentOf(*parent);
    }
    return false;
}

bool ProcessTree::runSameProgram(int process, int other)
{
    const auto program = programOf(process);
    return !program.empty() && program == programOf(other);
}

} // namespace orken::desktop
