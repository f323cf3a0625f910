#pragma once

#include "provider/Http.h"

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace orken::demo {

/// One JSON line per request, in the order of arrival. A line is handed to the system in one piece when the answer has
/// been decided, before its first byte is sent, so that whoever sees an answer finds its line, and killing the provider
/// loses none. An answer that is held back or never finished is logged at its arrival, too: its status is known.
class RequestLog {
public:
    /// Empties the file. Throws Failure.
    explicit RequestLog(const std::filesystem::path& path);
    RequestLog(const RequestLog&) = delete;
    RequestLog& operator=(const RequestLog&) = delete;
    ~RequestLog();

    /// `arrival` in seconds of the monotonic clock; `server` names the one that was asked.
    void write(const Request& request, double arrival, std::string_view server, unsigned status);

private:
    int file_;
    std::uint64_t count_ = 0;
};

} // namespace orken::demo
