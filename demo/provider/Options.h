#pragma once

#include "provider/Animations.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orken::demo {

/// How the address echo answers.
enum class EchoMode {
    ok,       ///< an address and a line feed
    empty,    ///< no bytes
    blank,    ///< white space and line ends only
    binary,   ///< bytes that are not text, declared as UTF-8
    slow,     ///< as ok, after `Options::echoDelay`
    refuse,   ///< nobody listens at its port
    error500, ///< status 500
};

enum class Parent {
    ignore,
    follow, ///< the provider ends when its parent does
};

struct Options {
    std::filesystem::path readyFile;
    std::filesystem::path log;
    std::filesystem::path certificates;
    /// Absent: `kUsualPort`, or one of the system's choice when that is taken.
    std::optional<std::uint16_t> port;
    /// Where signing in leads to: path and query.
    std::string firstPage = "/accounts/Login?ReturnUrl=%2Fcourse";
    std::string requiredVersion = "1.0";
    /// Takes the place of the settings document with `requiredVersion`; read at every request.
    std::optional<std::filesystem::path> settingsFile;
    /// Name of the one that clients are shown while they wait.
    std::string animation{kGoodAnimation};
    EchoMode echo = EchoMode::ok;
    /// Seconds.
    double echoDelay = 0;
    Parent parent = Parent::ignore;
};

inline constexpr std::uint16_t kUsualPort = 8443;

/// One line per option.
[[nodiscard]] std::string_view usage();

/// Reads the command line (without the program's name). Throws Failure naming what is wrong with it. Paths of the
/// result are absolute.
[[nodiscard]] Options parseOptions(const std::vector<std::string>& arguments);

} // namespace orken::demo
