#include "session/WatermarkMovement.h"

#include "simulated/SimulatedDesktop.h"

#include <gmock/gmock.h>

namespace orken {
namespace {

struct Bed {
    simulated::SimulatedDesktop desktop;
    PageValues values;
    State<Point> position{{}, Point{}};
    std::shared_ptr<WatermarkMovement> movement =
        std::make_shared<WatermarkMovement>(position, values, watermarkPorts(portsOf(desktop)));
};

TEST(WatermarkMovement, staysWithinTheVideo)
{
    const std::tuple<std::optional<Rect>, std::optional<Size>, std::string> cases[] = {
        {Rect{.width = 1920, .height = 1080}, {}, "X Position: 910.0, Y Position: 1030.0"},
        {Rect{.width = 1920, .height = 1080}, Size{1920, 1080}, "X Position: 1870.0, Y Position: 1030.0"},
        {Rect{.width = 1920, .height = 1080}, Size{960, 540}, "X Position: 910.0, Y Position: 490.0"},
        {Rect{.width = 200, .height = 120}, {}, "X Position: 50.0, Y Position: 70.0"},
        {Rect{.width = 199, .height = 120}, {}, ""},
        {Rect{.width = 1920, .height = 1080}, Size{960, 119}, ""},
        {{}, {}, "Ekran boyutları alınamadı."},
    };
    Bed bed;
    bed.desktop.random.part = 1;
    for (const auto& [screen, video, line] : cases) {
        bed.desktop.screens.frame = screen;
        bed.values.videoMaxWidth = video ? std::optional(video->width) : std::nullopt;
        bed.values.videoMaxHeight = video ? std::optional(video->height) : std::nullopt;
        bed.movement->updateTextPosition();
        EXPECT_EQ(bed.desktop.journal.take(), line.empty() ? std::vector<std::string>{} : std::vector{"print " + line});
    }
    EXPECT_EQ(bed.position.get(), (Point{50, 70}));
}

TEST(WatermarkMovement, aNewStartReplacesTheTimerOfFiveSeconds)
{
    Bed bed;
    for (int start = 0; start < 2; ++start) {
        bed.movement->startTextMovement();
        bed.desktop.loop.advance(Seconds{4.9});
        EXPECT_THAT(bed.desktop.journal.take(), testing::ElementsAre("print FullScreen startTextMovement"));
    }
    bed.desktop.loop.advance(Seconds{10});
    EXPECT_THAT(bed.desktop.journal.take(), testing::SizeIs(2));
}

} // namespace
} // namespace orken
