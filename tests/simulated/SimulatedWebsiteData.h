#pragma once

#include "platform/WebsiteDataStore.h"
#include "simulated/Part.h"

#include <deque>
#include <string>
#include <utility>

namespace orken::simulated {

/// What the sites have left behind. Requests are carried out on a later turn.
class SimulatedWebsiteData final : public WebsiteDataStore, Part {
public:
    explicit SimulatedWebsiteData(Common& common) : Part(common)
    {
        loop_.addSource([this] { return finish(); });
    }

    void fetchDataRecords(WebsiteDataTypes, std::function<void(std::vector<WebsiteDataRecord>)> completion) override
    {
        pending_.emplace_back([this, completion = std::move(completion)] { completion(records); });
    }

    void removeData(WebsiteDataTypes types, const std::vector<WebsiteDataRecord>& removed,
                    std::function<void()> completion) override
    {
        pending_.emplace_back([this, types, removed, completion = std::move(completion)] {
            for (const WebsiteDataRecord& record : removed) {
                const auto& site = *static_cast<std::string*>(record.handle.get());
                journal_.add("remove data of " + site + " types " + std::to_string(types));
                std::erase_if(records, [&](const auto& one) { return one.handle == record.handle; });
            }
            completion();
        });
    }

    /// What was begun runs to its end; says whether there was something.
    bool finish()
    {
        const bool worked = !pending_.empty();
        while (!pending_.empty()) {
            const auto step = std::move(pending_.front());
            pending_.pop_front();
            step();
        }
        return worked;
    }

    void add(std::string site, WebsiteDataTypes types)
    {
        records.push_back({.dataTypes = types, .handle = std::make_shared<std::string>(std::move(site))});
    }

    std::vector<WebsiteDataRecord> records;

private:
    std::deque<std::function<void()>> pending_;
};

} // namespace orken::simulated
