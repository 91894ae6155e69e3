// The functions of a library by their types, and what keeps one from being called.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "bits/sums.h"
#include "frame/linked_functions.h"

namespace haldgen::bits {

using frame::LinkedFunction;

/// Finds functions by type; remembers the first that is missing.
class Library {
 public:
  explicit Library(const Find& find) : find_(find) {}

  template <class Function>
  Function* function(std::string_view name) {
    const auto address = find_(std::string(name));
    if (address == nullptr && missing_.empty()) missing_ = name;
    return reinterpret_cast<Function*>(address);
  }
  template <class Function>
  Function* function(names::Signature signature, names::Element element) {
    for (const LinkedFunction& f : frame::linked_functions()) {
      if (f.signature == signature && f.element == element) return function<Function>(f.name);
    }
    return nullptr;
  }

  bool complete() const { return missing_.empty(); }
  Finding lack() const { return {0, "the library has no " + missing_}; }

 private:
  const Find& find_;
  std::string missing_;
};

}  // namespace haldgen::bits
