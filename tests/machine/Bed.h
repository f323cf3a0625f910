#pragma once

#include "machine/MachineServices.h"
#include "simulated/SimulatedDesktop.h"
#include "simulated/TestEndpoints.h"

#include <gmock/gmock.h>

namespace orken {

using testing::ElementsAre;
using testing::IsEmpty;

struct MachineBed {
    simulated::SimulatedDesktop desktop{{.permanentPanel = false}};
    MachineServices machine{portsOf(desktop), simulated::kEndpoints};
};

} // namespace orken
