#include "linux/services/DesktopWorkspace.h"

#include "linux/GObjectPtr.h"

#include <gio/gio.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace orken::desktop {
namespace {

namespace fs = std::filesystem;

constexpr const char* kInterface = "<node><interface name='org.freedesktop.FileManager1'><method name='ShowItems'>"
                                   "<arg type='as' direction='in'/><arg type='s' direction='in'/></method>"
                                   "</interface></node>";

/// A session bus of the test's own, and a home without anything in it.
class FileManagerTest : public testing::Test {
protected:
    FileManagerTest() : bus_(GObjectPtr<GTestDBus>::adopt(g_test_dbus_new(G_TEST_DBUS_NONE)))
    {
        fs::create_directories(home_ / "share/applications");
        g_setenv("XDG_DATA_HOME", (home_ / "share").c_str(), TRUE);
        g_setenv("XDG_CONFIG_HOME", home_.c_str(), TRUE);
        g_test_dbus_up(bus_.get());
    }

    ~FileManagerTest() override
    {
        g_test_dbus_stop(bus_.get());
        fs::remove_all(home_);
    }

    [[nodiscard]] static bool runUntil(const std::function<bool()>& done)
    {
        const gint64 end = g_get_monotonic_time() + 20 * G_TIME_SPAN_SECOND;
        while (!done() && g_get_monotonic_time() < end) {
            g_main_context_iteration(nullptr, FALSE);
            g_usleep(1000);
        }
        return done();
    }

    const fs::path home_ = fs::path(testing::TempDir()) / ("orken-files-" + std::to_string(getpid()));
    GObjectPtr<GTestDBus> bus_;
};

TEST_F(FileManagerTest, isAskedToSelectTheFile)
{
    std::string shown;
    const auto connection = GObjectPtr<GDBusConnection>::adopt(g_dbus_connection_new_for_address_sync(
        g_test_dbus_get_bus_address(bus_.get()),
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
        nullptr, nullptr, nullptr));
    GDBusNodeInfo* node = g_dbus_node_info_new_for_xml(kInterface, nullptr);
    const GDBusInterfaceVTable table{.method_call =
                                         [](GDBusConnection*, const char*, const char*, const char*, const char*,
                                            GVariant* arguments, GDBusMethodInvocation* invocation, gpointer data) {
                                             const GText text(g_variant_print(arguments, FALSE));
                                             *static_cast<std::string*>(data) = text.get();
                                             g_dbus_method_invocation_return_value(invocation, nullptr);
                                         },
                                     .get_property = nullptr,
                                     .set_property = nullptr,
                                     .padding = {}};
    g_dbus_connection_register_object(connection.get(), "/org/freedesktop/FileManager1", node->interfaces[0], &table,
                                      &shown, nullptr, nullptr);
    bool owned = false;
    g_bus_own_name_on_connection(
        connection.get(), "org.freedesktop.FileManager1", G_BUS_NAME_OWNER_FLAGS_NONE,
        [](GDBusConnection*, const char*, gpointer data) { *static_cast<bool*>(data) = true; }, nullptr, &owned,
        nullptr);
    ASSERT_TRUE(runUntil([&] { return owned; }));

    DesktopWorkspace().activateFileViewer("/home/öğrenci/İndirilenler/ders 1.pdf");
    EXPECT_TRUE(runUntil([&] { return !shown.empty(); }));
    EXPECT_EQ(shown, "(['file:///home/%C3%B6%C4%9Frenci/%C4%B0ndirilenler/ders%201.pdf'], '')");
    g_dbus_node_info_unref(node);
}

TEST_F(FileManagerTest, withoutOneTheFolderIsOpened)
{
    const fs::path opened = home_ / "opened";
    std::ofstream(home_ / "share/applications/folders.desktop")
        << "[Desktop Entry]\nType=Application\nName=Folders\nMimeType=inode/directory;\nExec=cp -r %f "
        << opened.string() << "\n";
    std::ofstream(home_ / "mimeapps.list") << "[Default Applications]\ninode/directory=folders.desktop\n";
    fs::create_directories(home_ / "İndirilenler");
    std::ofstream(home_ / "İndirilenler/ders.pdf") << "content";

    DesktopWorkspace().activateFileViewer(home_ / "İndirilenler/ders.pdf");
    EXPECT_TRUE(runUntil([&] { return fs::exists(opened / "ders.pdf"); }));
}

} // namespace
} // namespace orken::desktop
