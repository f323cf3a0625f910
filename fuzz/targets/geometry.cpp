#include "../Target.h"

#include "browser/PageScripts.h"
#include "foundation/Decimal.h"
#include "foundation/Json.h"
#include "session/WatermarkMovement.h"
#include "simulated/SimulatedDesktop.h"

#include <cmath>
#include <cstdlib>

// What a page's geometry script came to, up to the place of the text over the video.

namespace orken::fuzz {

namespace {

struct Bed {
    simulated::SimulatedDesktop desktop;
    WindowControl windowControl{desktop.windows, desktop.notifications, desktop.keyMonitors, desktop.console};
    OtherApplications others{{desktop.runningApplications, desktop.alerts, desktop.application, desktop.console},
                             "com.orken.test"};
    PeriodicCheck check{{desktop.loop, desktop.loop, windowControl, others}};
    PageValues values{.videoXPosition = 1, .videoYPosition = 2, .videoMaxWidth = 3, .videoMaxHeight = 4};
    PageScripts scripts{{desktop.console, desktop.loop, check}, values};
    State<Point> position{{}, Point{}};
    std::shared_ptr<WatermarkMovement> movement = std::make_shared<WatermarkMovement>(
        position, values,
        WatermarkMovement::Ports{desktop.loop, desktop.loop, desktop.screens, desktop.random, desktop.console});
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
    bed.scripts.handleVideoGeometry(std::optional<ScriptValue>(ScriptText(std::string(input))));
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
