#pragma once

#include <cstddef>
#include <string>

namespace orken::demo {

inline constexpr std::size_t kLargestPdf = 256U << 20U;

/// A PDF document (version 1.4) of one page with one line of text. Exactly `size` bytes long, filled up with a stream
/// that the page does not use; a document too small for its own content has its natural length of about 1 kB.
[[nodiscard]] std::string makePdf(std::size_t size);

} // namespace orken::demo
