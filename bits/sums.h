// A checksum of the results of each transform: the core of haldgen-bits.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace haldgen::bits {

/// Of a function, to be cast to its type.
using Address = void (*)();

/// Address of an exported function; null if there is none of this name.
using Find = std::function<Address(const std::string& name)>;

struct Finding {
  std::optional<std::uint64_t> sum;  ///< none for a general entry, which has those of its sizes
  std::string fault;  ///< what keeps the results from having one sum; empty if nothing does
};

/// By name of the transform; the DCT-IV with its length: "haldgDCT4_32f/64".
using Findings = std::map<std::string, Finding>;

/// Calls all transforms of the table of families.
///
/// A sum is FNV-1a over the bytes, from the lowest up, of all results for all inputs and flags;
/// every NaN counts as the same. Faults: a missing function, a status, results that hang on where
/// the arrays lie, on the work buffer or on the place of a state, general entries whose results are
/// not those of the fixed size.
Findings take_sums(const Find& find);

}  // namespace haldgen::bits
