#pragma once

#include <string>
#include <string_view>

namespace orken {

// How the provider's servers and pages name things to the client, and the client itself to them. The scripts that the
// client runs in a page stand with their classes, each with the page's own names in it.

/// Sent with every request of the browser view; the provider's site knows the client by it.
inline constexpr const char* kUserAgent = "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) ApleWebKit/405.1.15 (KHTML, "
                                          "like Gecko) Versions/16.6 Safari/405.1.15";

/// The member of the settings document that holds the required version, a text.
inline constexpr const char* kRequiredVersionMember = "macVersion";

/// Query values of a page's address, base64 of what has been encrypted under `kQueryKey`: the text over the video, and
/// one that is only printed.
inline constexpr std::string_view kHashParameter = "hash";
inline constexpr std::string_view kAesKeyParameter = "dnz";

/// The address is that of a login page. Letter case counts: the login address that the client itself asks for is not
/// one until the server has led on from it.
[[nodiscard]] inline bool isLoginPage(const std::string& url)
{
    return url.find("Login") != std::string::npos;
}

/// The address is that of a page with a video. Letter case counts.
[[nodiscard]] inline bool isVideoPage(const std::string& url)
{
    return url.find("playlist") != std::string::npos;
}

} // namespace orken
