#include "generate/single.h"

#include <algorithm>
#include <cstdio>
#include <sstream>
#include <stdexcept>

#include "accuracy/measure.h"
#include "generate/licence.h"
#include "generate/words.h"
#include "haldgen.h"
#include "kernelgen/design_table.h"
#include "kernelgen/emit.h"
#include "names/arrays.h"

namespace haldgen::generate {
namespace {

using family::FloatType;
using family::Transforms;
using kernelgen::Language;
using kernelgen::Program;
using names::Word;

const Word& fixed_word(const family::Family& family, const std::string& word) {
  for (const Word& candidate : family.words) {
    if (candidate.word == word && size_in_name(candidate)) return candidate;
  }
  throw std::logic_error("no word " + word);
}

Transforms transforms_of(const Single& kernel) {
  return kernel.family->generated->transforms(kernel.length, kernel.type, kernel.tuning);
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
  }
  return text;
}

/// The lines of a text behind " * ".
std::string comment_lines(const std::string& text) {
  std::string result;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    result += (line.empty() ? " *" : " * ") + line + "\n";
  }
  return result;
}

// Rounding errors.

template <class Float>
std::string error_of(const Single& kernel, const Transforms& transforms,
                     const Transforms::Function& function) {
  const bool to_spectrum = !transforms.bodies[0].transform.subscripts.destination.empty();
  const bool from_spectrum = !transforms.bodies[0].transform.subscripts.source.empty();
  const auto places = [&](std::size_t i) { return static_cast<std::size_t>(function.places[i]); };
  const Program& program = transforms.bodies[function.body].program;
  const accuracy::Kernel<Float> run = [&](const std::vector<Float>& src, std::vector<Float>& dst) {
    std::vector<Float> in = src;
    if (from_spectrum) {
      in.resize(function.places.size());
      for (std::size_t i = 0; i < in.size(); ++i) in[i] = src[places(i)];
    }
    std::vector<Float> out(to_spectrum ? function.places.size() : dst.size());
    kernelgen::interpret(program, in, Float{1}, out);
    if (!to_spectrum) {
      dst = out;
      return;
    }
    std::ranges::fill(dst, Float{0});
    for (std::size_t i = 0; i < out.size(); ++i) dst[places(i)] = out[i];
  };
  const std::string name = function.places.empty() ? kernel.family->name : "real";
  const bool inverse = function.word.starts_with("DFTInv");
  const accuracy::Figures figures =
      accuracy::figures(run, accuracy::definition(name, kernel.length, inverse), kernel.length);
  char text[80];
  std::snprintf(text, sizeof text, "%.2f of all calls, %.2f of the worst call, %.2f of an element",
                figures.mean, figures.worst_call, figures.largest);
  return text;
}

/// A line for each body, by the first function that runs it.
std::string errors(const Single& kernel, const Transforms& transforms) {
  std::string text = "  error of " + std::to_string(accuracy::kInputs) +
                     " random inputs in units of 2^-" +
                     (kernel.type == FloatType::f32 ? "23" : "52") + ":\n";
  for (std::size_t body = 0; body < transforms.bodies.size(); ++body) {
    const auto runs = [&](const Transforms::Function& f) { return f.body == body; };
    const Transforms::Function& function = *std::ranges::find_if(transforms.functions, runs);
    text += "    " +
            (kernel.type == FloatType::f32 ? error_of<float>(kernel, transforms, function)
                                           : error_of<double>(kernel, transforms, function)) +
            (transforms.bodies.size() == 1 ? ""
             : body == 0                   ? ", forward"
                                           : ", inverse") +
            "\n";
  }
  return text;
}

// What callers see.

constexpr std::string_view contract =
    R"(The functions keep the contract of the library's: dst may be the same array as src and must not
overlap it in any other way; src is only read; any number of threads may call at once; nothing is
allocated. Any alignment of an element's own float type will do, real arrays take any address. The
same input gives the same bits on every call, compiler and machine.
)";

std::string flags_text(names::Scaling scaling) {
  return "@param flag    the scale s: haldScaleFwdByN is " +
         std::string(scaling == names::Scaling::inverse ? "1" : "1/N") + ", haldScaleInvByN " +
         (scaling == names::Scaling::forward ? "1" : "1/N") +
         ", haldScaleBySqrtN 1/sqrt(N),\n               haldScaleNone 1\n";
}

/// The types and numbers of haldgen.h, once in a program.
std::string types() {
  const auto number = [](const char* name, int value) {
    return "  " + std::string(name) + " = " + std::to_string(value);
  };
  return "/* As in haldgen.h, which is to be included first where it is included too. */\n"
         "#if !defined(HALDGEN_H) && !defined(HALDGEN_KERNEL_TYPES)\n"
         "#define HALDGEN_KERNEL_TYPES\n"
         "typedef struct {\n  float re;\n  float im;\n} Cplx32;\n"
         "typedef struct {\n  double re;\n  double im;\n} Cplx64;\n"
         "enum {\n" +
         number("haldStatusOk", haldStatusOk) + ",\n" +
         number("haldStatusNullPointer", haldStatusNullPointer) + ",\n" +
         number("haldStatusFlagError", haldStatusFlagError) + "\n};\nenum {\n" +
         number("haldScaleFwdByN", haldScaleFwdByN) + ",\n" +
         number("haldScaleInvByN", haldScaleInvByN) + ",\n" +
         number("haldScaleBySqrtN", haldScaleBySqrtN) + ",\n" +
         number("haldScaleNone", haldScaleNone) + "\n};\n#endif\n";
}

