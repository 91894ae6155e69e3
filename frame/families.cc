// Rows of the table of families and the names that follow from them.
#include "frame/families.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace haldgen::frame {
namespace {

constexpr Range dft_lengths{2, 64};
constexpr Range wht_orders{1, 13};
constexpr Range no_size{0, 0};

constexpr std::array<Element, 2> real{Element::f32, Element::f64};
constexpr std::array<Element, 2> complex{Element::c32, Element::c64};
constexpr std::array<Element, 2> no_arrays{Element::none, Element::none};

// What is built: a size enters when its functions of both element types exist.
constexpr SizeSet complex_built(Range{2, 64});
constexpr SizeSet real_built(Range{2, 64});
constexpr SizeSet wht_built(wht_orders);
constexpr SizeSet wht_query_built{0};
constexpr SizeSet version_built{0};
constexpr SizeSet dct4_built{0};

constexpr std::string_view forward_complex_definition =
    R"(    X[k] = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k, n = 0..N-1

The length N is the number in the name.

@param src     N complex elements x[0..N-1]; only read.
@param dst     N complex elements X[0..N-1].)";

constexpr std::string_view forward_complex_general_definition =
    R"(    X[k] = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k, n = 0..N-1

@param src     N complex elements x[0..N-1]; only read.
@param dst     N complex elements X[0..N-1].
@param length  N, for lengths known at run time only: any length that has a function of its own.)";

constexpr std::string_view inverse_complex_definition =
    R"(    X[k] = s * sum over n of x[n] * exp(+2*pi*i*k*n/N),   k, n = 0..N-1

The length N is the number in the name.

@param src     N complex elements x[0..N-1]; only read.
@param dst     N complex elements X[0..N-1].)";

constexpr std::string_view inverse_complex_general_definition =
    R"(    X[k] = s * sum over n of x[n] * exp(+2*pi*i*k*n/N),   k, n = 0..N-1

@param src     N complex elements x[0..N-1]; only read.
@param dst     N complex elements X[0..N-1].
@param length  N, for lengths known at run time only: any length that has a function of its own.)";

// Definitions that differ in a few words are put together when this is compiled.
template <const std::string_view&... kParts>
struct Joined {
  static constexpr auto characters = [] {
    std::array<char, (kParts.size() + ...)> all{};
    std::size_t length = 0;
    for (const std::string_view part : {kParts...}) {
      for (const char c : part) all[length++] = c;
    }
    return all;
  }();
  static constexpr std::string_view text{characters.data(), characters.size()};
};

constexpr std::string_view length_in_the_name = "\nThe length N is the number in the name.\n\n";
constexpr std::string_view no_remark = "\n";
constexpr std::string_view length_parameter =
    R"(
@param length  N, for lengths known at run time only: any length that has a function of its own.)";
constexpr std::string_view no_parameter;

constexpr std::string_view ccs = "CCS format: N+2 elements for even N, N+1 for odd N";
constexpr std::string_view pack = "Pack format: N elements";
constexpr std::string_view perm = "Perm format: N elements";

constexpr std::string_view forward_real_formula =
    R"(    R(k) + i*I(k) = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k = 0..N/2
)";
constexpr std::string_view forward_real_arrays =
    R"(@param src     N real samples x[0..N-1]; only read.
@param dst     Half spectrum in )";
constexpr std::string_view full_stop = ".";

constexpr std::string_view inverse_real_formula =
    R"(    x[n] = s * (R(0) + (-1)^n * R(N/2) + 2 * sum over k = 1..q of (R(k) * cos(2*pi*k*n/N)
                                                                  - I(k) * sin(2*pi*k*n/N)))

The term of R(N/2) is there for even N only. Whatever the numbers, they are taken as half of a
conjugate-symmetric spectrum.
)";
constexpr std::string_view inverse_real_source = "@param src     Half spectrum in ";
constexpr std::string_view inverse_real_samples =
    R"(; only read.
@param dst     N real samples x[0..N-1].)";

template <const std::string_view& kFormat, const std::string_view& kRemark,
          const std::string_view& kParameter>
constexpr std::string_view forward_real = Joined<forward_real_formula, kRemark, forward_real_arrays,
                                                 kFormat, full_stop, kParameter>::text;

template <const std::string_view& kFormat, const std::string_view& kRemark,
          const std::string_view& kParameter>
