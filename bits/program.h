// haldgen-bits as a function, so that a test can give it other functions than the library's.
#pragma once

#include <iosfwd>
#include <span>
#include <string>

#include "bits/sums.h"

namespace haldgen::bits {

/// Runs the arguments of the command line, without the program's name, on functions of the library,
/// or of that of batches if the first argument says so; `published` is the path of
/// the file that the program came with. Returns its exit status: 0; 1 if sums differ or there are
/// faults; 2 if it could not do as it was told.
int run(const Find& find, std::span<const std::string> arguments, const std::string& published,
        std::ostream& out, std::ostream& errors);

}  // namespace haldgen::bits
