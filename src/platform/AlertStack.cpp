#include "platform/AlertStack.h"

#include <cassert>

namespace orken {

AlertStack::Id AlertStack::push()
{
    alerts_.push_back({.id = ++lastId_, .result = std::nullopt});
    return lastId_;
}

void AlertStack::answer(Id alert, std::size_t button)
{
    settle(alert, kAlertFirstButtonReturn + static_cast<int>(button));
}

void AlertStack::abort(Id alert)
{
    settle(alert, kAlertAborted);
}

void AlertStack::abortAll()
{
    for (const Entry& entry : std::vector(alerts_)) {
        abort(entry.id);
    }
}

std::optional<int> AlertStack::result(Id alert) const
{
    if (alerts_.empty() || alerts_.back().id != alert) {
        return std::nullopt;
    }
    return alerts_.back().result;
}

void AlertStack::pop([[maybe_unused]] Id alert)
{
    assert(!alerts_.empty() && alerts_.back().id == alert);
    alerts_.pop_back();
}

void AlertStack::settle(Id alert, int result)
{
    for (Entry& entry : alerts_) {
        if (entry.id == alert && !entry.result) {
            entry.result = result;
        }
    }
}

} // namespace orken