constexpr std::string_view inverse_real = Joined<inverse_real_formula, kRemark, inverse_real_source,
                                                 kFormat, inverse_real_samples, kParameter>::text;

constexpr std::string_view hartley_definition =
    R"(    H[k] = s * sum over n of x[n] * (cos(2*pi*k*n/N) + sin(2*pi*k*n/N)),   k, n = 0..N-1

(R. V. L. Hartley, Proc. IRE 30 (1942)). Applied twice, it gives N times the input for s = 1. The
length N is the number in the name.

@param src     N real elements x[0..N-1]; only read.
@param dst     N real elements H[0..N-1].)";

constexpr std::string_view hartley_general_definition =
    R"(    H[k] = s * sum over n of x[n] * (cos(2*pi*k*n/N) + sin(2*pi*k*n/N)),   k, n = 0..N-1

@param src     N real elements x[0..N-1]; only read.
@param dst     N real elements H[0..N-1].
@param length  N, for lengths known at run time only: any length that has a function of its own.)";

constexpr std::string_view transform_result =
    R"(@return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
        the four values; else haldStatusOk. dst is written only if haldStatusOk is returned.)";

constexpr std::string_view general_length_result =
    R"(@return haldStatusSizeError if no function has this length, whatever the other arguments are;
        else what the function of this length returns.)";

constexpr std::string_view wht_definition =
    R"(    Y[k] = s * sum over n of (-1)^popcount(k & n) * x[n],   k, n = 0..N-1

N is two to the power of the order, which is the number in the name. Outputs are in the natural
(Hadamard) order of k. The transform is its own inverse: two calls with haldScaleBySqrtN give the
input back, and so do one with haldScaleNone and one with a flag that divides by N.

The results are those of sums and differences taken in place, first of neighbours x[n], x[n+1],
then of elements 2, 4, .. N/2 apart, each rounded to the element type, and of one multiplication
by s at the end.

@param src     N elements x[0..N-1]; only read. Need not even be aligned to an element.
@param dst     N elements Y[0..N-1]; likewise.)";

constexpr std::string_view wht_general_definition =
    R"(    Y[k] = s * sum over n of (-1)^popcount(k & n) * x[n],   k, n = 0..N-1,   N = 2^order

@param src     N elements x[0..N-1]; only read. Need not even be aligned to an element.
@param dst     N elements Y[0..N-1]; likewise.
@param order   1 to 13, for orders known at run time only.)";

constexpr std::string_view wht_result =
    R"(@param buffer  work area of as many bytes as haldgWHTGetBufferSize tells for the order and the
        element type, at a multiple of 16 bytes, apart from src and dst. It needs no contents,
        and nothing is kept in it. Orders 1 to 7 pass over this argument.
        If it is null, orders 8 to 13 take the area from haldMalloc and give it back to haldFree
        before they return. There is no status for a haldMalloc that fails: the call crashes.
@return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
        the four values; else haldStatusOk. Only if haldStatusOk is returned is dst written or
        memory taken.)";

constexpr std::string_view wht_general_result =
    R"(@param buffer  as for the function of this order.
@return haldStatusSizeError if no function has this order, whatever the other arguments are; else
        what the function of this order returns.)";

constexpr std::string_view wht_query_definition =
    R"(Bytes that the buffer of a Walsh-Hadamard transform needs: 0 for orders 1 to 7.

@param order   1 to 13.
@param size    where to store the number of bytes.)";

constexpr std::string_view wht_query_result =
    R"(@return haldStatusNullPointer if size is null; else haldStatusSizeError if no function has this
        order, and nothing is stored; else haldStatusOk.)";

constexpr std::string_view version_result =
    R"(@return The record of this build: always the same pointer, never null. It belongs to the library;
        do not change or free it.)";

constexpr std::string_view dct4_size_definition =
    R"(Lengths are the powers of two from 2 to 2^26 (_32f) or 2^25 (_64f). Accepted as well, but no
DCT-IV, are numbers 2^k + 1 from 33 (_32f) or 9 (_64f) to one more than those limits: their
transform writes 2^k outputs. Beyond, set-up refuses every length; sizes are then sums that wrap
around in 32 bits, and are refused only where they come out negative.

@param length  N.
@param size    receives the number of bytes of a state of this length.)";

