#include "linux/gtk/SingleInstance.h"

#include "linux/loop/GObjectPtr.h"

#include <gio/gio.h>

#include <algorithm>
#include <memory>

namespace orken::desktop {

namespace {

using Answer = std::unique_ptr<GVariant, decltype(&g_variant_unref)>;

/// Another process, that is: this one's connection is shared by all that it does.
bool hasOtherOwner(GDBusConnection* bus, const std::string& name)
{
    constexpr const char* kBus = "org.freedesktop.DBus";
    const Answer answer(g_dbus_connection_call_sync(bus, kBus, "/org/freedesktop/DBus", kBus, "GetNameOwner",
                                                    g_variant_new("(s)", name.c_str()), G_VARIANT_TYPE("(s)"),
                                                    G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr),
                        &g_variant_unref);
    const char* owner = nullptr;
    if (answer) {
        g_variant_get(answer.get(), "(&s)", &owner);
    }
    return owner && g_strcmp0(owner, g_dbus_connection_get_unique_name(bus)) != 0;
}

/// Where the toolkit offers an application of this name on the bus.
std::string objectPath(const std::string& identifier)
{
    std::string path = "/" + identifier;
    std::replace(path.begin(), path.end(), '.', '/');
    std::replace(path.begin(), path.end(), '-', '_');
    return path;
}

} // namespace

bool presentRunningInstance(const std::string& identifier)
{
    const auto bus = GObjectPtr<GDBusConnection>::adopt(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    if (!bus || !g_dbus_is_name(identifier.c_str()) || !hasOtherOwner(bus.get(), identifier)) {
        return false;
    }
    g_dbus_connection_call(bus.get(), identifier.c_str(), objectPath(identifier).c_str(), "org.freedesktop.Application",
                           "Activate", g_variant_new("(a{sv})", nullptr), nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, -1,
                           nullptr, nullptr, nullptr);
    g_dbus_connection_flush_sync(bus.get(), nullptr, nullptr);
    return true;
}

} // namespace orken::desktop
