#include "linux/gtk/AlertWidgets.h"

#include "linux/loop/GObjectPtr.h"

#include <string>

namespace orken::desktop {

namespace {

constexpr int kMargin = 20;
constexpr int kIconSize = 48;
constexpr int kTextWidthInCharacters = 48;
/// A longer text scrolls, so that the buttons stay on the screen.
constexpr int kMaximumTextHeight = 360;
/// In characters. A text from outside may be of any length, and the layout of megabytes takes minutes.
constexpr glong kLongestText = 2000;

/// Valid, and not longer than can be shown.
std::string shownText(const std::string& text)
{
    const GText valid(g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())));
    if (g_utf8_strlen(valid.get(), -1) <= kLongestText) {
        return valid.get();
    }
    return std::string(valid.get(), g_utf8_offset_to_pointer(valid.get(), kLongestText)) + "…";
}

const char* iconName(AlertStyle style)
{
    return style == AlertStyle::informational ? "dialog-information" : "dialog-warning";
}

GtkWidget* makeLabel(const std::string& text, const char* cssClass)
{
    GtkWidget* label = gtk_label_new(shownText(text).c_str());
    gtk_label_set_wrap(GTK_LABEL(label), TRUE);
    gtk_label_set_wrap_mode(GTK_LABEL(label), PANGO_WRAP_WORD_CHAR);
    gtk_label_set_max_width_chars(GTK_LABEL(label), kTextWidthInCharacters);
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    if (cssClass) {
        gtk_widget_add_css_class(label, cssClass);
    }
    return label;
}

GtkWidget* makeTexts(const Alert& alert)
{
    GtkWidget* texts = gtk_box_new(GTK_ORIENTATION_VERTICAL, 8);
    gtk_widget_set_hexpand(texts, TRUE);
    gtk_box_append(GTK_BOX(texts), makeLabel(alert.title, "heading"));
    if (!alert.message.empty()) {
        GtkWidget* scroller = gtk_scrolled_window_new();
        gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(scroller), GTK_POLICY_NEVER, GTK_POLICY_AUTOMATIC);
        gtk_scrolled_window_set_propagate_natural_height(GTK_SCROLLED_WINDOW(scroller), TRUE);
        gtk_scrolled_window_set_propagate_natural_width(GTK_SCROLLED_WINDOW(scroller), TRUE);
        gtk_scrolled_window_set_max_content_height(GTK_SCROLLED_WINDOW(scroller), kMaximumTextHeight);
        GtkWidget* label = makeLabel(alert.message, nullptr);
        gtk_scrolled_window_set_child(GTK_SCROLLED_WINDOW(scroller), label);
        int height = 0;
        gtk_widget_measure(label, GTK_ORIENTATION_VERTICAL, -1, nullptr, &height, nullptr, nullptr);
        // The Tab key passes over a text that is seen whole.
        gtk_widget_set_can_focus(scroller, height > kMaximumTextHeight);
        gtk_box_append(GTK_BOX(texts), scroller);
    }
    return texts;
}

struct Press {
    std::function<void(std::size_t)> answer;
    std::size_t index;
};

GtkWidget* makeButton(const std::string& title, std::size_t index, const std::function<void(std::size_t)>& answer)
{
    GtkWidget* button = gtk_button_new_with_label(title.c_str());
    auto pressed = +[](GtkButton*, gpointer data) {
        // The answer may destroy the window and this closure with it.
        const Press press = *static_cast<Press*>(data);
        press.answer(press.index);
    };
    auto destroy = +[](gpointer data, GClosure*) { delete static_cast<Press*>(data); };
    g_signal_connect_data(button, "clicked", G_CALLBACK(pressed), new Press{answer, index}, destroy, GConnectFlags(0));
    return button;
}

} // namespace

GtkWindow* makeAlertWindow()
{
    auto* window = GTK_WINDOW(gtk_window_new());
    gtk_window_set_modal(window, TRUE);
    gtk_window_set_deletable(window, FALSE);
    gtk_window_set_resizable(window, FALSE);
    auto refuse = +[](GtkWindow*, gpointer) -> gboolean { return TRUE; };
    g_signal_connect(window, "close-request", G_CALLBACK(refuse), nullptr);
    return window;
}

void fillAlertWindow(GtkWindow* window, const Alert& alert, const std::function<void(std::size_t)>& answer)
{
    GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, kMargin);
    GtkWidget* icon = gtk_image_new_from_icon_name(iconName(alert.style));
    gtk_image_set_pixel_size(GTK_IMAGE(icon), kIconSize);
    gtk_widget_set_valign(icon, GTK_ALIGN_START);
    gtk_box_append(GTK_BOX(row), icon);
    gtk_box_append(GTK_BOX(row), makeTexts(alert));

    GtkWidget* buttons = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 12);
    gtk_widget_set_halign(buttons, GTK_ALIGN_END);
    for (std::size_t index = 0; index < alert.buttons.size(); ++index) {
        GtkWidget* button = makeButton(alert.buttons[index].title, index, answer);
        gtk_box_prepend(GTK_BOX(buttons), button);
        if (index == 0) {
            gtk_widget_add_css_class(button, "suggested-action");
            gtk_window_set_default_widget(window, button);
        }
    }

    GtkWidget* column = gtk_box_new(GTK_ORIENTATION_VERTICAL, kMargin);
    gtk_widget_set_margin_top(column, kMargin);
    gtk_widget_set_margin_bottom(column, kMargin);
    gtk_widget_set_margin_start(column, kMargin);
    gtk_widget_set_margin_end(column, kMargin);
    gtk_box_append(GTK_BOX(column), row);
    gtk_box_append(GTK_BOX(column), buttons);
    // Otherwise the window would look for the next one after a button that goes, and not at the default button.
    gtk_window_set_focus(window, nullptr);
    gtk_window_set_child(window, column);
    const std::string title = shownText(alert.title);
    gtk_window_set_title(window, title.c_str());
    gtk_window_set_focus(window, gtk_window_get_default_widget(window));
    // The text is what a screen reader says first.
    gtk_accessible_update_property(GTK_ACCESSIBLE(window), GTK_ACCESSIBLE_PROPERTY_LABEL, title.c_str(),
                                   GTK_ACCESSIBLE_PROPERTY_DESCRIPTION, shownText(alert.message).c_str(), -1);
}

} // namespace orken::desktop
