#pragma once

#include "platform/Alerts.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace orken {

/// Which alerts are up and what they were answered: the same for every desktop. Main thread only.
class AlertStack {
public:
    using Id = unsigned long;

    /// An alert goes up over those that are up.
    [[nodiscard]] Id push();

    /// A button, counted from 0, was pressed, or the program has closed the panel. The first answer counts.
    void answer(Id alert, std::size_t button);
    void abort(Id alert);

    /// Every alert that is up is ended by the program.
    void abortAll();

    /// The answer, once this alert is on top: an alert under another one is not over before that one.
    [[nodiscard]] std::optional<int> result(Id alert) const;

    /// The alert's call returns; it must be on top.
    void pop(Id alert);

    /// Timers stand still and window-modal alerts wait while this is above zero.
    [[nodiscard]] std::size_t depth() const { return alerts_.size(); }

private:
    struct Entry {
        Id id = 0;
        std::optional<int> result;
    };

    void settle(Id alert, int result);

    std::vector<Entry> alerts_;
    Id lastId_ = 0;
};

} // namespace orken
