#include "linux/applications/InstalledPrograms.h"

#include <gio/gdesktopappinfo.h>

#include <string_view>

namespace orken::desktop {

namespace {

std::string lowerCase(const std::string& text)
{
    return GText(g_ascii_strdown(text.c_str(), -1)).get();
}

std::string idOfFileManager()
{
    const auto program = GObjectPtr<GAppInfo>::adopt(g_app_info_get_default_for_type("inode/directory", FALSE));
    const char* id = program ? g_app_info_get_id(program.get()) : nullptr;
    return id ? id : "";
}

} // namespace

InstalledPrograms::InstalledPrograms()
    : monitor_(GObjectPtr<GAppInfoMonitor>::adopt(g_app_info_monitor_get())),
      changed_(g_signal_connect(monitor_.get(), "changed", G_CALLBACK(+[](GAppInfoMonitor*, gpointer programs) {
                                    static_cast<InstalledPrograms*>(programs)->isRead_ = false;
                                }),
                                this))
{
}

InstalledPrograms::~InstalledPrograms()
{
    g_signal_handler_disconnect(monitor_.get(), changed_);
}

std::optional<InstalledProgram> InstalledPrograms::find(const ClientWindow& window)
{
    if (!isRead_) {
        read();
    }
    for (const auto* programs : {&byClass_, &byName_}) {
        for (const std::string* name : {&window.className, &window.instanceName}) {
            const auto place = programs->find(lowerCase(*name));
            if (!name->empty() && place != programs->end()) {
                return place->second;
            }
        }
    }
    return std::nullopt;
}

void InstalledPrograms::read()
{
    constexpr std::string_view kSuffix = ".desktop";
    isRead_ = true;
    byClass_.clear();
    byName_.clear();
    const std::string fileManager = idOfFileManager();
    GList* all = g_app_info_get_all();
    for (GList* link = all; link; link = link->next) {
        auto* program = G_APP_INFO(link->data);
        const char* id = g_app_info_get_id(program);
        if (!id) {
            continue;
        }
        std::string name(id);
        // Editors and browsers can be told to open folders, too.
        const char* categories = g_desktop_app_info_get_categories(G_DESKTOP_APP_INFO(program));
        const bool managesFiles =
            categories && std::string_view(categories).find("FileManager") != std::string_view::npos;
        const InstalledProgram described{.identifier = name,
                                         .localizedName = g_app_info_get_name(program),
                                         .isFileManager = managesFiles && name == fileManager};
        if (const char* windowClass = g_desktop_app_info_get_startup_wm_class(G_DESKTOP_APP_INFO(program))) {
            byClass_.emplace(lowerCase(windowClass), described);
        }
        if (name.ends_with(kSuffix)) {
            name.resize(name.size() - kSuffix.size());
        }
        byName_.emplace(lowerCase(name), described);
    }
    g_list_free_full(all, g_object_unref);
}

} // namespace orken::desktop
