#pragma once

#include "platform/AlertStack.h"
#include "simulated/SimulatedApplication.h"

#include <deque>
#include <functional>
#include <string>

namespace orken::simulated {

/// Alerts in panels of the window list, answered by a user who has been told beforehand.
class SimulatedAlerts final : public Alerts {
public:
    SimulatedAlerts(MainLoop& loop, SimulatedWindows& windows, const Application& application, Journal& journal)
        : loop_(loop), windows_(windows), application_(application), journal_(journal)
    {
    }

    [[nodiscard]] int runModal(const Alert& alert) override;

    /// What the user does once the next alert is up.
    void whenShown(std::function<void()> user) { users_.push_back(std::move(user)); }

    void answerNext(std::string button)
    {
        whenShown([this, button = std::move(button)] { press(button); });
    }

    /// The alert on top; one must be up.
    void press(const std::string& button);

    void abortAll() { stack_.abortAll(); }

private:
    MainLoop& loop_;
    SimulatedWindows& windows_;
    const Application& application_;
    Journal& journal_;
    AlertStack stack_;
    std::vector<std::pair<AlertStack::Id, Alert>> shown_;
    std::deque<std::function<void()>> users_;
};

} // namespace orken::simulated
