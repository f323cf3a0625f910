#include "linux/services/DesktopWorkspace.h"

#include "linux/loop/AsyncReply.h"
#include "linux/loop/GObjectPtr.h"
#include "linux/services/StandardConsole.h"

#include <gio/gio.h>

#include <array>
#include <string>
#include <utility>

namespace orken::desktop {

namespace {

using Path = std::filesystem::path;

// Starting a file manager takes a while on a busy machine; the call waits for it without holding anything up.
constexpr int kPatienceMilliseconds = 30000;

GText uriOf(const Path& path)
{
    return GText(g_filename_to_uri(path.c_str(), nullptr, nullptr));
}

void reportNotShown(const Path& file, const GError* error)
{
    reportDiagnostic("orken: no file manager could be opened for " + file.string() +
                     (error ? std::string(": ") + error->message : std::string()));
}

void openFolder(const Path& file)
{
    const GText folder = uriOf(file.parent_path());
    GError* error = nullptr;
    if (!folder || !g_app_info_launch_default_for_uri(folder.get(), nullptr, &error)) {
        const GErrorPtr owned(error);
        reportNotShown(file, error);
    }
}

void showInFileManager(const GObjectPtr<GDBusConnection>& bus, const Path& file)
{
    const GText uri = uriOf(file);
    if (!bus || !uri) {
        openFolder(file);
        return;
    }
    const std::array<const char*, 2> uris{uri.get(), nullptr};
    constexpr const char* kNoStartupId = "";
    auto answered = [bus, file](GAsyncResult* result) {
        if (GVariant* reply = g_dbus_connection_call_finish(bus.get(), result, nullptr)) {
            g_variant_unref(reply);
        } else {
            openFolder(file);
        }
    };
    g_dbus_connection_call(bus.get(), "org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
                           "org.freedesktop.FileManager1", "ShowItems",
                           g_variant_new("(^ass)", uris.data(), kNoStartupId), nullptr, G_DBUS_CALL_FLAGS_NONE,
                           kPatienceMilliseconds, nullptr, AsyncReply::call, AsyncReply::of(std::move(answered)));
}

} // namespace

bool DesktopWorkspace::open(const std::string& url)
{
    // Not the asynchronous launcher: it would die with a process that ends right after this.
    GError* error = nullptr;
    if (g_app_info_launch_default_for_uri(url.c_str(), nullptr, &error)) {
        return true;
    }
    reportDiagnostic(std::string("orken: no program could be opened for ") + url + ": " + GErrorPtr(error)->message);
    return false;
}

void DesktopWorkspace::activateFileViewer(const Path& file)
{
    g_bus_get(G_BUS_TYPE_SESSION, nullptr, AsyncReply::call, AsyncReply::of([file](GAsyncResult* result) {
                  showInFileManager(GObjectPtr<GDBusConnection>::adopt(g_bus_get_finish(result, nullptr)), file);
              }));
}

} // namespace orken::desktop
