#pragma once

#include <optional>
#include <vector>

namespace orken {

enum class FullScreenChange { willEnter, didEnter, willExit, didExit };

/// A window's way into and out of full screen; the same for every desktop. Each step that returns a change is one to
/// tell the notification centre. Main thread only.
class FullScreenTransition {
public:
    /// The state has fully changed to full screen and is not on its way back.
    [[nodiscard]] bool isFullScreen() const { return phase_ == Phase::fullScreen; }

    [[nodiscard]] bool isUnderWay() const { return phase_ == Phase::entering || phase_ == Phase::leaving; }

    /// A request to change to the other state; absent when one is under way and this one counts as nothing.
    [[nodiscard]] std::optional<FullScreenChange> toggle();

    /// The desktop reports the state: one change after a request, both when nobody asked, none when that is what it
    /// was, so reports may be repeated.
    [[nodiscard]] std::vector<FullScreenChange> reported(bool fullScreen);

    /// The desktop did not carry the change out (there is no window manager): back to where it was.
    void givenUp();

private:
    enum class Phase { windowed, entering, fullScreen, leaving };

    /// What the desktop reported last.
    [[nodiscard]] bool fillsScreen() const { return phase_ == Phase::fullScreen || phase_ == Phase::leaving; }

    Phase phase_ = Phase::windowed;
};

} // namespace orken