constexpr std::string_view dct4_size_result =
    R"(@return haldStatusNullPointer if size is null, whatever the length is; else haldStatusSizeError
        if there is no such length; else haldStatusOk. size is written only if haldStatusOk is
        returned.)";

constexpr std::string_view dct4_init_definition =
    R"(Builds a state, with all its tables. The state lies in the buffer, generally not at its start,
and lasts until the buffer is dropped; there is nothing to release besides.

@param state   receives the state.
@param length  N.
@param buffer  at least as many bytes as the size query says for this length and element type,
               at any alignment.)";

constexpr std::string_view dct4_init_result =
    R"(@return haldStatusNullPointer if state or buffer is null; else haldStatusSizeError if there is no
        such length; else haldStatusOk. Nothing is written unless haldStatusOk is returned.)";

constexpr std::string_view dct4_init_alloc_definition =
    R"(The same in memory from haldMalloc; the state must be released.

@param state   receives the state.
@param length  N.)";

constexpr std::string_view dct4_init_alloc_result =
    R"(@return haldStatusNullPointer if state is null; else haldStatusSizeError if there is no such
        length; else haldStatusNullPointer if there is no memory; else haldStatusOk. state is
        written only if haldStatusOk is returned.)";

constexpr std::string_view dct4_free_definition =
    R"(Releases a state that was set up with allocation. Not for states in a buffer of the caller.

@param state   the state.)";

constexpr std::string_view dct4_free_result =
    R"(@return haldStatusNullPointer if state is null; else haldStatusOk.)";

constexpr std::string_view dct4_definition =
    R"(    y[k] = sum over n of x[n] * cos(pi/N * (n + 1/2) * (k + 1/2)),   k, n = 0..N-1

There is no scale: applied twice, the transform multiplies by N/2. From length 64 up a state
holds scratch memory and can serve one call at a time; different states are independent. The
bits of a result also hang on the sine and cosine of the maths library that set up the state.

@param src     N elements x[0..N-1]; only read.
@param dst     N elements y[0..N-1].
@param state   a state of length N for this element type.)";

constexpr std::string_view dct4_result =
    R"(@return haldStatusNullPointer if state, src or dst is null; else haldStatusBadArgument if state
        is not a state; else haldStatusOk. dst is written only if haldStatusOk is returned.)";

using S = Signature;

