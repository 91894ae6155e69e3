#include "tests/batch/field.h"

namespace haldgen::test {

std::vector<Layout> layouts(std::size_t elements, std::size_t count) {
  const auto e = static_cast<std::ptrdiff_t>(elements);
  const auto c = static_cast<std::ptrdiff_t>(count);
  return {
      {"rows", 1, e},
      {"columns", c, 1},
      {"rows with gaps", 1, e + 3},
      {"columns with gaps", c + 5, 1},
      {"every third", 3, 3 * e + 1},
      {"columns of every second", 2 * c + 1, 2},
      {"backwards", -1, -e},
      {"columns upside down", -c, 1},
      {"columns from the last", c, -1},
      {"one row", 1, 0},
      {"constant columns", 0, 1},
  };
}

}  // namespace haldgen::test
