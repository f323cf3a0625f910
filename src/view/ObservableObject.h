#pragma once

#include "foundation/NonCopyable.h"
#include "foundation/Subject.h"

#include <utility>

namespace orken {

/// A shared object whose published fields tell their observers before they change. Main thread only.
class ObservableObject : NonCopyable {
public:
    /// Called before every assignment to a published field, also of an equal value: an observer that reads a field
    /// inside the call sees the old value, so it may only mark that it needs an update.
    [[nodiscard]] Subscription observe(std::function<void()> willChange)
    {
        return objectWillChange_.subscribe(std::move(willChange));
    }

protected:
    ~ObservableObject() = default;

    template <class T>
    class Published {
    public:
        Published(ObservableObject& owner, T initial) : owner_(owner), value_(std::move(initial)) {}

        [[nodiscard]] const T& get() const { return value_; }

        void set(T value)
        {
            owner_.objectWillChange_.send();
            value_ = std::move(value);
        }

    private:
        ObservableObject& owner_;
        T value_;
    };

private:
    Subject<> objectWillChange_;
};

} // namespace orken
