#pragma once

#include "platform/AlertStack.h"
#include "simulated/SimulatedApplication.h"

#include <deque>
#include <string>

namespace orken::simulated {

/// Alerts in panels of the window list, answered by a user who has been told beforehand.
class SimulatedAlerts final : public Alerts, Part {
public:
    SimulatedAlerts(Common& common, SimulatedWindows& windows, const Application& application)
        : Part(common), windows_(windows), application_(application)
    {
    }

    [[nodiscard]] int runModal(const Alert& alert) override
    {
        loop_.requireMainThread();
        if (application_.isTerminating()) {
            return kAlertAborted;
        }
        journal_.add("alert " + alert.title + ": " + alert.message);
        const auto id = stack_.push();
        const auto panel = windows_.showPanel([this, id] { stack_.abort(id); });
        if (!answers_.empty()) {
            stack_.answer(id, positionOf(answers_.front(), alert));
            answers_.pop_front();
        }
        loop_.beginModal();
        require(loop_.runUntil([this, id] { return stack_.result(id).has_value(); }, kPatience),
                "nobody ends the alert " + alert.title);
        loop_.endModal();

        const int result = *stack_.result(id);
        stack_.pop(id);
        windows_.hidePanel(panel);
        return result;
    }

    /// The user presses this button once the next alert is up.
    void answerNext(std::string button) { answers_.push_back(std::move(button)); }

    void abortAll() { stack_.abortAll(); }

private:
    /// Longer than any test lets an alert stay up.
    static constexpr Seconds kPatience{3600};

    SimulatedWindows& windows_;
    const Application& application_;
    AlertStack stack_;
    std::deque<std::string> answers_;
};

} // namespace orken::simulated
