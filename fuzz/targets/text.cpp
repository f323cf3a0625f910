#include "../Target.h"

#include "foundation/Text.h"

#include <glib.h>

#include <string>

// Any bytes as texts: page titles, the machine's serial number, diagnostics.

namespace orken::fuzz {

namespace {

/// What the toolkit, which shows the texts, takes for UTF-8; it counts a NUL as an end.
bool isToolkitText(std::string_view bytes)
{
    std::string text(bytes);
    std::replace(text.begin(), text.end(), '\0', ' ');
    return g_utf8_validate(text.data(), static_cast<gssize>(text.size()), nullptr) == TRUE;
}

} // namespace

void run(std::string_view input)
{
    constexpr std::size_t kCharacters = 20;
    const bool isText = isValidUtf8(input);
    demand(isText == isToolkitText(input), "the toolkit agrees on what is UTF-8");
    const auto text = textFromUtf8(input);
    demand(text.has_value() == isText && input.ends_with(text.value_or("")), "a text is the bytes, or their end");

    const std::string inner = trimmed(input);
    demand(trimmed(inner) == inner && input.find(inner) != std::string_view::npos, "a trimmed text stays as it is");

    const std::string line = shortenedLine(input, kCharacters);
    demand(line.size() <= kCharacters * 4 + 3, "a shortened line is short");
    demand(line.find_first_of(std::string_view("\n\v\f\r\0", 5)) == std::string::npos, "and one line");
    demand(!isText || isValidUtf8(line), "and a text, if it was one");

    const std::string shown = debugDescription(input);
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    demand(std::none_of(shown.begin(), shown.end(), isControl), "a described text has no control characters");
    demand(shown.size() >= input.size() + 2 && shown.size() <= input.size() * 6 + 2, "and each character once");
    demand(isValidUtf8(shown) == isText, "and is a text, if it was one");
}

} // namespace orken::fuzz
