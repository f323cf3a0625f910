#pragma once

#include "platform/Console.h"

namespace orken::desktop {

/// The process's standard output.
class StandardConsole final : public Console {
public:
    void printLine(std::string_view line) override;
};

/// A remark of the desktop itself, which is none of the client's lines, on standard error. Any thread.
void reportDiagnostic(std::string_view line);

} // namespace orken::desktop
