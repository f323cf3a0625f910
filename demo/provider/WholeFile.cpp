#include "provider/WholeFile.h"

#include "provider/Failure.h"

#include "linux/loop/GObjectPtr.h"

#include <gio/gio.h>

namespace orken::demo {

void writeWholeFile(const std::filesystem::path& path, std::string_view content)
{
    GError* error = nullptr;
    if (!g_file_set_contents_full(path.c_str(), content.data(), static_cast<gssize>(content.size()),
                                  G_FILE_SET_CONTENTS_CONSISTENT, 0644, &error)) {
        const desktop::GErrorPtr owned(error);
        throw Failure(owned->message);
    }
}

std::optional<std::string> readWholeFile(const std::filesystem::path& path)
{
    char* bytes = nullptr;
    gsize size = 0;
    if (!g_file_get_contents(path.c_str(), &bytes, &size, nullptr)) {
        return std::nullopt;
    }
    const desktop::GText owned(bytes);
    return std::string(bytes, size);
}

} // namespace orken::demo
