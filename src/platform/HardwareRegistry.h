#pragma once

#include "foundation/NonCopyable.h"

#include <optional>
#include <string>

namespace orken {

/// What identifies the machine. Any thread; asked anew on every call.
class HardwareRegistry : NonCopyable {
public:
    virtual ~HardwareRegistry() = default;

    /// The platform's serial text as it is stored, with its line end; absent when the machine has none or it is not
    /// text.
    [[nodiscard]] virtual std::optional<std::string> platformExpertSerial() const = 0;
};

} // namespace orken
