// What exported functions are called and which arguments they take.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "names/signature.h"
#include "names/sizes.h"

namespace haldgen::names {

/// Suffix of the exported names: "32f", "64f", "32fc", "64fc"; empty for `none`.
std::string_view suffix(Element element);

/// Type of one array element in the public header: "float", "double", "Cplx32", "Cplx64".
std::string_view c_type(Element element);

/// The two element types of real and of complex arrays.
inline const std::vector<Element> kReal{Element::f32, Element::f64};
inline const std::vector<Element> kComplex{Element::c32, Element::c64};

/// What the four scaling flags do.
enum class Scaling {
  none,           ///< the functions take no flag
  forward,        ///< FwdByN divides by N
  inverse,        ///< InvByN divides by N
  directionless,  ///< FwdByN and InvByN both divide by N
};

/// What an array holds for N points.
enum class Layout {
  none,     ///< there are no such arrays, or a state says what they hold
  real,     ///< N real elements
  complex,  ///< N complex elements
  ccs,      ///< a half spectrum in CCS format
  pack,     ///< in Pack format: N real elements
  perm,     ///< in Perm format, likewise
};

/// How a transform uses its flag and its arrays.
struct Usage {
  Scaling scaling = Scaling::none;
  Layout src = Layout::none;
  Layout dst = Layout::none;
};

/// What the public header says of a word.
struct Text {
  std::string title;       ///< heading
  std::string definition;  ///< formula, arrays, sizes
  std::string result;      ///< the "@return" part
};

/// Functions that differ only in element type and, where the size is part of the name, in the size.
struct Word {
  std::string word;  ///< transform word of the names, such as "DFTFwd_CToC"
  Signature signature;
  std::vector<Element> elements;  ///< {none} for the single function without arrays
  Sizes sizes;                    ///< sizes in the names, or accepted as an argument
  Usage usage;
  Text text;
  /// Bytes of the work area by size in the name; null if the functions take none.
  std::int32_t (*work_bytes)(Element element, int size) = nullptr;
};

/// Whether the size is part of the names (and not an argument or absent).
bool size_in_name(const Word& word);

/// Whether the size is an order, of which the length is a power of two.
bool has_order(const Word& word);

/// Whether the functions are general entries: the size is an argument and selects one of the
/// fixed-size functions of the same word.
bool is_general(const Word& word);

/// The texts of functions with the arguments src, dst and flag, and of their general entry. A
/// formula is an indented block; remarks stand in the fixed functions' text only, `both` in either.
struct TransformText {
  std::string title;  ///< "Forward complex DFT"
  std::string formula;
  std::string both;
  std::string remark;
  std::string arrays;  ///< "@param" parts of src and dst
};

/// A word of transforms of lengths in the name, and its general entry.
std::vector<Word> transform_words(const std::string& word, const std::vector<Element>& elements,
                                  const Sizes& lengths, const Usage& usage,
                                  const TransformText& text);

/// Exported name of a transform; the size is 0 unless it is part of the name.
std::string export_name(std::string_view word, Element element, int size);

/// Exported name of one function of a word.
std::string export_name(const Word& word, Element element, int size);

/// Hidden symbol of the implementation behind an exported function: C linkage, same arguments, same
/// result.
std::string implementation_symbol(std::string_view export_name);

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

}  // namespace haldgen::names
