// Text of the public header.
#include <algorithm>
#include <initializer_list>
#include <sstream>
#include <stdexcept>

#include "frame/emit.h"
#include "frame/text.h"
#include "names/arrays.h"
#include "registry/registry.h"

namespace haldgen::frame {
namespace {

using names::Element;
using names::Scaling;
using names::Signature;
using names::Word;

constexpr std::string_view prologue =
    R"(/**
 * @file haldgen.h
 * Small numeric transforms, one function for each transform, length and element type.
 *
 * There is no planning, no set-up and no hidden state: each function is a kernel of its own, made
 * for its length, which can be called as soon as the library is loaded. The exception is the
 * DCT-IV, whose state is set up first.
 *
 * What holds for every transform below, unless its family says otherwise:
 * - Arrays are the caller's. src is only read. Any alignment of an element's own float type will
 *   do (4 bytes for Cplx32, 8 bytes for Cplx64), and the alignment changes no bit of a result.
 *   The transforms of real arrays take any address at all.
 * - dst may be the same array as src. The arrays must not overlap in any other way.
 * - Any number of threads may call at once, also with one src. Nothing is locked, and nothing is
 *   allocated, but for the work area of a large Walsh-Hadamard transform called without one.
 * - The same input gives the same bits on every call and on every machine.
 * - A failure is only returned as a status, and then dst is not written. Nothing is thrown; nor may
 *   a haldMalloc throw that a program puts in the place of haldcore's.
 *
 * haldgen.hpp is the same for C++20: lengths in types, std::complex, no status where nothing fails.
 *
 * This file is written by haldgen-framegen; do not edit it.
 */
#ifndef HALDGEN_H
#define HALDGEN_H

#include <stdint.h>

)";

// The numbers are the project's.
constexpr std::string_view version_macros =
    "/** Major release of the library that this header belongs to. */\n"
    "#define HALDGEN_VERSION_MAJOR " HALDGEN_MAJOR
    "\n"
    "/** Minor release. */\n"
    "#define HALDGEN_VERSION_MINOR " HALDGEN_MINOR
    "\n"
    "/** Update within the minor release. */\n"
    "#define HALDGEN_VERSION_UPDATE " HALDGEN_UPDATE "\n";

constexpr std::string_view types =
    R"(/** The three in one number that grows with them: 80100 is version 8.1.0. */
#define HALDGEN_VERSION \
  (HALDGEN_VERSION_MAJOR * 10000 + HALDGEN_VERSION_MINOR * 100 + HALDGEN_VERSION_UPDATE)

/**
 * Version of the bits. Libraries with the same number give the same results, to the bit and the
 * sign of a zero. What a NaN holds besides being one is not promised.
 */
#define HALDGEN_BITS_VERSION 1

/** On the functions of the library: no exception leaves them. Their types are as without it. */
#if defined(__GNUC__)
#define HALDGEN_NOTHROW __attribute__((nothrow))
#else
#define HALDGEN_NOTHROW
#endif

/** On the function whose body stands in this header. */
#if defined(__cplusplus)
#define HALDGEN_STATIC_INLINE inline
#elif defined(__STDC_VERSION__) && __STDC_VERSION__ >= 199901L
#define HALDGEN_STATIC_INLINE static inline
#elif defined(__GNUC__)
#define HALDGEN_STATIC_INLINE static __inline__
#else
#define HALDGEN_STATIC_INLINE static
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** Complex element of two 32-bit floats. */
typedef struct {
  float re; /**< real part */
  float im; /**< imaginary part */
} Cplx32;

/** Complex element of two 64-bit floats. */
typedef struct {
  double re; /**< real part */
  double im; /**< imaginary part */
} Cplx64;

/** The statuses: the library returns no others. */
enum {
  haldStatusOk = 0,           /**< success */
  haldStatusBadArgument = -5, /**< a state that no set-up function has made */
  haldStatusSizeError = -6,   /**< a length or order that the function does not have */
  haldStatusNullPointer = -8, /**< a required pointer is null */
  haldStatusFlagError = -16   /**< a scaling flag that is none of the four values */
};

/** What a status means, as a text to print: of any number, never null. */
HALDGEN_STATIC_INLINE const char* haldStatusText(int32_t status) {
  switch (status) {
    case haldStatusOk:
      return "success";
    case haldStatusBadArgument:
      return "not a state that was set up, or a negative count";
    case haldStatusSizeError:
      return "no function of this length or order";
    case haldStatusNullPointer:
      return "a null pointer, or no memory";
    case haldStatusFlagError:
      return "not one of the four scaling flags";
    default:
      return "not a status of haldgen";
  }
}

/**
 * The scaling flags: a transform takes exactly one of them; sums of flags are refused. They select
 * the scale s, which multiplies every output, in a transform of N points:
 *
 *     flag              | forward DFT | inverse DFT | no direction
 *     ------------------|-------------|-------------|-------------
 *     haldScaleFwdByN   | 1/N         | 1           | 1/N
 *     haldScaleInvByN   | 1           | 1/N         | 1/N
 *     haldScaleBySqrtN  | 1/sqrt(N)   | 1/sqrt(N)   | 1/sqrt(N)
 *     haldScaleNone     | 1           | 1           | 1
 *
 * A forward and an inverse DFT with the same one of the first three flags undo each other.
 */
enum {
  haldScaleFwdByN = 1,  /**< the forward transform divides by N */
  haldScaleInvByN = 2,  /**< the inverse transform divides by N */
  haldScaleBySqrtN = 4, /**< both transforms divide by the square root of N */
  haldScaleNone = 8     /**< neither transform scales */
};

/**
 * Packed half spectra. The spectrum of N real samples is known from its bins k = 0..N/2, with the
 * parts R(k) and I(k); I(0) is zero, and for even N so is I(N/2). With q = (N-1)/2 rounded down,
 * the formats hold, from position 0:
 *
 *     format | elements      | N even                               | N odd
 *     -------|---------------|--------------------------------------|-------------------------
 *     CCS    | N+2, odd: N+1 | R(k), I(k) for k = 0..N/2            | R(k), I(k) for k = 0..q
 *     Pack   | N             | R(0), R(k), I(k) for 1..q, R(N/2)    | R(0), R(k), I(k) for 1..q
 *     Perm   | N             | R(0), R(N/2), R(k), I(k) for 1..q    | as Pack
 *
 * Forward transforms write +0 to the parts of CCS that are zero, inverse ones never read them.
 * The macros that follow are these numbers of elements, constant where n is.
 */

/** Bins of a half spectrum of n samples, the first and the last included. */
#define HALDGEN_BINS(n) ((n) / 2 + 1)
/** Floats of a half spectrum of n samples in CCS format. */
#define HALDGEN_CCS_SIZE(n) (2 * HALDGEN_BINS(n))
/** Floats of a half spectrum of n samples in Pack format. */
#define HALDGEN_PACK_SIZE(n) (n)
/** Floats of a half spectrum of n samples in Perm format. */
#define HALDGEN_PERM_SIZE(n) (n)

/** Which build of the library this is. */
typedef struct {
  int32_t majorVersion;    /**< major release */
  int32_t minorVersion;    /**< minor release */
  int32_t updateLevel;     /**< update within the minor release */
  int32_t sourceRevision;  /**< revision of the sources */
  char processorTag[4];    /**< processor class of the kernels, padded with zero bytes */
  const char* name;        /**< library, instruction set and processor class */
  const char* versionText; /**< the four numbers as text */
  const char* buildDate;   /**< date of the build */
} LibraryVersion;
)";

