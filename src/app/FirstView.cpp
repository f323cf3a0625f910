#include "app/FirstView.h"

#include "app/HostingWindow.h"
#include "machine/QuitApplication.h"

namespace orken {

namespace {

constexpr Rect kSessionContentRect{.x = 20, .y = 20, .width = 640, .height = 480};
constexpr WindowStyleMask kSessionStyleMask =
    windowStyle::kTitled | windowStyle::kClosable | windowStyle::kMiniaturizable | windowStyle::kResizable;

Element wideButton(const std::string& title, std::function<void()> action)
{
    return Button(Text(title).frame({.width = 300, .height = 50}).background(Color::gray()), std::move(action));
}

} // namespace

Element FirstView::body()
{
    return VStack({
        VStack({
                   wideButton("Uygulamayı Aç", [this] { openApplication(); }),
                   wideButton("Uygulamadan Çık", [this] { quitApplication(ports_.application); }),
               })
            .padding()
            .onAppear([this] { ports_.versionGate.checkAppVersion(appVersionMessage_, showUpdateAlert_); })
            .alert(showUpdateAlert_, ports_.versionGate.updateAlert(appVersionMessage_.get(), downloadURL_)),
        Text(versionLine()).font(Font::headline),
        Button("Uygulamayı Sil", [this] { ports_.uninstall.confirmUninstall(); })
            .padding(Edge::top, 20)
            .foreground(Color::destructive()),
    });
}

std::string FirstView::versionLine() const
{
    return "Uygulama sürümü: " + ports_.versionGate.appVersion().value_or("Sürüm alınamadı.");
}

void FirstView::openApplication()
{
    if (const auto window = ports_.windows.key()) {
        window->close();
    }
    ports_.savedState.removeSavedStateDirectory();
    ports_.savedState.updateRestoreCount();
    ports_.otherApplications.closeOtherApplications();
    // A refusal has asked for termination, and that request returns here.
    if (ports_.application.isTerminating()) {
        return;
    }
    openHostingWindow(ports_.windows, "ORKEN", kSessionStyleMask, ports_.makeContentView(), kSessionContentRect);
}

} // namespace orken