std::string declarations(const Single& kernel, const Transforms& transforms) {
  std::string text;
  for (const Transforms::Function& function : transforms.functions) {
    const Word& word = fixed_word(*kernel.family, function.word);
    const std::string title = word.text.title.substr(0, word.text.title.find(','));
    text +=
        "/**\n" +
        comment_lines(title + ", N = " + std::to_string(kernel.length) + "\n\n" +
                      word.text.definition.substr(0, word.text.definition.find("The length N")) +
                      word.text.definition.substr(word.text.definition.find("@param")) + "\n" +
                      flags_text(word.usage.scaling) + word.text.result) +
        " */\n" +
        names::declaration(word.signature, transforms.element,
                           names::export_name(function.word, transforms.element, kernel.length)) +
        ";\n\n";
  }
  return text;
}

constexpr std::string_view extern_c = "#ifdef __cplusplus\nextern \"C\" {\n#endif\n\n";
constexpr std::string_view end_of_extern_c = "#ifdef __cplusplus\n}\n#endif\n";

// The kernels.

constexpr std::string_view demands = R"(#if !defined(__GNUC__)
#error "for GNU C or C++: g++, clang"
#elif defined(__FAST_MATH__)
#error "-ffast-math would change the bits"
#elif defined(__i386__) && !defined(__SSE2_MATH__)
#error "the bits are those of -msse2 -mfpmath=sse"
#endif
/* No product is joined with a sum, whatever the processor has: the bits are promised. Kernels are
   in a good order as they stand, and their scalars stay scalars. */
#if defined(__clang__)
#pragma STDC FP_CONTRACT OFF
#else
#pragma GCC optimize("fp-contract=off", "no-tree-vectorize", "no-tree-slp-vectorize")
#endif
#define WORD static inline __attribute__((always_inline, unused))
)";

constexpr std::string_view own_stack = R"(/* Functions align their stack for vectors themselves. */
#if defined(__x86_64__) || defined(__i386__)
#define ENTRY __attribute__((force_align_arg_pointer))
#else
#define ENTRY
#endif
)";

/// A body's last parameter besides arrays and scale.
std::string parameter(const Transforms::Body& body, const Transforms::Function& function) {
  if (!function.places.empty()) return ", const unsigned char* at";
  return body.program.lanes > 1 ? ", int aligned" : "";
}

std::string lower(std::string name) {
  std::ranges::transform(name, name.begin(), [](unsigned char c) {
    return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
  });
  return name;
}

std::string body_text(const Transforms& transforms, std::size_t index) {
  const Transforms::Body& body = transforms.bodies[index];
  const auto runs = [&](const Transforms::Function& f) { return f.body == index; };
  const Transforms::Function& function = *std::ranges::find_if(transforms.functions, runs);
  const auto constants = constants_of(body);
  kernelgen::Subscripts subscripts;
  if (!body.transform.subscripts.source.empty()) subscripts.source = "at";
  if (!body.transform.subscripts.destination.empty()) subscripts.destination = "at";
  const bool both_ways = has_whole_vector_access(body.program);
  return "\n/* " + ordered_by(body.choice, body.program.lanes > 1) + " */\nWORD void " +
         lower(body.transform.name) + "(const Float* src, Float* dst, Float scale" +
         parameter(body, function) + ") {\n" +
         (body.program.lanes > 1 && !both_ways ? "  (void)aligned;\n" : "") +
         emit_constants(constants, "  static ", Language::c) +
         emit_body(body.program, subscripts, constants, Language::c) + "}\n";
}

/// Positions of dst that hold no value.
std::vector<std::size_t> cleared(const Word& word, const Transforms::Function& function,
                                 int length) {
  std::vector<std::size_t> positions;
  if (function.places.empty() || word.usage.dst == names::Layout::real) return positions;
  const std::size_t count = names::arrays(word, length).dst_floats;
  for (std::size_t i = 0; i < count; ++i) {
    if (std::ranges::find(function.places, static_cast<int>(i)) == function.places.end()) {
      positions.push_back(i);
    }
  }
  return positions;
}

