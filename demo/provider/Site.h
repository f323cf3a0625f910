#pragma once

#include "provider/Http.h"
#include "provider/Options.h"

#include <functional>
#include <map>
#include <string>

namespace orken::demo {

/// The provider's site: what it answers to which request. Knows nothing of connections.
class Site {
public:
    explicit Site(Options options);
    Site(const Site&) = delete;
    Site& operator=(const Site&) = delete;

    [[nodiscard]] Answer answer(const Request& request);

private:
    [[nodiscard]] Answer settings() const;

    Options options_;
    /// By path; GET and HEAD.
    std::map<std::string, std::function<Answer(const Request&)>> pages_;
};

} // namespace orken::demo
