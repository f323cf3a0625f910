#pragma once

#include "foundation/NonCopyable.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orken {

/// Something that the user's session runs, as it was when the list was made.
struct RunningApplication {
    /// The platform's identifiers of system components stand for what does their work on this desktop.
    std::optional<std::string> bundleIdentifier;
    /// In the user's language.
    std::optional<std::string> localizedName;
    /// The desktop's own, by which it knows the application again.
    std::shared_ptr<const void> handle;
};

/// What runs beside the client. Main thread only.
class RunningApplications : NonCopyable {
public:
    virtual ~RunningApplications() = default;

    /// Made anew on every call, in the desktop's order; the client is in it when it has a window. Never in it: what the
    /// session cannot do without, what started the client, and the client's other processes. Empty where the desktop
    /// does not tell.
    [[nodiscard]] virtual std::vector<RunningApplication> all() = 0;

    [[nodiscard]] virtual bool isCurrent(const RunningApplication& application) const = 0;

    /// Asks it politely to quit, as its window's close button does; it may refuse. Does not wait. True when it was
    /// asked.
    virtual bool terminate(const RunningApplication& application) = 0;
};

} // namespace orken
