#pragma once

#include "browser/PageValues.h"
#include "platform/Console.h"
#include "platform/MainQueue.h"
#include "platform/Ports.h"
#include "platform/RandomNumbers.h"
#include "platform/Screens.h"
#include "platform/Timers.h"
#include "view/State.h"

#include <memory>

namespace orken {

/// Moves the text over video pages to a new place every five seconds, also while there is no text. Held by its timer.
/// Main thread only.
class WatermarkMovement : public std::enable_shared_from_this<WatermarkMovement> {
public:
    struct Ports {
        Timers& timers;
        MainQueue& mainQueue;
        const Screens& screens;
        RandomNumbers& random;
        Console& console;
    };

    /// `position` is the text's centre, in points of the screen. `values` outlives the process's timers.
    WatermarkMovement(State<Point> position, const PageValues& values, const Ports& ports)
        : position_(std::move(position)), values_(values), ports_(ports)
    {
    }

    /// Begins anew: a timer that runs already is replaced.
    void startTextMovement();

    /// On a screen that is too small for the margins the text stays where it is.
    void updateTextPosition();

private:
    State<Point> position_;
    const PageValues& values_;
    Ports ports_;
    /// The main loop keeps it, and it keeps this.
    std::weak_ptr<Timer> timer_;
};

[[nodiscard]] WatermarkMovement::Ports watermarkPorts(const Ports& ports);

} // namespace orken
