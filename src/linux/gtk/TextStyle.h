#pragma once

#include "view/Style.h"

#include <pango/pango.h>

#include <memory>
#include <optional>

namespace orken::desktop {

using TextAttributes = std::unique_ptr<PangoAttrList, decltype(&pango_attr_list_unref)>;

/// Of a text in this role and colour (absent: the theme's); the desktop's font size and text scale come on top. Main
/// thread only, after the toolkit has started.
[[nodiscard]] TextAttributes textAttributes(Font font, const std::optional<Color>& color);

} // namespace orken::desktop
