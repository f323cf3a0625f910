#pragma once

#include "platform/BundleInfo.h"
#include "platform/Clock.h"
#include "platform/Console.h"
#include "platform/CookieStorage.h"
#include "platform/HardwareRegistry.h"
#include "platform/RandomNumbers.h"
#include "platform/RunningApplications.h"
#include "platform/Screens.h"
#include "platform/Workspace.h"
#include "simulated/Part.h"
#include "simulated/Require.h"

#include <map>
#include <optional>
#include <string>

namespace orken::simulated {

class SimulatedConsole final : public Console, Part {
public:
    using Part::Part;

    void printLine(std::string_view line) override { journal_.add("print " + std::string(line)); }
};

/// Stands still until it is set.
struct SimulatedClock final : Clock {
    [[nodiscard]] std::chrono::system_clock::time_point now() const override { return time; }

    /// 2026-11-16 21:03:25.123 UTC.
    std::chrono::system_clock::time_point time{std::chrono::milliseconds{1794863005123}};
};

/// Answers the place in the range that the test has chosen.
struct SimulatedRandom final : RandomNumbers {
    [[nodiscard]] double between(double low, double high) override
    {
        require(low <= high, "an empty range of random numbers");
        return low + part * (high - low);
    }

    /// From 0 to 1.
    double part = 0;
};

struct SimulatedScreens final : Screens {
    [[nodiscard]] std::optional<Rect> mainScreenFrame() const override { return frame; }

    std::optional<Rect> frame = Rect{.width = 1920, .height = 1080};
};

class SimulatedWorkspace final : public Workspace, Part {
public:
    using Part::Part;

    bool open(const std::string& url) override
    {
        journal_.add("open " + url);
        return true;
    }

    void activateFileViewer(const std::filesystem::path& file) override { journal_.add("reveal " + file.string()); }
};

class SimulatedApplications final : public RunningApplications, Part {
public:
    using Part::Part;

    [[nodiscard]] std::vector<RunningApplication> all() override { return running_; }

    [[nodiscard]] bool isCurrent(const RunningApplication& application) const override
    {
        return application.handle == running_.front().handle;
    }

    bool terminate(const RunningApplication& application) override
    {
        journal_.add("quit " + application.localizedName.value_or("?"));
        return true;
    }

    void add(std::optional<std::string> name, std::optional<std::string> identifier = std::nullopt)
    {
        running_.push_back({std::move(identifier), std::move(name), nullptr});
    }

private:
    /// The client first.
    std::vector<RunningApplication> running_{{"com.orken.test", "ORKEN", std::make_shared<char>()}};
};

struct SimulatedHardware final : HardwareRegistry {
    [[nodiscard]] std::optional<std::string> platformExpertSerial() const override { return serial; }

    std::optional<std::string> serial = "C02ABC123XYZ\n";
};

struct SimulatedBundle final : BundleInfo {
    [[nodiscard]] InfoValue infoValue(const std::string& key) const override
    {
        const auto place = values.find(key);
        return place == values.end() ? InfoValue() : place->second;
    }

    [[nodiscard]] std::filesystem::path resourcesFolder() const override { return "/resources"; }

    std::map<std::string, InfoValue> values{{kBundleShortVersionKey, InfoValue("2.1")}};
};

class SimulatedCookies final : public CookieStorage, Part {
public:
    using Part::Part;

    void removeAllCookies() override { journal_.add("remove cookies"); }
};

} // namespace orken::simulated
