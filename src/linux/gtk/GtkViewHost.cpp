#include "linux/gtk/GtkViewHost.h"

#include "linux/gtk/LayerBox.h"

namespace orken::desktop {

GtkViewHost::GtkViewHost(GtkWindow* window, WindowAlertGate& alerts)
    : window_(window), alertGate_(alerts), content_(layerBoxNew()), frames_(window)
{
    gtk_window_set_child(window_, content_);
}

GtkViewHost::~GtkViewHost()
{
    alerts_.clear();
    gtk_window_set_child(window_, nullptr);
}

void GtkViewHost::apply(const Mutations& mutations, ViewEvents& events)
{
    for (const Mutation& step : mutations) {
        std::visit([&](const auto& change) { take(change, events); }, step);
    }
}

void GtkViewHost::take(const mutation::Create& step, ViewEvents& events)
{
    widgets_[step.node->id] = std::make_unique<ViewWidgets>(*step.node, events);
    showAlert(*step.node, events);
}

void GtkViewHost::take(const mutation::Delete& step, ViewEvents&)
{
    alerts_.erase(step.id);
    widgets_.erase(step.id);
}

void GtkViewHost::take(const mutation::Insert& step, ViewEvents&)
{
    ViewWidgets& child = *widgets_.at(step.child);
    if (step.parent == kRootContainer) {
        insertWidget(content_, child.outer(), step.index);
    } else {
        widgets_.at(step.parent)->insertChild(child, step.index);
    }
    alignUpwards(child.outer());
}

void GtkViewHost::take(const mutation::Remove& step, ViewEvents&)
{
    ViewWidgets& child = *widgets_.at(step.child);
    GtkWidget* parent = gtk_widget_get_parent(child.outer());
    if (step.parent == kRootContainer) {
        gtk_widget_unparent(child.outer());
    } else {
        widgets_.at(step.parent)->removeChild(child);
    }
    alignUpwards(parent);
}

void GtkViewHost::take(const mutation::Update& step, ViewEvents& events)
{
    ViewWidgets& widgets = *widgets_.at(step.after->id);
    widgets.update(*step.before, *step.after);
    alignUpwards(widgets.outer());
    if (step.before->element.modifiers().alert != step.after->element.modifiers().alert) {
        showAlert(*step.after, events);
    }
}

void GtkViewHost::showAlert(const RenderNode& node, ViewEvents& events)
{
    alerts_.erase(node.id);
    if (const auto& alert = node.element.modifiers().alert) {
        alerts_[node.id] =
            std::make_unique<WindowAlert>(window_, *alert, alertGate_, [&events, id = node.id](std::size_t button) {
                events.alertAnswered(id, button);
            });
    }
}

} // namespace orken::desktop
