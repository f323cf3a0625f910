#include "linux/applications/SystemComponents.h"

#include <algorithm>
#include <array>
#include <utility>

namespace orken::desktop {

namespace {

using Component = SystemComponent;

/// Window classes in lower case. Ordered by what they do; the order has no meaning.
constexpr std::pair<std::string_view, Component> kComponents[] = {
    {"albert", Component::search},
    {"catfish", Component::search},
    {"gnome-do", Component::search},
    {"krunner", Component::search},
    {"kupfer", Component::search},
    {"mate-panel-run-dialog", Component::search},
    {"rofi", Component::search},
    {"synapse", Component::search},
    {"ulauncher", Component::search},
    {"xfce4-appfinder", Component::search},

    {"blueman-applet", Component::settings},
    {"cinnamon-settings-daemon", Component::settings},
    {"dunst", Component::settings},
    {"gnome-settings-daemon", Component::settings},
    {"kded5", Component::settings},
    {"mate-notification-daemon", Component::settings},
    {"mate-power-manager", Component::settings},
    {"mate-settings-daemon", Component::settings},
    {"nm-applet", Component::settings},
    {"notify-osd", Component::settings},
    {"xfce4-notifyd", Component::settings},
    {"xfce4-power-manager", Component::settings},
    {"xfsettingsd", Component::settings},

    {"awesome", Component::windowServer},
    {"cinnamon", Component::windowServer},
    {"compiz", Component::windowServer},
    {"compton", Component::windowServer},
    {"enlightenment", Component::windowServer},
    {"fluxbox", Component::windowServer},
    {"gnome-shell", Component::windowServer},
    {"i3", Component::windowServer},
    {"icewm", Component::windowServer},
    {"jwm", Component::windowServer},
    {"kwin", Component::windowServer},
    {"kwin_x11", Component::windowServer},
    {"marco", Component::windowServer},
    {"metacity", Component::windowServer},
    {"muffin", Component::windowServer},
    {"mutter", Component::windowServer},
    {"openbox", Component::windowServer},
    {"picom", Component::windowServer},
    {"plasmashell", Component::windowServer},
    {"xfwm4", Component::windowServer},

    {"cinnamon-screensaver", Component::sessionManager},
    {"cinnamon-session", Component::sessionManager},
    {"gdm", Component::sessionManager},
    {"gnome-screensaver", Component::sessionManager},
    {"gnome-session", Component::sessionManager},
    {"i3lock", Component::sessionManager},
    {"ksmserver", Component::sessionManager},
    {"kscreenlocker_greet", Component::sessionManager},
    {"light-locker", Component::sessionManager},
    {"lightdm", Component::sessionManager},
    {"lxpolkit", Component::sessionManager},
    {"lxqt-policykit-agent", Component::sessionManager},
    {"lxqt-session", Component::sessionManager},
    {"lxsession", Component::sessionManager},
    {"mate-screensaver", Component::sessionManager},
    {"mate-session", Component::sessionManager},
    {"polkit-gnome-authentication-agent-1", Component::sessionManager},
    {"polkit-kde-authentication-agent-1", Component::sessionManager},
    {"polkit-mate-authentication-agent-1", Component::sessionManager},
    {"sddm", Component::sessionManager},
    {"slock", Component::sessionManager},
    {"xfce-polkit", Component::sessionManager},
    {"xfce4-screensaver", Component::sessionManager},
    {"xfce4-session", Component::sessionManager},
    {"xscreensaver", Component::sessionManager},
    {"xsecurelock", Component::sessionManager},

    {"komorebi", Component::wallpaper},
    {"nitrogen", Component::wallpaper},
    {"variety", Component::wallpaper},
    {"xwinwrap", Component::wallpaper},

    {"fcitx", Component::indispensable},
    {"fcitx5", Component::indispensable},
    {"florence", Component::indispensable},
    {"gcin", Component::indispensable},
    {"hime", Component::indispensable},
    {"ibus", Component::indispensable},
    {"ibus-extension-gtk3", Component::indispensable},
    {"ibus-ui-gtk3", Component::indispensable},
    {"kmag", Component::indispensable},
    {"kmouth", Component::indispensable},
    {"kvkbd", Component::indispensable},
    {"magnus", Component::indispensable},
    {"matchbox-keyboard", Component::indispensable},
    {"mousetweaks", Component::indispensable},
    {"onboard", Component::indispensable},
    {"orca", Component::indispensable},
    {"scim", Component::indispensable},
    {"uim", Component::indispensable},
    {"virtual-magnifying-glass", Component::indispensable},
    {"vmg", Component::indispensable},
    {"xdg-desktop-portal", Component::indispensable},
    {"xdg-desktop-portal-gnome", Component::indispensable},
    {"xdg-desktop-portal-gtk", Component::indispensable},
    {"xdg-desktop-portal-kde", Component::indispensable},
    {"xvkbd", Component::indispensable},
    {"xzoom", Component::indispensable},
};

char lowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

std::optional<SystemComponent> systemComponent(std::string_view windowClass)
{
    const auto* const place =
        std::find_if(std::begin(kComponents), std::end(kComponents), [windowClass](const auto& component) {
            return std::equal(windowClass.begin(), windowClass.end(), component.first.begin(), component.first.end(),
                              [](char c, char lower) { return lowerCase(c) == lower; });
        });
    return place == std::end(kComponents) ? std::nullopt : std::optional(place->second);
}

std::optional<std::string> bundleIdentifierOf(SystemComponent component)
{
    switch (component) {
    case Component::fileManagerDesktop:
        return "com.apple.finder";
    case Component::dock:
        return "com.apple.dock";
    case Component::search:
        return "com.apple.Spotlight";
    case Component::settings:
        return "com.apple.systemuiserver";
    case Component::windowServer:
        return "com.apple.WindowServer";
    case Component::sessionManager:
        return "com.apple.loginwindow";
    case Component::wallpaper:
        return "com.apple.wallpaper.agent";
    case Component::indispensable:
        break;
    }
    return std::nullopt;
}

bool isSessionCritical(SystemComponent component)
{
    return component == Component::windowServer || component == Component::sessionManager ||
           component == Component::indispensable;
}

} // namespace orken::desktop