constexpr std::string_view state_type = R"(
/** A planned DCT-IV; what is in it concerns the library alone. */
typedef struct Dct4State Dct4State;
)";

constexpr std::string_view epilogue = R"(
#ifdef __cplusplus
}
#endif

#endif /* HALDGEN_H */
)";

// The scale by flag; `fwd` and `inv` are the scales of the two flags that divide in one direction.
std::string scaling_table(std::string_view fwd, std::string_view inv) {
  return "@param flag    selects the scale s:\n"
         "    - haldScaleFwdByN:  s = " +
         std::string(fwd) +
         "\n"
         "    - haldScaleInvByN:  s = " +
         std::string(inv) +
         "\n"
         "    - haldScaleBySqrtN: s = 1/sqrt(N)\n"
         "    - haldScaleNone:    s = 1";
}

bool takes_state(const Word& word) {
  return word.signature == Signature::plan_init || word.signature == Signature::plan_init_alloc ||
         word.signature == Signature::plan_free || word.signature == Signature::planned_transform;
}

/// Of one function.
std::string title(const Word& word, int size) {
  const std::string transform = transform_title(word);
  if (is_general(word)) {
    return transform + (has_order(word) ? " of an order" : " of a length") + " known at run time";
  }
  if (!size_in_name(word)) return word.text.title;
  const std::string points = std::to_string(names::arrays(word, size).points) + " points";
  return transform + " of " + points +
         (has_order(word) ? ", order " + std::to_string(size) : std::string());
}

