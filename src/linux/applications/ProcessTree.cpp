#include "linux/applications/ProcessTree.h"

#include <algorithm>
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

std::vector<int> ProcessTree::ancestorsOf(int process)
{
    // A number that is used again while this looks could close the chain to a ring.
    constexpr std::size_t kLongestChain = 1000;
    std::vector<int> ancestors;
    auto parent = parentOf(process);
    while (ancestors.size() < kLongestChain && parent && *parent > 0) {
        ancestors.push_back(*parent);
        parent = parentOf(*parent);
    }
    return ancestors;
}

bool ProcessTree::isAncestor(int process, int descendant)
{
    const auto ancestors = ancestorsOf(descendant);
    return std::find(ancestors.begin(), ancestors.end(), process) != ancestors.end();
}

bool ProcessTree::runSameProgram(int process, int other)
{
    const auto program = programOf(process);
    return !program.empty() && program == programOf(other);
}

} // namespace orken::desktop
