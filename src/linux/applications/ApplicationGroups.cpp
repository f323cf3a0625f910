#include "linux/applications/ApplicationGroups.h"

#include "linux/applications/SystemComponents.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace orken::desktop {

namespace {

using Windows = std::vector<const ClientWindow*>;

enum class GroupedBy { process, leader, window };

using Key = std::pair<GroupedBy, std::int64_t>;

Key keyOf(const ClientWindow& window)
{
    if (window.processIdentifier) {
        return {GroupedBy::process, *window.processIdentifier};
    }
    return window.leader ? Key{GroupedBy::leader, *window.leader} : Key{GroupedBy::window, window.id};
}

std::vector<Windows> grouped(const std::vector<ClientWindow>& windows)
{
    std::vector<Windows> groups;
    std::map<Key, std::size_t> places;
    for (const ClientWindow& window : windows) {
        const auto [place, isNew] = places.emplace(keyOf(window), groups.size());
        if (isNew) {
            groups.emplace_back();
        }
        groups[place->second].push_back(&window);
    }
    return groups;
}

std::optional<SystemComponent> componentOf(const Windows& windows, const SessionFacts& facts)
{
    const auto process = windows.front()->processIdentifier;
    if (process && process == facts.windowManagerProcess) {
        return SystemComponent::windowServer;
    }
    std::optional<SystemComponent> byKind;
    for (const ClientWindow* window : windows) {
        for (const std::string* name : {&window->className, &window->instanceName}) {
            if (const auto component = systemComponent(*name)) {
                return component;
            }
        }
        if (window->isDesktop || window->isDock) {
            byKind = window->isDesktop ? SystemComponent::fileManagerDesktop : SystemComponent::dock;
        }
    }
    return byKind;
}

bool startedTheClient(const Windows& windows, const SessionFacts& facts)
{
    const auto process = windows.front()->processIdentifier;
    return (process && facts.isAncestor(*process)) ||
           std::any_of(windows.begin(), windows.end(),
                       [&facts](const ClientWindow* window) { return window->id == facts.startWindow; });
}

RunningApplication describe(const Windows& windows, const SessionFacts& facts, std::optional<SystemComponent> component)
{
    RunningApplication application;
    for (const ClientWindow* window : windows) {
        const auto installed = facts.installedProgram(*window);
        if (installed || !window->className.empty()) {
            application.bundleIdentifier = installed ? installed->identifier : window->className;
            application.localizedName = installed ? installed->localizedName : window->className;
            if (installed && installed->isFileManager && !component) {
                component = SystemComponent::fileManagerDesktop;
            }
            break;
        }
    }
    if (windows.front()->processIdentifier == facts.ownProcess) {
        application.bundleIdentifier = facts.ownBundleIdentifier;
    } else if (component) {
        application.bundleIdentifier = bundleIdentifierOf(*component);
    }
    return application;
}

} // namespace

std::vector<ApplicationGroup> groupApplications(const std::vector<ClientWindow>& windows, const SessionFacts& facts)
{
    std::vector<ApplicationGroup> applications;
    for (const Windows& group : grouped(windows)) {
        const auto process = group.front()->processIdentifier;
        const bool isItself = process == facts.ownProcess;
        const auto component = componentOf(group, facts);
        const bool isCritical = component && isSessionCritical(*component);
        const bool isOwnOther = process && !isItself && facts.isOwn(*process);
        if (!isItself && (isCritical || isOwnOther || startedTheClient(group, facts))) {
            continue;
        }
        ApplicationGroup made{.application = describe(group, facts, component), .processIdentifier = process};
        for (const ClientWindow* window : group) {
            made.windows.push_back(window->id);
        }
        applications.push_back(std::move(made));
    }
    return applications;
}

} // namespace orken::desktop
