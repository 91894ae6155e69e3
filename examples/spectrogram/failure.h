// The one way in which the parts of the demonstration report that they cannot go on.
#pragma once

#include <stdexcept>

namespace haldgen::demo {

/// Carries one line of text, ready to be shown to the person who started the program.
struct Failure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace haldgen::demo
