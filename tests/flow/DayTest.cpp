#include "app/Client.h"

namespace orken {

constexpr const char* kVideo = "https://login.example/playlist/1?hash=B6xUEGCyo/eXAqNDLYnlZw==";
constexpr Seconds kHour{3600};
constexpr Seconds kAway{60};

/// A session with a video on the screen and another application that the periodic check asks to quit.
struct Day : testing::Test {
    Day()
    {
        client.desktop.browserViews.site[kVideo] = {.title = "Ders", .loadTime = Seconds{1}};
        client.start();
        client.desktop.press("Uygulamayı Aç");
        client.desktop.loop.advance(Seconds{10});
        client.desktop.runningApplications.add("Geç");
        EXPECT_TRUE(client.desktop.windows.find("ORKEN")->content().isUsable(*client.desktop.browserViews.latest));
        (void)passHour();
    }

    /// The student leaves the video and comes back, and a monitor changes; answers what the client did.
    std::vector<std::string> passHour()
    {
        client.desktop.browserViews.latest->navigate(Client::kLoginURL);
        client.desktop.notifications.post(NotificationName::applicationDidChangeScreenParameters);
        client.desktop.loop.advance(kAway);
        client.desktop.browserViews.latest->navigate(kVideo);
        client.desktop.loop.advance(kHour - kAway);
        return client.desktop.journal.take();
    }

    static auto count(const std::vector<std::string>& acts, const std::string& prefix)
    {
        return std::count_if(acts.begin(), acts.end(), [&](const auto& act) { return act.starts_with(prefix); });
    }

    Client client;
};

TEST_F(Day, everyHourIsLikeTheOneBefore)
{
    const auto hour = passHour();
    const auto pending = client.desktop.loop.pending();
    EXPECT_EQ(count(hour, "print X Position"), 720);
    EXPECT_GE(count(hour, "quit Geç"), 60);
    constexpr std::chrono::hours kJumps[] = {std::chrono::hours{0}, std::chrono::hours{-100000},
                                             std::chrono::hours{200000}};
    for (int passed = 2; passed < 24; ++passed) {
        client.desktop.clock.time += kJumps[passed % 3];
        ASSERT_TRUE(passHour() == hour) << "hour " << passed;
        ASSERT_EQ(client.desktop.loop.pending(), pending) << "hour " << passed;
    }
}

TEST_F(Day, aMachineThatSleptCatchesUpWithOneTickOfEachTimer)
{
    client.desktop.loop.block(8 * kHour);
    client.desktop.loop.run();
    const auto acts = client.desktop.journal.take();
    EXPECT_EQ(count(acts, "print X Position"), 1);
    EXPECT_EQ(count(acts, "quit Geç"), 1);
    EXPECT_EQ(count(passHour(), "print X Position"), 720);
}

} // namespace orken
