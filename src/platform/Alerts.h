#pragma once

#include "foundation/NonCopyable.h"

#include <string>
#include <vector>

namespace orken {

/// Values as the answers are compared: buttons count from here in the order they were added.
inline constexpr int kAlertFirstButtonReturn = 1000;
inline constexpr int kAlertStopped = -1000;
/// The alert was ended by the program, not by a button.
inline constexpr int kAlertAborted = -1001;

enum class AlertStyle { warning, informational, critical };

struct Alert {
    std::string messageText;
    std::string informativeText;
    AlertStyle style = AlertStyle::warning;
    /// The first is the default button; none is pressed by Escape. At least one.
    std::vector<std::string> buttons;
};

/// Application-modal alerts. Main thread only.
class Alerts : NonCopyable {
public:
    virtual ~Alerts() = default;

    /// Shows the alert and waits for the answer in a nested main loop. Texts are plain, never markup. Alerts nest: an
    /// inner one has to be answered before an outer call returns. Returns `kAlertAborted` at once while the
    /// application terminates.
    [[nodiscard]] virtual int runModal(const Alert& alert) = 0;
};

} // namespace orken