constexpr Family table[] = {
    {"DFTFwd_CToC", S::transform, complex, dft_lengths, complex_built, Scaling::forward,
     "Forward complex DFT, fixed length", forward_complex_definition, transform_result},
    {"DFTFwd_CToC", S::sized_transform, complex, dft_lengths, complex_built, Scaling::forward,
     "Forward complex DFT, general", forward_complex_general_definition, general_length_result},
    {"DFTInv_CToC", S::transform, complex, dft_lengths, complex_built, Scaling::inverse,
     "Inverse complex DFT, fixed length", inverse_complex_definition, transform_result},
    {"DFTInv_CToC", S::sized_transform, complex, dft_lengths, complex_built, Scaling::inverse,
     "Inverse complex DFT, general", inverse_complex_general_definition, general_length_result},

    {"DFTFwd_RToCCS", S::transform, real, dft_lengths, real_built, Scaling::forward,
     "Forward real DFT to CCS, fixed length", forward_real<ccs, length_in_the_name, no_parameter>,
     transform_result},
    {"DFTFwd_RToCCS", S::sized_transform, real, dft_lengths, real_built, Scaling::forward,
     "Forward real DFT to CCS, general", forward_real<ccs, no_remark, length_parameter>,
     general_length_result},
    {"DFTFwd_RToPack", S::transform, real, dft_lengths, real_built, Scaling::forward,
     "Forward real DFT to Pack, fixed length", forward_real<pack, length_in_the_name, no_parameter>,
     transform_result},
    {"DFTFwd_RToPack", S::sized_transform, real, dft_lengths, real_built, Scaling::forward,
     "Forward real DFT to Pack, general", forward_real<pack, no_remark, length_parameter>,
     general_length_result},
    {"DFTFwd_RToPerm", S::transform, real, dft_lengths, real_built, Scaling::forward,
     "Forward real DFT to Perm, fixed length", forward_real<perm, length_in_the_name, no_parameter>,
     transform_result},
    {"DFTFwd_RToPerm", S::sized_transform, real, dft_lengths, real_built, Scaling::forward,
     "Forward real DFT to Perm, general", forward_real<perm, no_remark, length_parameter>,
     general_length_result},

    {"DFTInv_CCSToR", S::transform, real, dft_lengths, real_built, Scaling::inverse,
     "Inverse real DFT from CCS, fixed length", inverse_real<ccs, length_in_the_name, no_parameter>,
     transform_result},
    {"DFTInv_CCSToR", S::sized_transform, real, dft_lengths, real_built, Scaling::inverse,
     "Inverse real DFT from CCS, general", inverse_real<ccs, no_remark, length_parameter>,
     general_length_result},
    {"DFTInv_PackToR", S::transform, real, dft_lengths, real_built, Scaling::inverse,
     "Inverse real DFT from Pack, fixed length",
     inverse_real<pack, length_in_the_name, no_parameter>, transform_result},
    {"DFTInv_PackToR", S::sized_transform, real, dft_lengths, real_built, Scaling::inverse,
     "Inverse real DFT from Pack, general", inverse_real<pack, no_remark, length_parameter>,
     general_length_result},
    {"DFTInv_PermToR", S::transform, real, dft_lengths, real_built, Scaling::inverse,
     "Inverse real DFT from Perm, fixed length",
     inverse_real<perm, length_in_the_name, no_parameter>, transform_result},
    {"DFTInv_PermToR", S::sized_transform, real, dft_lengths, real_built, Scaling::inverse,
     "Inverse real DFT from Perm, general", inverse_real<perm, no_remark, length_parameter>,
     general_length_result},

    {"Hartley", S::transform, real, dft_lengths, real_built, Scaling::directionless,
     "Hartley transform, fixed length", hartley_definition, transform_result},
    {"Hartley", S::sized_transform, real, dft_lengths, real_built, Scaling::directionless,
     "Hartley transform, general", hartley_general_definition, general_length_result},

    {"WHT", S::buffered_transform, real, wht_orders, wht_built, Scaling::directionless,
     "Walsh-Hadamard transform, fixed order", wht_definition, wht_result},
    {"WHT", S::sized_buffered_transform, real, wht_orders, wht_built, Scaling::directionless,
     "Walsh-Hadamard transform, general", wht_general_definition, wht_general_result},
    {"WHTGetBufferSize", S::order_query, real, no_size, wht_query_built, Scaling::none,
     "Walsh-Hadamard transform, size of the work buffer", wht_query_definition, wht_query_result},

    {"DCT4GetSize", S::length_query, real, no_size, dct4_built, Scaling::none,
     "DCT-IV, size of the state", dct4_size_definition, dct4_size_result},
    {"DCT4Init", S::plan_init, real, no_size, dct4_built, Scaling::none,
     "DCT-IV, set-up in a buffer of the caller", dct4_init_definition, dct4_init_result},
    {"DCT4InitAlloc", S::plan_init_alloc, real, no_size, dct4_built, Scaling::none,
     "DCT-IV, set-up with allocation", dct4_init_alloc_definition, dct4_init_alloc_result},
    {"DCT4Free", S::plan_free, real, no_size, dct4_built, Scaling::none, "DCT-IV, release",
     dct4_free_definition, dct4_free_result},
    {"DCT4", S::planned_transform, real, no_size, dct4_built, Scaling::none, "DCT-IV, transform",
     dct4_definition, dct4_result},

    {"GetLibVersion",
     S::version,
     no_arrays,
     no_size,
     version_built,
     Scaling::none,
     "Version of the library",
     {},
     version_result},
};

bool is_live(const Family& family, int size) {
  return is_general(family) ? !family.live.empty() : family.live.contains(size);
}

// What names and implementation symbols have in common: word, size and suffix.
std::string stem(const Family& family, Element element, int size) {
  std::string text(family.word);
  if (size != 0) text += "_" + std::to_string(size);
  if (element != Element::none) text += "_" + std::string(suffix(element));
  return text;
}

void add_exports(const Family& family, std::vector<Export>& all) {
  const Range sizes = size_in_name(family) ? family.sizes : no_size;
  for (const Element element : distinct_elements(family)) {
    for (int size = sizes.first; size <= sizes.last; ++size) {
      all.push_back(
          {export_name(family, element, size), &family, element, size, is_live(family, size)});
    }
  }
}

