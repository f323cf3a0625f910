#pragma once

#include "foundation/NonCopyable.h"

#include <string_view>

namespace orken {

/// The client's diagnostic lines. Any thread; a line is never torn by another one and is written before the call
/// returns.
class Console : NonCopyable {
public:
    virtual ~Console() = default;

    /// One line on standard output: the text as it is, UTF-8, and a line feed. Nothing else goes there.
    virtual void printLine(std::string_view line) = 0;
};

} // namespace orken
