#pragma once

#include "linux/services/HttpOptions.h"
#include "platform/CookieStorage.h"
#include "platform/UrlSession.h"

#include <memory>
#include <mutex>

namespace orken::desktop {

/// The URL session over libsoup, with its cookies in memory. The background queue is a thread of its own, which starts
/// with the first request.
class HttpSession final : public UrlSession, public CookieStorage {
public:
    static constexpr std::size_t kMaximumBodyBytes = 64 * 1024 * 1024;

    explicit HttpSession(std::optional<std::string> certificateAuthorityFile = std::nullopt)
        : HttpSession(HttpOptions{.certificateAuthorityFile = std::move(certificateAuthorityFile),
                                  .maximumBodyBytes = kMaximumBodyBytes})
    {
    }

    explicit HttpSession(HttpOptions options);
    ~HttpSession() override;

    void startDataTask(const std::string& url, std::function<void(DataTaskResult)> completion) override;

    /// Waits for a completion that is running.
    void removeAllCookies() override;

    /// Ends the background queue: requests are cancelled, and no completion starts from now on. Returns when a running
    /// one has returned. Main thread only.
    void stop();

private:
    class Worker;

    const HttpOptions options_;
    std::mutex mutex_;
    std::unique_ptr<Worker> worker_;
    bool stopped_ = false;
};

} // namespace orken::desktop
