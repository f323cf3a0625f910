#pragma once

#include "app/VistroApp.h"
#include "simulated/SimulatedDesktop.h"
#include "simulated/TestEndpoints.h"

#include <gmock/gmock.h>

namespace orken {

using testing::ElementsAre;
using testing::ElementsAreArray;

/// The whole client on a simulated desktop, with an echo server, a login page and something to clean up.
class Client {
public:
    static constexpr const char* kStartTitle = "ORKEN'E Hoşgeldiniz";
    static constexpr const char* kLoginURL = "https://login.example//accounts/login?param=C02ABC123XYZ&xppKey="
                                             "5b2e7a41-93cd-4f08-a6e2-1c7d90b3f584";

    static constexpr const char* kSettings = "https://content.example/settings/xpp.json";

    Client()
    {
        desktop.network.routes[kSettings] = {.body = R"({"macVersion": "2.1"})"};
        desktop.network.routes["https://ip.example/"] = {.body = "203.0.113.7\n", .delay = Seconds{0.2}};
        desktop.browserViews.site = {{kLoginURL, {.title = "Login", .loadTime = Seconds{3}}}};
        desktop.files.addFile("/home/student/.cache/com.orken.test/old");
        desktop.websiteData.add("site.example", 3);
    }

    void launch() { EXPECT_EQ(app.main(), 0); }

    /// The start window with the gate's answer.
    void start()
    {
        launch();
        desktop.loop.run();
        desktop.loop.runBackground();
        desktop.loop.run();
    }

    simulated::SimulatedDesktop desktop;
    VistroApp app{portsOf(desktop), simulated::kEndpoints};
};

/// The acts of a complete clean-up of that client.
inline const std::vector<std::string> kCleanUp{"remove cookies", "remove /home/student/.cache/com.orken.test/old",
                                               "remove data of site.example types 3", "terminated"};

} // namespace orken
