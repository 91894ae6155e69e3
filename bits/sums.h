// A checksum of the results of each function: the core of haldgen-bits. It needs nothing but the
// library, the table of its functions and the C++ standard library, without exceptions.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>

namespace haldgen::bits {

/// Of a function, to be cast to its type.
using Address = void (*)();

/// Address of an exported function; null if there is none of this name.
using Find = std::function<Address(const std::string& name)>;

struct Finding {
  std::uint64_t sum;
  std::string fault;  ///< what keeps the results from having one sum; empty if nothing does
};

/// By name of the function; of the DCT-IV by length as well: "haldgDCT4_32f/64".
using Findings = std::map<std::string, Finding>;

/// Calls all functions of the table of linked ones. Sums are FNV-1a over bytes, from the lowest up:
///
/// - of a transform, of all results for all inputs and flags; every NaN counts as the same;
/// - of a general entry, of the sums of its sizes;
/// - of a size query, of all statuses and sizes, for sizes that there are and many that there are
/// not;
/// - of a set-up, of all statuses for such lengths, and of what transforms do with the states;
/// - of a release, of its statuses;
/// - of the version, of all that its record says; where that names a flavour, of what the
/// baseline's
///   says.
///
/// Faults: a missing function, a status, results that hang on where the arrays lie, on the work
/// buffer or on the place of a state, general entries whose results are not those of the fixed
/// size.
Findings take_sums(const Find& find);

/// Bits of the vectors of the library, as its version record has them; 128 if it does not say.
int vector_bits(const Find& find);

}  // namespace haldgen::bits
