#pragma once

#include "foundation/Url.h"
#include "platform/ContentsReader.h"
#include "platform/UrlSession.h"
#include "simulated/Part.h"

#include <map>
#include <string>

namespace orken::simulated {

/// What a server does with a request.
struct Route {
    std::string body;
    /// An answer without a body, which this desktop alone can give.
    bool hasBody = true;
    /// There is no answer at all.
    std::optional<PlatformError> error;
    Seconds delay{0};
    /// What happens elsewhere while a blocking read waits for the answer.
    std::function<void()> meanwhile;
};

/// The network of the URL session and the blocking read. Connections to addresses without a route are refused.
class SimulatedNetwork final : public UrlSession, public ContentsReader, Part {
public:
    using Part::Part;

    void startDataTask(const std::string& url, std::function<void(DataTaskResult)> completion) override
    {
        const Route route = request(url);
        auto body = route.hasBody ? std::optional(toBytes(route.body)) : std::nullopt;
        const auto result = route.error ? DataTaskResult(*route.error) : DataTaskResult(std::move(body));
        loop_.later(route.delay, [this, result, completion = std::move(completion)] {
            loop_.addBackgroundJob([result, completion] { completion(result); });
        });
    }

    [[nodiscard]] Outcome<std::string> readText(const std::string& url) override
    {
        loop_.requireMainThread();
        const Route route = request(url);
        loop_.block(route.delay);
        if (route.meanwhile) {
            route.meanwhile();
        }
        return route.error ? Outcome<std::string>(*route.error) : route.body;
    }

    std::map<std::string, Route> routes;

private:
    [[nodiscard]] Route request(const std::string& url)
    {
        const auto address = parseUrl(url);
        if (!address || (address->scheme != "http" && address->scheme != "https")) {
            return {.error = platformError("network", 1, url, "unsupported address")};
        }
        journal_.add("GET " + url);
        const auto place = routes.find(url);
        return place != routes.end() ? place->second : Route{.error = platformError("network", 2, url, "refused")};
    }
};

} // namespace orken::simulated
