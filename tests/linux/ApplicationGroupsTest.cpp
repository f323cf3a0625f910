#include "linux/applications/ApplicationGroups.h"

#include <gmock/gmock.h>

#include <map>

namespace orken::desktop {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kOwn = 50;

/// By the class of their windows.
const std::map<std::string, InstalledProgram> kInstalled{
    {"Editor", {.identifier = "editor.desktop", .localizedName = "Düzenleyici"}},
    {"Files", {.identifier = "files.desktop", .localizedName = "Dosyalar", .isFileManager = true}}};

SessionFacts facts()
{
    return {.ownProcess = kOwn,
            .ownBundleIdentifier = "com.orken.test",
            .windowManagerProcess = 60,
            .startWindow = 900,
            .isAncestor = [](int process) { return process == 40; },
            .isOwn = [](int process) { return process == kOwn || process == 51; },
            .installedProgram =
                [](const ClientWindow& window) {
                    const auto place = kInstalled.find(window.className);
                    return place == kInstalled.end() ? std::nullopt : std::optional(place->second);
                }};
}

/// "identifier|name|windows" of each application.
std::vector<std::string> described(const std::vector<ClientWindow>& windows)
{
    std::vector<std::string> lines;
    for (const auto& [application, process, ids] : groupApplications(windows, facts())) {
        std::string line =
            application.bundleIdentifier.value_or("-") + "|" + application.localizedName.value_or("-") + "|";
        for (const auto id : ids) {
            line += std::to_string(id) + " ";
        }
        lines.push_back(line);
    }
    return lines;
}

TEST(ApplicationGroups, windowsBelongTogetherByProcessThenByLeaderThenAlone)
{
    EXPECT_THAT(described({{.id = 1, .processIdentifier = 7, .className = "Editor"},
                           {.id = 2, .leader = 70, .className = "Old"},
                           {.id = 3},
                           {.id = 4, .processIdentifier = 7, .leader = 70, .className = "Other"},
                           {.id = 5, .leader = 70},
                           {.id = 6}}),
                ElementsAre("editor.desktop|Düzenleyici|1 4 ", "Old|Old|2 5 ", "-|-|3 ", "-|-|6 "));
    EXPECT_THAT(described({}), IsEmpty());
}

TEST(ApplicationGroups, systemComponentsGetTheIdentifiersThatAreKept)
{
    EXPECT_THAT(described({{.id = 1, .processIdentifier = 1, .className = "Desk", .isDesktop = true},
                           {.id = 2, .processIdentifier = 2, .className = "Panel", .isDock = true},
                           {.id = 3, .processIdentifier = 3, .instanceName = "xfce4-appfinder", .className = "Finder"},
                           {.id = 4, .processIdentifier = 4, .className = "Xfce4-Notifyd"},
                           {.id = 5, .processIdentifier = 5, .className = "Nitrogen"},
                           {.id = 6, .processIdentifier = 6, .className = "Files"},
                           {.id = 7, .processIdentifier = kOwn, .className = "Orken"}}),
                ElementsAre("com.apple.finder|Desk|1 ", "com.apple.dock|Panel|2 ", "com.apple.Spotlight|Finder|3 ",
                            "com.apple.systemuiserver|Xfce4-Notifyd|4 ", "com.apple.wallpaper.agent|Nitrogen|5 ",
                            "com.apple.finder|Dosyalar|6 ", "com.orken.test|Orken|7 "));
}

TEST(ApplicationGroups, whatCarriesTheSessionOrTheClientIsInNoList)
{
    EXPECT_THAT(described({{.id = 1, .processIdentifier = 40, .className = "XTerm"},
                           {.id = 2, .processIdentifier = 51, .className = "Helper"},
                           {.id = 3, .processIdentifier = 60, .className = "Unknown"},
                           {.id = 900, .className = "OldTerm"},
                           {.id = 4, .processIdentifier = 4, .className = "KWin_x11"},
                           {.id = 5, .processIdentifier = 5, .className = "xscreensaver"},
                           {.id = 6, .processIdentifier = 6, .className = "Orca"},
                           {.id = 7, .processIdentifier = 7, .className = "Onboard", .isDock = true},
                           {.id = 8, .className = "Ibus-ui-gtk3"},
                           {.id = 9, .processIdentifier = 9, .className = "xdg-desktop-portal-gtk"}}),
                IsEmpty());
}

} // namespace
} // namespace orken::desktop
