#pragma once

#include "view/Style.h"

#include <pango/pango.h>

#include <memory>
#include <optional>

namespace orken::desktop {

using TextAttributes = std::unique_ptr<PangoAttrList, decltype(&pango_attr_list_unref)>;

/// The attributes of a text in this role and colour (absent: the theme's). Sizes follow the desktop's font. Main thread
/// only, after the toolkit has started.
[[nodiscard]] TextAttributes textAttributes(Font font, const std::optional<Color>& color);

} // namespace orken::desktop
