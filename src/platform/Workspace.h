#pragma once

#include "foundation/NonCopyable.h"

#include <filesystem>
#include <string>

namespace orken {

/// What the desktop does for an application outside of its windows. Main thread only.
class Workspace : NonCopyable {
public:
    virtual ~Workspace() = default;

    /// Hands an address to the program that the user has chosen for it, the browser for https. It has been handed over
    /// when this returns, so the application may end at once. False, with nothing else done, when there is no such
    /// program.
    virtual bool open(const std::string& url) = 0;

    /// Asks the file manager to show the folder of this file, an absolute path, with the file selected. Returns at
    /// once; nothing is reported back, and where there is no file manager nothing is shown.
    virtual void activateFileViewer(const std::filesystem::path& file) = 0;
};

} // namespace orken
