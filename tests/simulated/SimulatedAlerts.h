#pragma once

#include "platform/AlertStack.h"
#include "simulated/SimulatedApplication.h"

#include <algorithm>
#include <deque>
#include <string>

namespace orken::simulated {

/// Alerts in panels of the window list, answered by a user who has been told beforehand.
class SimulatedAlerts final : public Alerts {
public:
    SimulatedAlerts(MainLoop& loop, SimulatedWindows& windows, const Application& application, Journal& journal)
        : loop_(loop), windows_(windows), application_(application), journal_(journal)
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
        shown_.emplace_back(id, alert);
        const auto panel = windows_.showPanel([this, id] { stack_.abort(id); });
        loop_.beginModal();
        if (!answers_.empty()) {
            press(std::exchange(answers_.front(), {}));
            answers_.pop_front();
        }
        require(loop_.runUntil([this, id] { return stack_.result(id).has_value(); }, kPatience),
                "nobody ends the alert " + alert.title);
        loop_.endModal();

        const int result = *stack_.result(id);
        stack_.pop(id);
        shown_.pop_back();
        windows_.hidePanel(panel);
        return result;
    }

    /// The user presses this button once the next alert is up.
    void answerNext(std::string button) { answers_.push_back(std::move(button)); }

    /// The alert on top; one must be up.
    void press(const std::string& button)
    {
        require(!shown_.empty(), "no alert is up");
        const auto& [id, alert] = shown_.back();
        const auto place = std::find_if(alert.buttons.begin(), alert.buttons.end(),
                                        [&](const AlertButton& one) { return one.title == button; });
        require(place != alert.buttons.end(), "the alert has no button " + button);
        stack_.answer(id, static_cast<std::size_t>(place - alert.buttons.begin()));
    }

    void abortAll() { stack_.abortAll(); }

private:
    /// Longer than any test lets an alert stay up.
    static constexpr Seconds kPatience{3600};

    MainLoop& loop_;
    SimulatedWindows& windows_;
    const Application& application_;
    Journal& journal_;
    AlertStack stack_;
    std::vector<std::pair<AlertStack::Id, Alert>> shown_;
    std::deque<std::string> answers_;
};

} // namespace orken::simulated
