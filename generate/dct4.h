// What haldgen-generate does about the DCT-IV.
#pragma once

#include <string>
#include <vector>

namespace haldgen::generate {

/// Runs a command on the DCT-IV: `arguments` are those of the program, the second being "dct4".
/// False if they make no sense. A source is written by `write_file(path, text)`.
bool run_dct4(const std::vector<std::string>& arguments,
              void (*write_file)(const std::string&, const std::string&));

/// Counts of whole transforms of the powers of two up to 2^16, rows of the table of all kernels.
void print_dct4_transforms();

}  // namespace haldgen::generate