std::vector<Export> sorted_exports() {
  std::vector<Export> all;
  for (const Family& family : table) add_exports(family, all);
  std::sort(all.begin(), all.end(),
            [](const Export& a, const Export& b) { return a.name < b.name; });
  return all;
}

}  // namespace

std::string_view suffix(Element element) {
  switch (element) {
    case Element::none:
      return "";
    case Element::f32:
      return "32f";
    case Element::f64:
      return "64f";
    case Element::c32:
      return "32fc";
    case Element::c64:
      return "64fc";
  }
  throw std::logic_error("unknown element type");
}

std::string_view c_type(Element element) {
  switch (element) {
    case Element::none:
      break;
    case Element::f32:
      return "float";
    case Element::f64:
      return "double";
    case Element::c32:
      return "Cplx32";
    case Element::c64:
      return "Cplx64";
  }
  throw std::logic_error("no array element type");
}

bool size_in_name(const Family& family) {
  return family.signature == Signature::transform ||
         family.signature == Signature::buffered_transform;
}

bool is_general(const Family& family) {
  return family.signature == Signature::sized_transform ||
         family.signature == Signature::sized_buffered_transform;
}

std::vector<Element> distinct_elements(const Family& family) {
  const auto& [first, second] = family.elements;
  return first == second ? std::vector{first} : std::vector{first, second};
}

std::string export_name(const Family& family, Element element, int size) {
  // The version function is the only one outside the naming scheme of the transforms.
  const std::string_view prefix = family.signature == Signature::version ? "haldgen" : "haldg";
  return std::string(prefix) + stem(family, element, size);
}

std::span<const Family> families() { return table; }

const std::vector<Export>& exports() {
  static const std::vector<Export> all = sorted_exports();
  return all;
}

std::vector<Export> live_exports() {
  std::vector<Export> live;
  std::copy_if(exports().begin(), exports().end(), std::back_inserter(live),
               [](const Export& function) { return function.live; });
  return live;
}

std::string implementation_symbol(const Export& function) {
  return implementation_symbol(*function.family, function.element, function.size);
}

std::string implementation_symbol(const Family& family, Element element, int size) {
  return "haldgImpl_" + stem(family, element, size);
}

std::vector<Parameter> parameters(Signature signature, Element element) {
  if (signature == Signature::version) return {};
  const std::string array = std::string(c_type(element)) + "*";
  const Parameter src{"const " + array, "src"};
  const Parameter dst{array, "dst"};
  const Parameter length{"int32_t", "length"};
  const Parameter order{"int32_t", "order"};
  const Parameter flag{"int32_t", "flag"};
  const Parameter buffer{"uint8_t*", "buffer"};
  const Parameter new_state{"Dct4State**", "state"};
  switch (signature) {
    case Signature::transform:
      return {src, dst, flag};
    case Signature::sized_transform:
      return {src, dst, length, flag};
    case Signature::buffered_transform:
      return {src, dst, flag, buffer};
    case Signature::sized_buffered_transform:
      return {src, dst, order, flag, buffer};
    case Signature::order_query:
      return {order, {"uint32_t*", "size"}};
    case Signature::length_query:
      return {length, {"int32_t*", "size"}};
    case Signature::plan_init:
      return {new_state, length, buffer};
    case Signature::plan_init_alloc:
      return {new_state, length};
    case Signature::plan_free:
      return {{"Dct4State*", "state"}};
    case Signature::planned_transform:
      return {src, dst, {"Dct4State*", "state"}};
    case Signature::version:
      break;
  }
  throw std::logic_error("unknown signature");
}

std::string_view return_type(Signature signature) {
  return signature == Signature::version ? "const LibraryVersion*" : "int32_t";
}

std::string declaration(Signature signature, Element element, std::string_view name) {
  std::string text = std::string(return_type(signature)) + " " + std::string(name) + "(";
  const std::vector<Parameter> list = parameters(signature, element);
  if (list.empty()) return text + "void)";
  for (std::size_t i = 0; i < list.size(); ++i) {
    text += (i == 0 ? "" : ", ") + list[i].type + " " + list[i].name;
  }
  return text + ")";
}

}  // namespace haldgen::frame
