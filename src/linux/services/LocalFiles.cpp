#include "linux/services/LocalFiles.h"

#include <glib.h>

#include <cerrno>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace orken::desktop {

namespace fs = std::filesystem;

namespace {

PlatformError posixError(const fs::path& item, const std::error_code& error)
{
    return platformError("posix", error.value(), item.string(), error.message());
}

PlatformError lastError(const fs::path& item)
{
    return posixError(item, std::error_code(errno, std::generic_category()));
}

bool writeAll(int file, const Bytes& content)
{
    for (std::size_t done = 0; done < content.size();) {
        const ssize_t written = ::write(file, content.data() + done, content.size() - done);
        if (written < 0 && errno != EINTR) {
            return false;
        }
        done += written > 0 ? static_cast<std::size_t>(written) : 0;
    }
    return true;
}

} // namespace

std::vector<fs::path> LocalFiles::cachesDirectories() const
{
    const fs::path directory = g_get_user_cache_dir();
    return directory.is_absolute() ? std::vector{directory} : std::vector<fs::path>{};
}

Outcome<fs::path> LocalFiles::downloadsDirectory()
{
    const char* named = g_get_user_special_dir(G_USER_DIRECTORY_DOWNLOAD);
    const fs::path directory = named ? fs::path(named) : fs::path(g_get_home_dir()) / "Downloads";
    std::error_code error;
    fs::create_directories(directory, error);
    if (error) {
        return posixError(directory, error);
    }
    return directory;
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

Outcome<void> LocalFiles::writeFile(const fs::path& file, const Bytes& content)
{
    // Non-blocking: a pipe in the file's place is an error, not a wait for its reader.
    constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;
    constexpr mode_t kMode = 0666;
    const int opened = ::open(file.c_str(), kFlags, kMode);
    if (opened < 0) {
        return lastError(file);
    }
    if (!writeAll(opened, content)) {
        auto error = lastError(file);
        ::close(opened);
        return error;
    }
    // Some file systems tell only here that there was no room.
    if (::close(opened) != 0) {
        return lastError(file);
    }
    return {};
}

} // namespace orken::desktop
