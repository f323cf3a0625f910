#include "linux/gtk/TextStyle.h"

#include "linux/loop/GObjectPtr.h"

#include <gtk/gtk.h>

#include <algorithm>
#include <cmath>

namespace orken::desktop {

namespace {

/// How much larger than usual the user wants texts, by the size of the desktop's font. The toolkit applies the
/// desktop's text scale on top.
double fontScale()
{
    constexpr double kUsualPoints = 11;
    gchar* name = nullptr;
    g_object_get(gtk_settings_get_default(), "gtk-font-name", &name, nullptr);
    const GText owned(name);
    PangoFontDescription* font = pango_font_description_from_string(name ? name : "");
    const bool isInPoints = !pango_font_description_get_size_is_absolute(font);
    const double points = isInPoints ? pango_font_description_get_size(font) / static_cast<double>(PANGO_SCALE) : 0;
    pango_font_description_free(font);
    return std::max(points / kUsualPoints, 1.0);
}

/// Size of the text role in typographic points where the desktop's font has its usual size; absent for that font's own
/// size.
std::optional<int> fontPoints(Font font)
{
    switch (font) {
    case Font::body:
        return std::nullopt;
    case Font::headline:
        return 13;
    case Font::caption:
        return 10;
    case Font::largeTitle:
        return 26;
    case Font::system36:
        break;
    }
    return 36;
}

guint16 channel(double value)
{
    return static_cast<guint16>(std::lround(value * 65535));
}

} // namespace

TextAttributes textAttributes(Font font, const std::optional<Color>& color)
{
    TextAttributes attributes(pango_attr_list_new(), pango_attr_list_unref);
    if (const auto points = fontPoints(font)) {
        const auto size = static_cast<int>(std::lround(*points * fontScale() * PANGO_SCALE));
        pango_attr_list_insert(attributes.get(), pango_attr_size_new(size));
    }
    if (font == Font::headline) {
        pango_attr_list_insert(attributes.get(), pango_attr_weight_new(PANGO_WEIGHT_BOLD));
    }
    if (color) {
        pango_attr_list_insert(attributes.get(), pango_attr_foreground_new(channel(color->red), channel(color->green),
                                                                           channel(color->blue)));
        pango_attr_list_insert(attributes.get(), pango_attr_foreground_alpha_new(channel(color->alpha)));
    }
    return attributes;
}

} // namespace orken::desktop
