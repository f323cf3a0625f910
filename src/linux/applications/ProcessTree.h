#pragma once

#include <optional>
#include <vector>

namespace orken::desktop {

/// What /proc says about how processes descend from each other. Any thread.
class ProcessTree {
public:
    /// Absent when the process has gone or cannot be seen.
    [[nodiscard]] static std::optional<int> parentOf(int process);

    /// From the parent up to the first process.
    [[nodiscard]] static std::vector<int> ancestorsOf(int process);

    /// `process` is on the way from `descendant` up to the first process, `descendant` itself left out.
    [[nodiscard]] static bool isAncestor(int process, int descendant);

    /// Both run the same program file. False when either cannot be seen.
    [[nodiscard]] static bool runSameProgram(int process, int other);
};

} // namespace orken::desktop