void emit_declarations(std::ostream& out, const Word& word) {
  for (const Element element : word.elements) {
    const auto emit = [&](int size) {
      emit_prototype(out, summary(title(word, size), element, word.usage.scaling),
                     declaration(word.signature, element, export_name(word, element, size)));
    };
    if (size_in_name(word)) {
      for (const int size : word.sizes) emit(size);
    } else {
      emit(0);
    }
  }
}

void emit_word(std::ostream& out, const Word& word) {
  if (word.text.result.empty()) throw std::logic_error("no documentation for " + word.word);
  out << "\n/**\n * @name " << word.text.title << "\n *\n";
  emit_comment(out, {word.text.definition, scaling_text(word.usage.scaling), word.text.result});
  out << " * @{\n */\n";
  emit_declarations(out, word);
  out << "/** @} */\n";
}

}  // namespace

std::string scaling_text(Scaling scaling) {
  switch (scaling) {
    case Scaling::none:
      return "";
    case Scaling::forward:
      return scaling_table("1/N", "1");
    case Scaling::inverse:
      return scaling_table("1", "1/N");
    case Scaling::directionless:
      return scaling_table("1/N", "1/N");
  }
  throw std::logic_error("unknown scaling");
}

names::Element element_of(names::Layout layout, Element element) {
  if (layout != names::Layout::ccs) return element;
  return element == Element::f32 ? Element::c32 : Element::c64;
}

std::string transform_title(const Word& word) {
  return word.text.title.substr(0, word.text.title.find(','));
}

std::string summary(const std::string& title, Element element, Scaling scaling) {
  std::string text = title;
  if (element != Element::none) {
    const bool is_float = element == Element::f32 || element == Element::c32;
    text += is_float ? ", 32-bit floats" : ", 64-bit floats";
  }
  return text + (scaling == Scaling::none ? "." : "; scaled as flag says.");
}

void emit_prototype(std::ostream& out, const std::string& summary, const std::string& declaration) {
  constexpr std::string_view nothrow = "HALDGEN_NOTHROW;";
  constexpr std::size_t columns = 100;
  const std::size_t last_line = declaration.size() - (declaration.rfind('\n') + 1);
  const bool fits = last_line + 1 + nothrow.size() <= columns;
  out << "/** " << summary << " */\n" << declaration << (fits ? " " : "\n    ") << nothrow << "\n";
}

void emit_comment(std::ostream& out, std::initializer_list<std::string_view> parts) {
  for (const std::string_view part : parts) {
    std::istringstream lines{std::string(part)};
    for (std::string line; std::getline(lines, line);) {
      out << (line.empty() ? " *" : " * ") << line << "\n";
    }
  }
}

std::string emit_header() {
  std::ostringstream out;
  out << prologue << version_macros << types;
  if (std::ranges::any_of(registry::words(), takes_state)) out << state_type;
  for (const Word& word : registry::words()) emit_word(out, word);
  out << epilogue;
  return out.str();
}

}  // namespace haldgen::frame
