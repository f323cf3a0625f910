#include "linux/services/LocalFiles.h"

#include "linux/loop/FileDescriptor.h"

#include <glib.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
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

/// Up to the end or until there is more than `limit`; false with `errno` set when reading fails.
bool readAll(int file, std::size_t limit, Bytes& content)
{
    constexpr std::size_t kChunk = 64 * 1024;
    for (;;) {
        const std::size_t size = content.size();
        content.resize(size + kChunk);
        const ssize_t count = ::read(file, content.data() + size, kChunk);
        content.resize(size + (count > 0 ? static_cast<std::size_t>(count) : 0));
        if (count == 0) {
            return true;
        }
        if (count < 0 && errno != EINTR) {
            return false;
        }
        if (content.size() > limit) {
            errno = EFBIG;
            return false;
        }
    }
}

bool writeAll(int file, const Bytes& content)
{
    for (std::size_t done = 0; done < content.size();) {
        const ssize_t written = ::write(file, content.data() + done, content.size() - done);
        if (written == 0) {
            errno = EIO;
        }
        if (written == 0 || (written < 0 && errno != EINTR)) {
            return false;
        }
        done += written > 0 ? static_cast<std::size_t>(written) : 0;
    }
    return true;
}

} // namespace

fs::path LocalFiles::homeDirectory() const
{
    return g_get_home_dir();
}

bool LocalFiles::fileExists(const fs::path& item) const
{
    std::error_code error;
    return fs::exists(item, error);
}

std::vector<fs::path> LocalFiles::cachesDirectories() const
{
    const fs::path directory = g_get_user_cache_dir();
    return directory.is_absolute() ? std::vector{directory} : std::vector<fs::path>{};
}

Outcome<fs::path> LocalFiles::downloadsDirectory()
{
    const char* named = g_get_user_special_dir(G_USER_DIRECTORY_DOWNLOAD);
    const fs::path directory = named ? fs::path(named) : homeDirectory() / "Downloads";
    if (const auto created = createDirectory(directory); !created) {
        return created.error();
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

Outcome<void> LocalFiles::createDirectory(const fs::path& directory)
{
    std::error_code error;
    fs::create_directories(directory, error);
    if (error) {
        return posixError(directory, error);
    }
    return {};
}

Outcome<Bytes> LocalFiles::readFile(const fs::path& file, std::size_t limit) const
{
    const FileDescriptor opened(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!opened) {
        return lastError(file);
    }

    struct stat status {};

    if (::fstat(opened.get(), &status) != 0) {
        return lastError(file);
    }
    if (!S_ISREG(status.st_mode)) {
        // A pipe would wait for its writer, a device might never end.
        errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
        return lastError(file);
    }
    Bytes content;
    if (!readAll(opened.get(), limit, content)) {
        return lastError(file);
    }
    return content;
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
    FileDescriptor opened(::open(file.c_str(), kFlags, kMode));
    // Some file systems tell only at the closing that there was no room.
    if (!opened || !writeAll(opened.get(), content) || !opened.close()) {
        return lastError(file);
    }
    return {};
}

} // namespace orken::desktop
