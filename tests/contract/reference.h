// The transforms by their definitions, in long double.
#pragma once

#include <string_view>
#include <vector>

namespace haldgen::test {

/// The unscaled transform that a family (named by its word) defines; src and the result are laid
/// out as the family's arrays. Throws for a family that is not described.
std::vector<long double> definition(std::string_view word, const std::vector<long double>& src);

}  // namespace haldgen::test
