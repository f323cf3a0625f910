#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orken::simulated {

/// What the client did to the outside, in order: "print …", "close …", "load …", "terminated".
class Journal {
public:
    void add(std::string act) { acts_.push_back(std::move(act)); }

    [[nodiscard]] const std::vector<std::string>& acts() const { return acts_; }

    [[nodiscard]] std::vector<std::string> take() { return std::exchange(acts_, {}); }

    /// The acts of one kind, such as "print ".
    [[nodiscard]] std::vector<std::string> starting(std::string_view prefix) const
    {
        std::vector<std::string> found;
        std::copy_if(acts_.begin(), acts_.end(), std::back_inserter(found),
                     [prefix](const std::string& act) { return act.starts_with(prefix); });
        return found;
    }

private:
    std::vector<std::string> acts_;
};

} // namespace orken::simulated
