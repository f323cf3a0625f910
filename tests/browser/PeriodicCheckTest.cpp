#include "browser/Bed.h"

namespace orken {

TEST(PeriodicCheck, passesShareOneTimer)
{
    BrowserBed bed;
    bed.desktop.runningApplications.add("other");
    for (std::size_t count = 1; count <= 3; ++count) {
        bed.services.periodicCheck.run();
        EXPECT_THAT(bed.desktop.journal.starting("quit other"), testing::SizeIs(count));
    }
    bed.desktop.loop.advance(Seconds{60});
    EXPECT_THAT(bed.desktop.journal.starting("quit other"), testing::SizeIs(3 + 6));
}

} // namespace orken
