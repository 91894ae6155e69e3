// The one table of what the library exports: families, element types, sizes and arguments. Header,
// entries, slots, export list, tests and benchmarks are all derived from it.
#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace haldgen::frame {

/// Element type of the arrays that a function works on; `none` for functions without arrays.
enum class Element { none, f32, f64, c32, c64 };

/// Suffix of the exported names: "32f", "64f", "32fc", "64fc"; empty for `none`.
std::string_view suffix(Element element);

/// Type of one array element in the public header: "float", "double", "Cplx32", "Cplx64".
std::string_view c_type(Element element);

/// The arguments of a function, in order. Every signature returns a status, except `version`.
enum class Signature {
  transform,                 ///< src, dst, flag
  sized_transform,           ///< src, dst, length, flag
  buffered_transform,        ///< src, dst, flag, buffer
  sized_buffered_transform,  ///< src, dst, order, flag, buffer
  order_query,               ///< order, pointer to a 32-bit result
  length_query,              ///< length, pointer to a 32-bit result
  plan_init,                 ///< pointer to a state pointer, length, buffer
  plan_init_alloc,           ///< pointer to a state pointer, length
  plan_free,                 ///< state
  planned_transform,         ///< src, dst, state
  version,                   ///< no argument; returns the version record
};

/// What the four scaling flags do in a family.
enum class Scaling {
  none,           ///< the functions take no flag
  forward,        ///< FwdByN divides by N
  inverse,        ///< InvByN divides by N
  directionless,  ///< FwdByN and InvByN both divide by N
};

/// Inclusive range of lengths or orders.
struct Range {
  int first;
  int last;
  constexpr bool contains(int size) const { return first <= size && size <= last; }
};

inline constexpr int max_size = 64;

/// A set of sizes. Size 0 stands for a function that has neither length nor order.
class SizeSet {
 public:
  constexpr SizeSet() = default;
  constexpr SizeSet(std::initializer_list<int> sizes) {
    for (const int size : sizes) member_[static_cast<std::size_t>(size)] = true;
  }
  constexpr explicit SizeSet(Range range) {
    for (int size = range.first; size <= range.last; ++size) {
      member_[static_cast<std::size_t>(size)] = true;
    }
  }
  constexpr bool contains(int size) const {
    return 0 <= size && size <= max_size && member_[static_cast<std::size_t>(size)];
  }
  constexpr bool empty() const {
    for (const bool member : member_) {
      if (member) return false;
    }
    return true;
  }

 private:
  std::array<bool, max_size + 1> member_{};
};

/// One row of the table: functions that differ only in element type and, where the size is part of
/// the name, in the size.
struct Family {
  std::string_view word;  ///< transform word of the names, such as "DFTFwd_CToC"
  Signature signature;
  std::array<Element, 2> elements;  ///< both `none` for the single function without arrays
  Range sizes;  ///< sizes in the names, or accepted as an argument; {0, 0} for neither
  /// Sizes built so far: of the named functions, or reachable through a general entry. A family
  /// without sizes is built when this is {0}.
  SizeSet live;
  Scaling scaling;
  std::string_view title;       ///< heading in the public header
  std::string_view definition;  ///< formula, arrays, sizes
  std::string_view result;      ///< the "@return" part; required as soon as anything is live
};

/// Whether the size is part of the names of a family (and not an argument or absent).
bool size_in_name(const Family& family);

/// Whether the functions of a family are general entries: the size is an argument and selects one
/// of the fixed-size functions of the same word.
bool is_general(const Family& family);

/// The element types that a family has functions for; {none} if it works on no arrays.
std::vector<Element> distinct_elements(const Family& family);

/// Exported name of one function of a family; the size is 0 unless it is part of the name.
std::string export_name(const Family& family, Element element, int size);

/// All families, in the order in which the public header presents them.
std::span<const Family> families();

/// One exported function.
struct Export {
  std::string name;
  const Family* family;
  Element element;
  int size;   ///< length or order in the name; 0 if none
  bool live;  ///< built now
};

/// All 1,193 functions in ascending byte order of their names: function k of the finished library
/// has slot k.
const std::vector<Export>& exports();

/// The functions built now, in the same order: function k has slot k of the library as it is.
std::vector<Export> live_exports();

/// Hidden symbol of the implementation behind an export: C linkage, same arguments, same result.
std::string implementation_symbol(const Export& function);

/// The same by family, element type and size. With the family of a general entry and a size other
/// than 0, it is the fixed-size implementation that the entry hands over to.
std::string implementation_symbol(const Family& family, Element element, int size);

/// A parameter as the public header writes it.
struct Parameter {
  std::string type;  ///< such as "const Cplx32*"
  std::string name;  ///< such as "src"
};

/// Parameters of a function with this signature on arrays of this element type.
std::vector<Parameter> parameters(Signature signature, Element element);

/// C return type of a function with this signature.
std::string_view return_type(Signature signature);

/// C declaration without semicolon: "int32_t NAME(const Cplx32* src, ...)".
std::string declaration(Signature signature, Element element, std::string_view name);

}  // namespace haldgen::frame
