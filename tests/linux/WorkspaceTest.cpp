#include "linux/services/DesktopWorkspace.h"

#include "linux/loop/GObjectPtr.h"

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

/// The folders of a user who has nothing. Named before main, because the library looks them up once a process.
const fs::path kHome = [] {
    fs::path home = fs::temp_directory_path() / ("orken-files-" + std::to_string(getpid()));
    g_setenv("XDG_DATA_HOME", (home / "share").c_str(), TRUE);
    g_setenv("XDG_CONFIG_HOME", home.c_str(), TRUE);
    return home;
}();

/// On a session bus of the tests' own.
class FileManagerTest : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        fs::create_directories(kHome / "share/applications");
        testBus = GObjectPtr<GTestDBus>::adopt(g_test_dbus_new(G_TEST_DBUS_NONE));
        g_test_dbus_up(testBus.get());
    }

    static void TearDownTestSuite()
    {
        g_test_dbus_stop(testBus.get());
        testBus = {};
        fs::remove_all(kHome);
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

    static inline GObjectPtr<GTestDBus> testBus;
};

TEST_F(FileManagerTest, isAskedToSelectTheFile)
{
    std::string shown;
    const auto connection = GObjectPtr<GDBusConnection>::adopt(g_dbus_connection_new_for_address_sync(
        g_test_dbus_get_bus_address(testBus.get()),
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
    const guint name = g_bus_own_name_on_connection(
        connection.get(), "org.freedesktop.FileManager1", G_BUS_NAME_OWNER_FLAGS_NONE,
        [](GDBusConnection*, const char*, gpointer data) { *static_cast<bool*>(data) = true; }, nullptr, &owned,
        nullptr);
    ASSERT_TRUE(runUntil([&] { return owned; }));

    DesktopWorkspace().activateFileViewer("/home/öğrenci/İndirilenler/ders 1.pdf");
    EXPECT_TRUE(runUntil([&] { return !shown.empty(); }));
    EXPECT_EQ(shown, "(['file:///home/%C3%B6%C4%9Frenci/%C4%B0ndirilenler/ders%201.pdf'], '')");
    g_bus_unown_name(name);
    g_dbus_connection_close_sync(connection.get(), nullptr, nullptr);
    g_dbus_node_info_unref(node);
}

TEST_F(FileManagerTest, withoutOneTheFolderIsOpened)
{
    const fs::path opened = kHome / "opened";
    std::ofstream(kHome / "share/applications/folders.desktop")
        << "[Desktop Entry]\nType=Application\nName=Folders\nMimeType=inode/directory;\nExec=cp -r %f "
        << opened.string() << "\n";
    std::ofstream(kHome / "mimeapps.list") << "[Default Applications]\ninode/directory=folders.desktop\n";
    fs::create_directories(kHome / "İndirilenler");
    std::ofstream(kHome / "İndirilenler/ders.pdf") << "content";

    DesktopWorkspace().activateFileViewer(kHome / "İndirilenler/ders.pdf");
    EXPECT_TRUE(runUntil([&] { return fs::exists(opened / "ders.pdf"); }));
}

} // namespace
} // namespace orken::desktop
