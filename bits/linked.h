// The library that a program is linked with, as a source of functions.
#pragma once

#include <algorithm>

#include "bits/sums.h"
#include "frame/linked_functions.h"

namespace haldgen::bits {

inline Find linked() {
  return [](const std::string& name) -> Address {
    const auto all = frame::linked_functions();
    const auto found = std::lower_bound(
        all.begin(), all.end(), name,
        [](const frame::LinkedFunction& f, const std::string& wanted) { return f.name < wanted; });
    return found != all.end() && found->name == name ? found->address : nullptr;
  };
}

inline Find linked_batches() {
  return [](const std::string& name) -> Address {
    const auto all = frame::linked_batches();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&](const frame::LinkedBatch& b) { return b.name == name; });
    return found != all.end() ? found->address : nullptr;
  };
}

}  // namespace haldgen::bits
