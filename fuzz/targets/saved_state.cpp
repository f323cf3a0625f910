#include "../Target.h"

#include "foundation/PropertyList.h"
#include "machine/MachineServices.h"
#include "simulated/SimulatedDesktop.h"
#include "simulated/TestEndpoints.h"

#include <limits>

// The counter file among the user's saved states, which any program of the user may have written.

namespace orken::fuzz {

namespace {

const std::filesystem::path kFile =
    "/home/student/Library/Saved Application State/com.orken.test.savedState/restorecount.plist";
constexpr auto kGreatest = std::numeric_limits<std::int64_t>::max();

std::optional<std::int64_t> counterIn(const Bytes& file)
{
    const auto list = readPropertyList(file, "restoreCount");
    return list && list.value() ? list.value()->integer : std::nullopt;
}

std::int64_t raised(std::int64_t count)
{
    return count == kGreatest ? count : count + 1;
}

} // namespace

void run(std::string_view input)
{
    simulated::SimulatedDesktop desktop;
    MachineServices machine(portsOf(desktop), simulated::kEndpoints);
    SavedState& state = machine.savedState;
    desktop.files.addFile(kFile, std::string(input));

    const Bytes before = toBytes(input);
    const auto count = counterIn(before);
    state.updateRestoreCount();
    const Bytes after = desktop.files.contents[kFile];
    if (!count) {
        demand(after == before || counterIn(after) == 0, "without a counter the file stays, or begins anew");
    } else {
        demand(counterIn(after) == raised(*count), "the counter is raised");
    }
    if (after != before) {
        state.updateRestoreCount();
        demand(counterIn(desktop.files.contents[kFile]) == raised(*counterIn(after)), "what was written can be read");
    }
    demand(desktop.files.contents.size() == 1, "nothing else is written");
}

} // namespace orken::fuzz
