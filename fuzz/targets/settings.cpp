#include "../Target.h"

#include "app/VersionGate.h"
#include "foundation/Json.h"
#include "foundation/NumericCompare.h"
#include "foundation/Text.h"
#include "simulated/SimulatedDesktop.h"
#include "simulated/TestEndpoints.h"

// The settings document that the version gate reads.

namespace orken::fuzz {

namespace {

constexpr const char* kCurrent = "2.1";

struct Gate {
    explicit Gate(std::string_view document)
    {
        desktop.network.routes[simulated::kEndpoints.settingsURL()] = {.body = std::string(document)};
        desktop.bundle.values[kBundleShortVersionKey] = kCurrent;
        gate.checkAppVersion(message, isShown);
        desktop.loop.run();
        desktop.loop.runBackground();
        desktop.loop.run();
    }

    simulated::SimulatedDesktop desktop;
    MachineServices machine{portsOf(desktop), simulated::kEndpoints};
    VersionGate gate = versionGate(portsOf(desktop), simulated::kEndpoints, machine);
    State<std::string> message{{}, ""};
    State<bool> isShown{{}, false};
};

void checkError(const PlatformError& error)
{
    constexpr std::size_t kLongestReason = 200;
    demand(error.message.size() <= kLongestReason, "what is wrong is said in a few words");
    demand(std::all_of(error.message.begin(), error.message.end(), [](char c) { return c >= ' ' && c <= '~'; }),
           "what is wrong is said in one line of plain text");
}

} // namespace

void run(std::string_view input)
{
    const Gate gate(input);
    const auto version = jsonTextMember(input, "macVersion");
    if (!version) {
        checkError(version.error());
        demand(gate.message.get() == "Servisle bağlantı kurulamadı.", "a document without a version stops the client");
        return;
    }
    demand(isValidUtf8(version.value()), "a version is UTF-8");
    demand(gate.isShown.get() == (numericCompare(kCurrent, version.value()) < 0), "only a newer version is asked for");
    demand(!gate.isShown.get() || gate.message.get().find(version.value()) != std::string::npos,
           "the version asked for is named");
}

} // namespace orken::fuzz
