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

Kernel lane_kernel(const LaneBody& body, kernelgen::Program program, const Choice& choice) {
  program.lanewise = true;
  program.memory =
      is_complex(body.element) ? kernelgen::Memory::elements : kernelgen::Memory::slots;
  std::vector<int> lengths{body.length};
  if (body.convolution) lengths.push_back(*body.convolution);
  const auto constants = named_constants(program, kernelgen::ConstantNames(lengths));
  Kernel kernel;
  kernel.name = body.name;
  kernel.remark = ordered_by(choice, false);
  kernel.members = "  using Float = " + kernelgen::type_name(program.type) +
                   ";\n  static constexpr int kLength = " + std::to_string(body.length) + ";\n" +
                   emit_constants(constants, "  static ");
  kernel.function =
      "template <class V, class Io>\n  HALDGEN_INLINE static void run(const Io& io, Float scale)";
  kernel.body = emit_body(program, {}, constants);
  return kernel;
}

std::string real_batch(const std::string& family, int size, names::Element element,
                       const std::string& sides) {
  const std::string symbol = batch_symbol(family, element, size);
  const std::string type = kernelgen::type_name(type_of(element));
  return "extern RealKernel<" + type + "> " + symbol + ";\nvoid " + symbol + "(const RealRun<" +
         type + ">& run) {\n  run_real<Body, " + sides + ">(run);\n}\n";
}

std::string complex_batch(const std::string& family, int size, names::Element element,
                          const std::string& inverse) {
  const std::string symbol = "const ComplexPair<" + kernelgen::type_name(type_of(element)) + "> " +
                             batch_symbol(family, element, size);
  return "extern " + symbol + ";\n" + symbol +
         "{kComplexKernels<Forward, false>, kComplexKernels<" + inverse + ">};\n";
}

}  // namespace haldgen::family
