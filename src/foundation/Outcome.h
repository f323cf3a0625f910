#pragma once

#include "foundation/PlatformError.h"

#include <cassert>
#include <optional>
#include <utility>
#include <variant>

namespace orken {

/// A value, or the error in its place. Asking for the one that is not there is a programming error.
template <class T>
class [[nodiscard]] Outcome {
public:
    // Not explicit: an operation returns either of the two as it is.
    // NOLINTBEGIN(google-explicit-constructor)
    Outcome(T value) : content_(std::in_place_index<0>, std::move(value)) {}

    Outcome(PlatformError error) : content_(std::in_place_index<1>, std::move(error)) {}

    // NOLINTEND(google-explicit-constructor)

    explicit operator bool() const { return content_.index() == 0; }

    [[nodiscard]] const T& value() const&
    {
        assert(content_.index() == 0);
        return *std::get_if<0>(&content_);
    }

    /// By value: a reference would not outlive the temporary.
    [[nodiscard]] T value() &&
    {
        assert(content_.index() == 0);
        return std::move(*std::get_if<0>(&content_));
    }

    [[nodiscard]] const PlatformError& error() const
    {
        assert(content_.index() == 1);
        return *std::get_if<1>(&content_);
    }

private:
    std::variant<T, PlatformError> content_;
};

/// Done, or the error.
template <>
class [[nodiscard]] Outcome<void> {
public:
    Outcome() = default;

    // NOLINTNEXTLINE(google-explicit-constructor)
    Outcome(PlatformError error) : error_(std::move(error)) {}

    explicit operator bool() const { return !error_; }

    [[nodiscard]] const PlatformError& error() const
    {
        assert(error_);
        return *error_;
    }

private:
    std::optional<PlatformError> error_;
};

} // namespace orken
