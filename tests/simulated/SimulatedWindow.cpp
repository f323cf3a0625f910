#include "simulated/SimulatedWindow.h"

namespace orken::simulated {

namespace {

constexpr Seconds kTransitionTime{0.05};
constexpr Seconds kTransitionLimit{2.0};

} // namespace

void SimulatedWindow::setTitle(const std::string& title)
{
    title_ = title;
    surroundings_.journal.add("title " + title);
}

void SimulatedWindow::makeKeyAndOrderFront()
{
    visible_ = true;
    surroundings_.registry.gotKeyboard(*this);
    surroundings_.journal.add("show " + title_);
}

void SimulatedWindow::setContentView(std::unique_ptr<View> root)
{
    surroundings_.loop.requireMainThread();
    dropContent();
    surroundings_.journal.add("content " + title_);
    tree_ = ViewTree::make(*content_, std::move(root));
}

void SimulatedWindow::toggleFullScreen()
{
    if (kind_ != WindowKind::application || !visible_) {
        return;
    }
    const auto change = fullScreen_.toggle();
    if (!change) {
        return;
    }
    const bool enters = change == FullScreenChange::willEnter;
    surroundings_.journal.add((enters ? "enter full screen " : "leave full screen ") + title_);
    post(*change);
    surroundings_.loop.later(surroundings_.options.windowManager ? kTransitionTime : kTransitionLimit,
                             [self = shared_from_this(), enters] { self->endTransition(enters); });
}

void SimulatedWindow::endTransition(bool fullScreen)
{
    if (!surroundings_.options.windowManager) {
        fullScreen_.givenUp();
        return;
    }
    for (const FullScreenChange change : fullScreen_.reported(fullScreen)) {
        post(change);
    }
}

void SimulatedWindow::close()
{
    surroundings_.loop.requireMainThread();
    const auto keep = shared_from_this();
    surroundings_.journal.add("close " + title_);
    visible_ = false;
    onClose();
}

void SimulatedWindow::dropContent()
{
    if (tree_) {
        tree_->detach();
        content_ = std::make_unique<StubViewHost>();
        tree_ = nullptr;
    }
}

} // namespace orken::simulated
