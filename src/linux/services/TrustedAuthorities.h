#pragma once

#include "linux/loop/GObjectPtr.h"

#include <gio/gio.h>

#include <optional>
#include <string>

namespace orken::desktop {

/// The certificate authorities of the file, or the system's without one or when it cannot be read (then with a line on
/// standard error): servers in question are then refused rather than believed. Any thread.
///
/// The TLS backend reads its own kind of database anew for every connection, some 140 certificates, before it asks
/// anybody. What is given out here has been read once and is only asked. The first call also puts the system's
/// authorities, in this form, in the place of the backend's default.
[[nodiscard]] GObjectPtr<GTlsDatabase> trustedAuthorities(const std::optional<std::string>& file);

} // namespace orken::desktop
