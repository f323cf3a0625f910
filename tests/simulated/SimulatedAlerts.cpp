#include "simulated/SimulatedAlerts.h"

#include <algorithm>

namespace orken::simulated {

namespace {

/// Longer than any test lets an alert stay up.
constexpr Seconds kPatience{3600};

} // namespace

int SimulatedAlerts::runModal(const Alert& alert)
{
    loop_.requireMainThread();
    if (application_.isTerminating()) {
        return kAlertAborted;
    }
    journal_.add("alert " + alert.messageText + ": " + alert.informativeText);
    const auto id = stack_.push();
    shown_.emplace_back(id, alert);
    const auto panel = windows_.showPanel([this, id] { stack_.abort(id); });
    loop_.beginModal();
    if (!users_.empty()) {
        const auto user = std::move(users_.front());
        users_.pop_front();
        user();
    }
    require(loop_.runUntil([this, id] { return stack_.result(id).has_value(); }, kPatience),
            "nobody ends the alert " + alert.messageText);
    loop_.endModal();

    const int result = *stack_.result(id);
    stack_.pop(id);
    shown_.pop_back();
    windows_.hidePanel(panel);
    return result;
}

void SimulatedAlerts::press(const std::string& button)
{
    require(!shown_.empty(), "no alert is up");
    const auto& [id, alert] = shown_.back();
    const auto place = std::find(alert.buttons.begin(), alert.buttons.end(), button);
    require(place != alert.buttons.end(), "the alert has no button " + button);
    stack_.answer(id, static_cast<std::size_t>(place - alert.buttons.begin()));
}

} // namespace orken::simulated
