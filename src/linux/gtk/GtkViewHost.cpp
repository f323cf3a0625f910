#include "linux/gtk/GtkViewHost.h"

#include "linux/gtk/LayerBox.h"

#include <cassert>

namespace orken::desktop {

namespace {

template <class... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};
template <class... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

} // namespace

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
        std::visit(Overloaded{[&](const mutation::Create& create_) { create(*create_.node, events); },
                              [&](const mutation::Delete& delete_) { destroy(delete_.id); },
                              [&](const mutation::Insert& insert_) { insert(insert_); },
                              [&](const mutation::Remove& remove_) { remove(remove_); },
                              [&](const mutation::Update& update_) { update(update_, events); }},
                   step);
    }
}

void GtkViewHost::create(const RenderNode& node, ViewEvents& events)
{
    widgets_[node.id] = std::make_unique<ViewWidgets>(node, events);
    showAlert(node, events);
}

void GtkViewHost::destroy(NodeId id)
{
    alerts_.erase(id);
    widgets_.erase(id);
}

void GtkViewHost::insert(const mutation::Insert& step)
{
    ViewWidgets& child = *widgets_.at(step.child);
    if (step.parent == kRootContainer) {
        insertWidget(content_, child.outer(), step.index);
    } else {
        widgets_.at(step.parent)->insertChild(child, step.index);
    }
    alignUpwards(child.outer());
}

void GtkViewHost::remove(const mutation::Remove& step)
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

void GtkViewHost::update(const mutation::Update& step, ViewEvents& events)
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
