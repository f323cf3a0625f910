#pragma once

#include <optional>
#include <string>

namespace orken {

/// What the page scripts have read from the pages, one set for the whole process: values stay until newer ones take
/// their place. Numbers are CSS pixels. Main thread only.
struct PageValues {
    std::string receivedAesKey;
    std::string hashValue;
    /// Shown over the video; absent until the first one has been decrypted.
    std::optional<std::string> decryptedHashValue;
    std::optional<double> videoXPosition;
    double videoYPosition = 0;
    std::optional<double> videoMaxWidth;
    std::optional<double> videoMaxHeight;
};

} // namespace orken