std::string function_text(const Single& kernel, const Transforms& transforms,
                          const Transforms::Function& function) {
  const Transforms::Body& body = transforms.bodies[function.body];
  const Word& word = fixed_word(*kernel.family, function.word);
  const std::string name = names::export_name(function.word, transforms.element, transforms.length);
  const std::string run = lower(body.transform.name);
  const std::string zero = kernelgen::literal(0, transforms.type);
  const auto factors =
      kernelgen::factors_by_flag(transforms.length, body.transform.divides, transforms.type);
  const bool both_ways = has_whole_vector_access(body.program);
  std::string text = "\n";
  if (both_ways) {
    text += "static __attribute__((noinline)) void " + run +
            "_anywhere(const Float* src, Float* dst, Float scale) {\n  " + run +
            "(src, dst, scale, 0);\n}\n\n";
  }
  text += std::string(body.program.lanes > 1 ? "ENTRY " : "") +
          names::declaration(word.signature, transforms.element, name) + " {\n";
  if (!function.places.empty()) {
    text += "  /* Where R(0), R(1), I(1), .. stand. */\n  static const unsigned char at[] = {";
    for (std::size_t i = 0; i < function.places.size(); ++i) {
      text += (i == 0 ? "" : i % 20 == 0 ? ",\n      " : ", ") + std::to_string(function.places[i]);
    }
    text += "};\n";
  }
  text += "  Float scale = " + kernelgen::literal(1, transforms.type) +
          ";\n  if (src == NULL || dst == NULL) return haldStatusNullPointer;\n"
          "  switch (flag) {\n    case haldScaleFwdByN:\n      scale = " +
          factors[0] + ";\n      break;\n    case haldScaleInvByN:\n      scale = " + factors[1] +
          ";\n      break;\n    case haldScaleBySqrtN:\n      scale = " + factors[2] +
          ";\n      break;\n    case haldScaleNone:\n      break;\n    default:\n"
          "      return haldStatusFlagError;\n  }\n";
  const std::string arrays = "((const Float*)src, (Float*)dst, scale";
  if (both_ways) {
    text += "  if ((((uintptr_t)src | (uintptr_t)dst) & 15) != 0) {\n    " + run + "_anywhere" +
            arrays + ");\n  } else {\n    " + run + arrays + ", 1);\n  }\n";
  } else {
    text += "  " + run + arrays +
            (!function.places.empty() ? ", at"
             : body.program.lanes > 1 ? ", 1"
                                      : "") +
            ");\n";
  }
  for (const std::size_t position : cleared(word, function, transforms.length)) {
    text += "  store(dst + " + std::to_string(position) + ", " + zero + ");\n";
  }
  return text + "  return haldStatusOk;\n}\n";
}

std::string head(const Single& kernel, const Transforms& transforms) {
  const std::string bits = kernel.type == FloatType::f32 ? "32" : "64";
  std::string operations = replaced(transforms.operations, "//   ", "  ");
  return "/*\n" +
         comment_lines(transforms.title + ", " + bits + "-bit elements: a kernel of haldgen " +
                       HALDGEN_SINGLE_VERSION + " that stands alone.\n" + "  algorithm: " +
                       transforms.algorithm + "\n" + operations + errors(kernel, transforms) +
                       "  haldgen-generate single " + transforms.command + "\n\n" +
                       std::string(contract) + "\n" + std::string(licence)) +
         " */\n";
}

}  // namespace

std::vector<int> single_lengths(const family::Family& family) {
  if (!family.generated || family.generated->transforms == nullptr) return {};
  std::vector<int> lengths(family.sizes.begin(), family.sizes.end());
  for (int n = family.sizes.last() + 1; n <= kernelgen::kLongestByRule; ++n) lengths.push_back(n);
  return lengths;
}

std::string single_file(const Single& kernel) {
  const Transforms transforms = transforms_of(kernel);
  const bool vectors = transforms.bodies[0].program.lanes > 1;
  std::string text = head(kernel, transforms);
  text += "#include <stddef.h>\n#include <stdint.h>\n#include <string.h>\n";
  if (vectors) text += vector_includes;
  text += "\n" + std::string(demands) + (vectors ? std::string(own_stack) : "") + "\n" + types() +
          "\n" + std::string(extern_c) + declarations(kernel, transforms) +
          std::string(end_of_extern_c) + "\ntypedef " + kernelgen::type_name(transforms.type) +
          " Float;\n";
  text += !vectors                            ? scalar_words
          : transforms.type == FloatType::f32 ? vector_words_32
                                              : vector_words_64;
  for (std::size_t i = 0; i < transforms.bodies.size(); ++i) text += body_text(transforms, i);
  for (const Transforms::Function& function : transforms.functions) {
    text += function_text(kernel, transforms, function);
  }
  return text;
}

std::string single_header(const std::vector<Single>& kernels) {
  std::string text = "/* Kernels of haldgen " + std::string(HALDGEN_SINGLE_VERSION) +
                     " that stand alone. Written by haldgen-generate.\n *\n" +
                     comment_lines(std::string(contract)) + " */\n#pragma once\n\n" +
                     "#include <stdint.h>\n\n" + types() + "\n" + std::string(extern_c);
  for (const Single& kernel : kernels) text += declarations(kernel, transforms_of(kernel));
  return text + std::string(end_of_extern_c);
}

}  // namespace haldgen::generate
