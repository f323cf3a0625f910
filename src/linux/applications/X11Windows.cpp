#include "linux/applications/X11Windows.h"

#include "linux/applications/ProcessTree.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <unistd.h>

namespace orken::desktop {

namespace {

using Cookie = xcb_get_property_cookie_t;
using Property = XcbReply<xcb_get_property_reply_t>;

// In units of four bytes.
constexpr std::uint32_t kLongestText = 256;
constexpr std::uint32_t kLongestList = 16384;

// Bits of one item, which tell the kind of a property.
constexpr int kNumbers = 32;

Cookie ask(const X11Connection& connection, xcb_window_t window, xcb_atom_t property, std::uint32_t length)
{
    return xcb_get_property(connection.get(), 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, length);
}

Property take(const X11Connection& connection, Cookie cookie)
{
    return Property(xcb_get_property_reply(connection.get(), cookie, nullptr));
}

/// Empty for a property that is missing or of another kind.
std::span<const std::uint32_t> numbersOf(const Property& property)
{
    if (!property || property->format != kNumbers) {
        return {};
    }
    return {static_cast<const std::uint32_t*>(xcb_get_property_value(property.get())), property->value_len};
}

std::string_view textOf(const Property& property)
{
    if (!property || property->format != 8) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(property.get())), property->value_len};
}

std::optional<std::uint32_t> firstOf(const Property& property)
{
    const auto numbers = numbersOf(property);
    return numbers.empty() ? std::nullopt : std::optional(numbers.front());
}

std::string_view takePart(std::string_view& text)
{
    const std::string_view part = text.substr(0, text.find('\0'));
    text.remove_prefix(std::min(text.size(), part.size() + 1));
    return part;
}

bool isThisMachine(std::string_view machine)
{
    char name[256] = {};
    // Some clients leave the property out; those that run elsewhere never do.
    return machine.empty() || (gethostname(name, sizeof name - 1) == 0 && machine == name);
}

/// The client itself or what started it: these count also when the machine has got another name since their windows
/// were made. Not knowing them would close the session.
bool concernsTheClient(int process)
{
    return process == getpid() || ProcessTree::isAncestor(process, getpid());
}

struct Asked {
    Cookie pid, machine, leader, windowClass, type;
};

Asked askAbout(const X11Connection& connection, xcb_window_t window)
{
    return {.pid = ask(connection, window, connection.atom(X11Atom::wmPid), 1),
            .machine = ask(connection, window, connection.atom(X11Atom::clientMachine), kLongestText),
            .leader = ask(connection, window, connection.atom(X11Atom::clientLeader), 1),
            .windowClass = ask(connection, window, XCB_ATOM_WM_CLASS, kLongestText),
            .type = ask(connection, window, connection.atom(X11Atom::windowType), kLongestText)};
}

ClientWindow describe(const X11Connection& connection, xcb_window_t id, const Asked& asked)
{
    const Property pid = take(connection, asked.pid);
    const Property machine = take(connection, asked.machine);
    const Property leader = take(connection, asked.leader);
    const Property windowClass = take(connection, asked.windowClass);
    const Property type = take(connection, asked.type);

    ClientWindow window{.id = id, .leader = firstOf(leader)};
    const auto process = firstOf(pid);
    const int number = process ? static_cast<int>(*process) : 0;
    if (number > 0 && (isThisMachine(textOf(machine)) || concernsTheClient(number))) {
        window.processIdentifier = number;
    }
    std::string_view classText = textOf(windowClass);
    window.instanceName = takePart(classText);
    window.className = takePart(classText);
    for (const std::uint32_t kind : numbersOf(type)) {
        window.isDesktop |= kind == connection.atom(X11Atom::windowTypeDesktop);
        window.isDock |= kind == connection.atom(X11Atom::windowTypeDock);
    }
    return window;
}

} // namespace

std::optional<X11WindowList> listWindows(X11Connection& connection)
{
    connection.discardEvents();
    const auto root = connection.root();
    const Cookie checkCookie = ask(connection, root, connection.atom(X11Atom::supportingWmCheck), 1);
    const Cookie listCookie = ask(connection, root, connection.atom(X11Atom::clientList), kLongestList);
    const Cookie supportedCookie = ask(connection, root, connection.atom(X11Atom::supported), kLongestList);
    const Property check = take(connection, checkCookie);
    const Property list = take(connection, listCookie);
    const Property supported = take(connection, supportedCookie);
    const auto manager = firstOf(check);
    if (!manager || !list || list->format != kNumbers) {
        return std::nullopt;
    }

    // A manager that has gone leaves its list behind; its own window tells whether it is there.
    const Cookie aliveCookie = ask(connection, *manager, connection.atom(X11Atom::supportingWmCheck), 1);
    const Cookie managerCookie = ask(connection, *manager, connection.atom(X11Atom::wmPid), 1);
    std::vector<Asked> asked;
    for (const xcb_window_t window : numbersOf(list)) {
        asked.push_back(askAbout(connection, window));
    }
    const Property alive = take(connection, aliveCookie);
    const Property managerPid = take(connection, managerCookie);

    X11WindowList result;
    std::size_t at = 0;
    for (const xcb_window_t window : numbersOf(list)) {
        result.windows.push_back(describe(connection, window, asked[at++]));
    }
    if (firstOf(alive) != manager) {
        return std::nullopt;
    }
    if (const auto process = firstOf(managerPid)) {
        result.windowManagerProcess = static_cast<int>(*process);
    }
    const auto names = numbersOf(supported);
    result.managerCloses = std::find(names.begin(), names.end(), connection.atom(X11Atom::closeWindow)) != names.end();
    return result;
}

} // namespace orken::desktop
