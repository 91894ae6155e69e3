// Sets of lengths or orders, which may have holes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace haldgen::names {

class Sizes {
 public:
  /// No size: of functions without length and order.
  Sizes() = default;

  /// From a text such as "2..64, 72, 96"; throws if it is none.
  explicit Sizes(std::string_view text);

  bool empty() const { return sizes_.empty(); }
  bool contains(int size) const;
  /// Ascending.
  auto begin() const { return sizes_.begin(); }
  auto end() const { return sizes_.end(); }
  int first() const { return sizes_.front(); }
  int last() const { return sizes_.back(); }

  friend bool operator==(const Sizes&, const Sizes&) = default;

 private:
  std::vector<int> sizes_;
};

/// "2..64, 72, 96".
std::string to_string(const Sizes& sizes);

}  // namespace haldgen::names
