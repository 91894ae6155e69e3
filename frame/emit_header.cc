// Text of the public header.
#include <algorithm>
#include <initializer_list>
#include <sstream>
#include <stdexcept>

#include "frame/emit.h"
#include "frame/text.h"
#include "registry/registry.h"

namespace haldgen::frame {
namespace {

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
 * - A failure is only returned as a status, and then dst is not written.
 *
 * This file is written by haldgen-framegen; do not edit it.
 */
#ifndef HALDGEN_H
#define HALDGEN_H

#include <stdint.h>

/**
 * Version of the bits. Libraries with the same number give the same results, to the bit and the
 * sign of a zero. What a NaN holds besides being one is not promised.
 */
#define HALDGEN_BITS_VERSION 1

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
 */

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

void emit_declarations(std::ostream& out, const Word& word) {
  for (const names::Element element : word.elements) {
    const auto emit = [&](int size) {
      out << declaration(word.signature, element, export_name(word, element, size)) << ";\n";
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
  out << prologue;
  if (std::ranges::any_of(registry::words(), takes_state)) out << state_type;
  for (const Word& word : registry::words()) emit_word(out, word);
  out << epilogue;
  return out.str();
}

}  // namespace haldgen::frame
