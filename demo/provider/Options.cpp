#include "provider/Options.h"

#include "provider/Failure.h"
#include "provider/Number.h"

#include <functional>
#include <map>

namespace orken::demo {

namespace {

using Apply = std::function<void(Options&, const std::string& value)>;

std::filesystem::path absolutePath(const std::string& value)
{
    if (value.empty()) {
        throw Failure("a path must not be empty");
    }
    return std::filesystem::absolute(value);
}

std::uint16_t portOf(const std::string& value)
{
    const auto port = wholeNumber(value, 65535);
    if (!port) {
        throw Failure("--port takes a number from 0 to 65535, not \"" + value + "\"");
    }
    return static_cast<std::uint16_t>(*port);
}

void applyFirstPage(Options& options, const std::string& value)
{
    if (!value.starts_with('/')) {
        throw Failure("--first-page takes a path, not \"" + value + "\"");
    }
    options.firstPage = value;
}

void applyAnimation(Options& options, const std::string& value)
{
    if (!animation(value)) {
        throw Failure("--animation takes one of " + animationNames() + ", not \"" + value + "\"");
    }
    options.animation = value;
}

void applyEcho(Options& options, const std::string& value)
{
    static const std::map<std::string_view, EchoMode> kModes = {
        {"ok", EchoMode::ok},         {"empty", EchoMode::empty},   {"blank", EchoMode::blank},
        {"binary", EchoMode::binary}, {"refuse", EchoMode::refuse}, {"error500", EchoMode::error500},
    };
    static constexpr std::string_view kSlow = "slow:";
    if (const auto mode = kModes.find(value); mode != kModes.end()) {
        options.echo = mode->second;
        return;
    }
    const auto delay = value.starts_with(kSlow) ? seconds(value.substr(kSlow.size())) : std::nullopt;
    if (!delay) {
        throw Failure("--echo takes ok, empty, blank, binary, slow:SECONDS, refuse or error500, not \"" + value + "\"");
    }
    options.echo = EchoMode::slow;
    options.echoDelay = *delay;
}

const std::map<std::string, Apply>& optionsWithValue()
{
    static const std::map<std::string, Apply> kOptions = {
        {"--ready-file", [](Options& o, const std::string& value) { o.readyFile = absolutePath(value); }},
        {"--log", [](Options& o, const std::string& value) { o.log = absolutePath(value); }},
        {"--certificates", [](Options& o, const std::string& value) { o.certificates = absolutePath(value); }},
        {"--port", [](Options& o, const std::string& value) { o.port = portOf(value); }},
        {"--first-page", applyFirstPage},
        {"--required-version", [](Options& o, const std::string& value) { o.requiredVersion = value; }},
        {"--settings-file", [](Options& o, const std::string& value) { o.settingsFile = absolutePath(value); }},
        {"--animation", applyAnimation},
        {"--echo", applyEcho},
    };
    return kOptions;
}

void require(const std::filesystem::path& path, const char* option)
{
    if (path.empty()) {
        throw Failure(std::string(option) + " is missing");
    }
}

} // namespace

std::string_view usage()
{
    return "usage: orken-demo-provider --ready-file PATH --log PATH --certificates DIR\n"
           "         [--port N]                 0 lets the system choose; default 8443, or any when that is taken\n"
           "         [--first-page PATH]        where signing in leads to; default the login page\n"
           "         [--required-version TEXT]  macVersion of the settings document; default 1.0\n"
           "         [--settings-file PATH]     bytes of the settings document, read at every request\n"
           "         [--animation NAME]         the waiting animation, good or bad; default good\n"
           "         [--echo MODE]              ok, empty, blank, binary, slow:SECONDS, refuse, error500\n"
           "         [--with-parent]            end when the parent process ends\n";
}

Options parseOptions(const std::vector<std::string>& arguments)
{
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        if (name == "--with-parent") {
            options.parent = Parent::follow;
            continue;
        }
        const auto option = optionsWithValue().find(name);
        if (option == optionsWithValue().end()) {
            throw Failure("unknown argument \"" + name + "\"");
        }
        if (++i == arguments.size()) {
            throw Failure(name + " needs a value");
        }
        option->second(options, arguments[i]);
    }
    require(options.readyFile, "--ready-file");
    require(options.log, "--log");
    require(options.certificates, "--certificates");
    if (options.settingsFile && !std::filesystem::is_regular_file(*options.settingsFile)) {
        throw Failure("--settings-file: no such file: " + options.settingsFile->string());
    }
    return options;
}

} // namespace orken::demo
