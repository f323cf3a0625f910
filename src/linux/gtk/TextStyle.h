#pragma once

#include "view/Content.h"

#include <pango/pango.h>

#include <memory>

namespace orken::desktop {

using TextAttributes = std::unique_ptr<PangoAttrList, decltype(&pango_attr_list_unref)>;

/// Font and colour of a text; the desktop's font size and text scale come on top. Main thread only, after the toolkit
/// has started.
[[nodiscard]] TextAttributes textAttributes(const Modifiers& modifiers);

} // namespace orken::desktop
