#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace orken {

/// The "needs update" mark of one view. Marks only schedule a redraw; the tree merges them into one per turn.
/// Main thread only.
class Invalidation {
public:
    void mark()
    {
        dirty_ = true;
        if (onMark_) {
            onMark_();
        }
    }

    [[nodiscard]] bool isDirty() const { return dirty_; }

    void clear() { dirty_ = false; }

    /// What a mark asks for a redraw; it must not keep the tree alive.
    void connect(std::function<void()> onMark) { onMark_ = std::move(onMark); }

private:
    bool dirty_ = false;
    std::function<void()> onMark_;
};

template <class T>
class WeakState;

/// One view-local value. Copies share the value, so a callback may keep one after the view has gone; a write that
/// changes the value marks the view as needing an update, a write of an equal value does nothing. Main thread only.
template <class T>
class State {
public:
    State(std::weak_ptr<Invalidation> owner, T initial)
        : cell_(std::make_shared<Cell>(Cell{std::move(initial), std::move(owner)}))
    {
    }

    [[nodiscard]] const T& get() const { return cell_->value; }

    void set(T value)
    {
        if (cell_->value == value) {
            return;
        }
        cell_->value = std::move(value);
        if (const auto owner = cell_->owner.lock()) {
            owner->mark();
        }
    }

private:
    friend class WeakState<T>;

    struct Cell {
        T value;
        std::weak_ptr<Invalidation> owner;
    };

    explicit State(std::shared_ptr<Cell> cell) : cell_(std::move(cell)) {}

    std::shared_ptr<Cell> cell_;
};

/// A state cell as seen by what outlives its screen (observers, key monitors): it does not keep the value alive.
template <class T>
class WeakState {
public:
    // Not explicit: a state cell is handed to such callbacks as it is.
    // NOLINTNEXTLINE(google-explicit-constructor)
    WeakState(const State<T>& state) : cell_(state.cell_) {}

    /// Does nothing once the screen and its state are gone.
    void set(T value) const
    {
        if (auto cell = cell_.lock()) {
            State<T>(std::move(cell)).set(std::move(value));
        }
    }

private:
    std::weak_ptr<typename State<T>::Cell> cell_;
};

} // namespace orken
