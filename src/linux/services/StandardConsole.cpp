#include "linux/services/StandardConsole.h"

#include <cstdio>
#include <string>

namespace orken::desktop {

namespace {

void writeLine(std::FILE* stream, std::string_view line)
{
    std::string text(line);
    text += '\n';
    // One call, under the stream's lock: lines of two threads never mix. A pipe is block-buffered without the flush,
    // and a client that is killed would lose its last lines. Nobody can be told that the reader is gone.
    std::fwrite(text.data(), 1, text.size(), stream);
    std::fflush(stream);
}

} // namespace

void StandardConsole::printLine(std::string_view line)
{
    writeLine(stdout, line);
}

void reportDiagnostic(std::string_view line)
{
    writeLine(stderr, line);
}

} // namespace orken::desktop
