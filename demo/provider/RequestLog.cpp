#include "provider/RequestLog.h"

#include "provider/Failure.h"

#include <nlohmann/json.hpp>

#include <cerrno>
#include <cstring>
#include <iostream>

#include <fcntl.h>
#include <unistd.h>

namespace orken::demo {

RequestLog::RequestLog(const std::filesystem::path& path)
    : file_(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0644))
{
    if (file_ < 0) {
        throw Failure("cannot write the log " + path.string() + ": " + std::strerror(errno));
    }
}

RequestLog::~RequestLog()
{
    close(file_);
}

void RequestLog::write(const Request& request, double arrival, std::string_view server, unsigned status)
{
    nlohmann::ordered_json line = {
        {"n", ++count_},        {"t", arrival},     {"method", request.method},
        {"path", request.path}, {"query", nullptr}, {"headers", nlohmann::ordered_json::object()},
        {"status", status},     {"server", server},
    };
    if (request.query) {
        line["query"] = *request.query;
    }
    for (const auto& [name, value] : request.headers) {
        line["headers"][name] = value;
    }
    // Header values are bytes of the sender's choice.
    std::string text = line.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    text += '\n';
    if (::write(file_, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
        std::cerr << "orken-demo-provider: log: " << std::strerror(errno) << '\n';
    }
}

} // namespace orken::demo
