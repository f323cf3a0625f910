#include "linux/services/InstalledFolders.h"

namespace orken::desktop {

namespace {

std::filesystem::path beside(const char* folder)
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return (program.parent_path() / folder).lexically_normal();
}

} // namespace

std::filesystem::path modulesFolder()
{
    return beside("../lib/orken");
}

std::filesystem::path resourcesFolder()
{
    std::error_code error;
    const auto inBundle = beside("../Resources");
    return std::filesystem::is_directory(inBundle, error) ? inBundle : beside("../share/orken");
}

} // namespace orken::desktop
