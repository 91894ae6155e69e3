#include "family/batch.h"

#include <algorithm>
#include <vector>

namespace haldgen::family {
namespace {

FloatType type_of(names::Element element) {
  const bool in32 = element == names::Element::f32 || element == names::Element::c32;
  return in32 ? FloatType::f32 : FloatType::f64;
}

bool is_complex(names::Element element) {
  return element == names::Element::c32 || element == names::Element::c64;
}

}  // namespace

std::string batch_symbol(const std::string& family, names::Element element, int size) {
  std::string text = family;
  std::ranges::replace(text, '-', '_');
  return text + "_" + std::to_string(size) + "_" + std::string(names::suffix(element));
}

Source batch_source(const std::string& family, int size, names::Element element) {
  Source source;
  source.title = "Batches of the family " + family + ", length " + std::to_string(size);
  source.type = type_of(element);
  source.command = family + " " + std::to_string(size) + " " + std::string(names::suffix(element));
  source.includes = {"batch/body.h"};
  source.scope = "batch";
  return source;
}

namespace {

Kernel body_kernel(const LaneBody& body, const kernelgen::Program& program, const Choice& choice) {
  std::vector<int> lengths{body.length};
  if (body.convolution) lengths.push_back(*body.convolution);
  const auto constants = named_constants(program, kernelgen::ConstantNames(lengths));
  Kernel kernel;
  kernel.name = body.name;
  kernel.remark = ordered_by(choice, program.lanes > 1);
  kernel.members = "  using Float = " + kernelgen::type_name(program.type) + ";\n";
  if (!is_complex(body.element)) {
    kernel.members +=
        "  [[maybe_unused]] static constexpr int kLength = " + std::to_string(body.length) + ";\n";
  }
  kernel.members += emit_constants(constants, "  static ");
  kernel.function =
      "template <class V, class Io>\n  HALDGEN_INLINE static void run(const Io& io, Float scale)";
  kernel.body = emit_body(program, {}, constants);
  return kernel;
}

/// Where much of a mixed program's work is in 64 bits, vectors of half the width, which are whole
/// ones there, do it in as much time and with half the code.
bool is_mostly_wide(const kernelgen::Program& lanes) {
  const auto wide =
      std::ranges::count_if(lanes.code, [](const kernelgen::Instruction& in) { return in.wide; });
  return lanes.type == FloatType::f32 &&
         5 * wide > 2 * static_cast<std::ptrdiff_t>(lanes.code.size());
}

}  // namespace

Kernel lane_kernel(const LaneBody& body, kernelgen::Program program, const Choice& choice) {
  program.lanewise = true;
  program.memory = is_complex(body.element) ? kernelgen::Memory::elements
                   : body.stores_bins       ? kernelgen::Memory::half_spectrum
                                            : kernelgen::Memory::slots;
  return body_kernel(body, program, choice);
}

Kernel block_kernel(const LaneBody& body, kernelgen::Program program, const Choice& choice) {
  program.memory = kernelgen::Memory::blocks;
  return body_kernel(body, program, choice);
}

namespace {

/// What a point of a program costs: its instructions but loads and stores, those in 64 bits of a
/// mixed program, which take two vectors, counted so many times.
double work_of_point(const kernelgen::Program& lanes, int length, int wide) {
  int work = 0;
  for (const kernelgen::Instruction& in : lanes.code) {
    if (kernelgen::is_load(in.op) || kernelgen::is_store(in.op)) continue;
    work += in.wide && lanes.type == FloatType::f32 ? wide : 1;
  }
  return static_cast<double>(work) / length;
}

}  // namespace

bool is_light(const kernelgen::Program& lanes, int length) {
  return work_of_point(lanes, length, 1) <= 25;
}

bool is_of_blocks(const kernelgen::Program& packed) {
  using kernelgen::Op;
  std::ptrdiff_t whole = 0;
  std::ptrdiff_t halves = 0;
  for (const kernelgen::Instruction& in : packed.code) {
    if (in.op == Op::load || in.op == Op::store) {
      ++whole;
    } else if (in.op != Op::zero && (kernelgen::is_load(in.op) || kernelgen::is_store(in.op))) {
      ++halves;
    }
  }
  return packed.lanes > 1 && halves <= whole / 4;
}

std::string real_batch(const std::string& family, int size, names::Element element,
                       const kernelgen::Program& lanes, const std::string& sides) {
  // The less there is to do, the more a way through tiles counts.
  const std::string reach = work_of_point(lanes, size, 2) <= 12 ? "bins"
                            : is_light(lanes, size)             ? "columns"
                                                                : "tiles";
  const std::string symbol = "const RealKernel<" + kernelgen::type_name(type_of(element)) + "> " +
                             batch_symbol(family, element, size);
  return "extern " + symbol + ";\n" + symbol + " = real_kernel<Body, " +
         (is_mostly_wide(lanes) ? "Width::half" : "Width::whole") + ", " + "Reach::" + reach +
         ", " + sides + ">();\n";
}

std::string complex_batch(const std::string& family, int size, names::Element element,
                          const std::string& forward, const std::string& inverse) {
  const std::string symbol = "const ComplexPair<" + kernelgen::type_name(type_of(element)) + "> " +
                             batch_symbol(family, element, size);
  return "extern " + symbol + ";\n" + symbol + "{" + forward + ", " + inverse + "};\n";
}

}  // namespace haldgen::family
