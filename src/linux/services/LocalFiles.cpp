#include "linux/services/LocalFiles.h"

#include <glib.h>

#include <cerrno>
#include <system_error>

namespace orken::desktop {

namespace fs = std::filesystem;

namespace {

PlatformError posixError(const fs::path& item, const std::error_code& error)
{
    return platformError("posix", error.value(), item.string(), error.message());
}

} // namespace

std::vector<fs::path> LocalFiles::cachesDirectories() const
{
    const fs::path directory = g_get_user_cache_dir();
    return directory.is_absolute() ? std::vector{directory} : std::vector<fs::path>{};
}

Outcome<std::vector<std::string>> LocalFiles::contentsOfDirectory(const fs::path& directory) const
{
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(directory, error), end; !error && entry != end; entry.increment(error)) {
        names.push_back(entry->path().filename().string());
    }
    if (error) {
        return posixError(directory, error);
    }
    return names;
}

Outcome<void> LocalFiles::removeItem(const fs::path& item)
{
    std::error_code error;
    const auto removed = fs::remove_all(item, error);
    if (!error && removed == 0) {
        error = std::error_code(ENOENT, std::generic_category());
    }
    if (error) {
        return posixError(item, error);
    }
    return {};
}

} // namespace orken::desktop
