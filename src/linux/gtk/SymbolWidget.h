#pragma once

#include <gtk/gtk.h>

#include <string>

namespace orken::desktop {

/// A picture that fills its room. A name that is not known here draws nothing. Main thread only.
[[nodiscard]] GtkWidget* symbolNew(const std::string& name);

void symbolSetColor(GtkWidget* symbol, const GdkRGBA& color);

} // namespace orken::desktop
