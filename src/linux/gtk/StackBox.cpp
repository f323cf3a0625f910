#include "linux/gtk/StackBox.h"

namespace {

struct OrkenStackBox {
    GtkBox parent;
};

struct OrkenStackBoxClass {
    GtkBoxClass parent;
};

G_DEFINE_TYPE(OrkenStackBox, orken_stack_box, GTK_TYPE_BOX)

void orken_stack_box_class_init(OrkenStackBoxClass* stackBoxClass)
{
    GTK_WIDGET_CLASS(stackBoxClass)->contains = [](GtkWidget*, double, double) -> gboolean { return FALSE; };
}

void orken_stack_box_init(OrkenStackBox*) {}

} // namespace

namespace orken::desktop {

GtkWidget* stackBoxNew(GtkOrientation orientation)
{
    return GTK_WIDGET(g_object_new(orken_stack_box_get_type(), "orientation", orientation, nullptr));
}

} // namespace orken::desktop
