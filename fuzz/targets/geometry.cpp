#include "../Target.h"

#include "browser/BrowserServices.h"
#include "foundation/Decimal.h"
#include "foundation/Json.h"
#include "session/WatermarkMovement.h"
#include "simulated/SimulatedDesktop.h"
#include "simulated/TestEndpoints.h"

#include <cmath>
#include <cstdlib>

// What a page's geometry script came to, up to the place of the text over the video.

namespace orken::fuzz {

namespace {

struct Bed {
    Bed() { values = {.videoXPosition = 1, .videoYPosition = 2, .videoMaxWidth = 3, .videoMaxHeight = 4}; }

    simulated::SimulatedDesktop desktop;
    MachineServices machine{portsOf(desktop), simulated::kEndpoints};
    BrowserServices browser{portsOf(desktop), simulated::kEndpoints, machine};
    PageValues& values = browser.pageValues;
    State<Point> position{{}, Point{}};
    std::shared_ptr<WatermarkMovement> movement =
        std::make_shared<WatermarkMovement>(position, values, watermarkPorts(portsOf(desktop)));
};

bool isUntouched(const PageValues& values)
{
    return values.videoXPosition == 1 && values.videoYPosition == 2 && values.videoMaxWidth == 3 &&
           values.videoMaxHeight == 4;
}

} // namespace

void run(std::string_view input)
{
    Bed bed;
    bed.browser.videoPage.handleVideoGeometry(std::optional<ScriptValue>(ScriptText(std::string(input))));
    const auto numbers = jsonNumbers(input);
    demand((numbers && numbers.value()) || isUntouched(bed.values), "without numbers nothing changes");
    for (const auto& number : {bed.values.videoXPosition, std::optional(bed.values.videoYPosition),
                               bed.values.videoMaxWidth, bed.values.videoMaxHeight}) {
        demand(!number || std::isfinite(*number), "numbers of a page are finite");
        demand(!number || std::strtod(decimalText(*number).c_str(), nullptr) == *number,
               "a number's text reads back as the number");
    }
    for (const double part : {0.0, 1.0}) {
        bed.desktop.random.part = part;
        bed.movement->updateTextPosition();
        const Point place = bed.position.get();
        demand(std::isfinite(place.x) && std::isfinite(place.y), "the text stands somewhere");
        demand(place.x >= 0 && place.x <= bed.desktop.screens.frame->width, "between the sides of the screen");
    }
    for (const std::string& act : bed.desktop.journal.acts()) {
        constexpr std::size_t kLongestLine = 400;
        demand(act.size() < kLongestLine && act.find('\n') == std::string::npos, "one short line is printed");
    }
}

} // namespace orken::fuzz
