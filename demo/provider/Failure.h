#pragma once

#include <stdexcept>

namespace orken::demo {

/// Why the provider cannot start, in words for its user. Thrown only before it serves; `main` catches it.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace orken::demo
