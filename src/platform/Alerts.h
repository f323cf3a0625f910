#pragma once

#include "foundation/NonCopyable.h"
#include "view/Alert.h"

namespace orken {

/// Values as the answers are compared: buttons count from here in the order they were added.
inline constexpr int kAlertFirstButtonReturn = 1000;
/// The alert was ended by the program, not by a button.
inline constexpr int kAlertAborted = -1001;

/// Application-modal alerts. Main thread only.
class Alerts : NonCopyable {
public:
    virtual ~Alerts() = default;

    /// Shows the alert and waits for the answer in a nested main loop. Alerts nest: an inner one has to be answered
    /// before an outer call returns. Returns `kAlertAborted` at once while the application terminates.
    [[nodiscard]] virtual int runModal(const Alert& alert) = 0;
};

} // namespace orken
