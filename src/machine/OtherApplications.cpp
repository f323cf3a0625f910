#include "machine/OtherApplications.h"

#include "machine/QuitApplication.h"

#include <algorithm>
#include <array>

namespace orken {

namespace {

constexpr std::size_t kMostNames = 5;

constexpr std::array<std::string_view, 3> kNeverOffered{"com.apple.finder", "com.apple.dock", "com.apple.Spotlight"};

constexpr std::array<std::string_view, 7> kNeverAsked{"com.apple.finder",         "com.apple.dock",
                                                      "com.apple.systemuiserver", "com.apple.WindowServer",
                                                      "com.apple.loginwindow",    "com.apple.wallpaper.agent",
                                                      "com.apple.Spotlight"};

std::string listText(const std::vector<RunningApplication>& applications)
{
    std::string text;
    std::size_t count = 0;
    for (const RunningApplication& application : applications) {
        if (!application.localizedName) {
            continue;
        }
        if (count == kMostNames) {
            return text + "\n...";
        }
        text += (count++ == 0 ? "" : "\n") + *application.localizedName;
    }
    return text;
}

} // namespace

bool OtherApplications::isClosable(const RunningApplication& application) const
{
    return !isKept(application, kNeverOffered);
}

bool OtherApplications::isKept(const RunningApplication& application,
                               std::span<const std::string_view> identifiers) const
{
    const auto& own = application.bundleIdentifier;
    const bool isNamed = own && (*own == bundleIdentifier_ ||
                                 std::find(identifiers.begin(), identifiers.end(), *own) != identifiers.end());
    return isNamed || ports_.runningApplications.isCurrent(application);
}

void OtherApplications::closeOtherApplications()
{
    auto candidates = ports_.runningApplications.all();
    std::erase_if(candidates, [this](const RunningApplication& candidate) { return !isClosable(candidate); });
    if (candidates.empty()) {
        ports_.console.printLine("Kapatılacak uygulama yok.");
        return;
    }
    const int answer = ports_.alerts.runModal(
        {.title = "Devam edebilmek için aşağıdaki açık uygulamalar kapatılacak, onaylıyor musunuz?",
         .message = "Açık olan uygulamalar:\n" + listText(candidates),
         .style = AlertStyle::warning,
         .buttons = {{.title = "Evet"}, {.title = "Hayır"}}});
    if (answer != kAlertFirstButtonReturn) {
        quitApplication(ports_.application);
        return;
    }
    for (const RunningApplication& candidate : candidates) {
        (void)ports_.runningApplications.terminate(candidate);
    }
}

void OtherApplications::terminateOtherApplications()
{
    for (const RunningApplication& application : ports_.runningApplications.all()) {
        if (!isKept(application, kNeverAsked)) {
            (void)ports_.runningApplications.terminate(application);
        }
    }
}

} // namespace orken
