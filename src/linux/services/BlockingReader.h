#pragma once

#include "linux/services/HttpOptions.h"
#include "platform/ContentsReader.h"

namespace orken::desktop {

/// The blocking read over libsoup. It serves a context of its own until the answer is there; a signal that asks the
/// process to end (SIGTERM, SIGHUP, SIGINT) cancels the read, and handlers in the main context still get it afterwards.
class BlockingReader final : public ContentsReader {
public:
    static constexpr std::size_t kMaximumBodyBytes = 1024 * 1024;

    explicit BlockingReader(std::optional<std::string> certificateAuthorityFile = std::nullopt)
        : BlockingReader(HttpOptions{.certificateAuthorityFile = std::move(certificateAuthorityFile),
                                     .maximumBodyBytes = kMaximumBodyBytes})
    {
    }

    explicit BlockingReader(HttpOptions options);

    [[nodiscard]] Outcome<std::string> readText(const std::string& url) override;

private:
    const HttpOptions options_;
};

} // namespace orken::desktop
