#include "family/source.h"

#include "kernelgen/beside.h"

namespace haldgen::family {
namespace {

std::string struct_of(const Kernel& kernel) {
  std::string text = kernel.remark.empty() ? "" : "// " + kernel.remark + "\n";
  text += "struct " + kernel.name + " {\n" + kernel.members + "\n  " + kernel.function + " {\n";
  return text + kernel.body + "  }\n};\n\n";
}

}  // namespace

std::string print(const Source& source) {
  const std::string space = "namespace haldgen::" + source.scope;
  std::string text = "// " + source.title + ", ";
  text += source.type == FloatType::f32 ? "32" : "64";
  text += "-bit elements. Generated; do not edit.\n";
  if (!source.algorithm.empty()) text += "//   algorithm: " + source.algorithm + "\n";
  text += source.operations;
  text += "//   haldgen-generate code " + source.command + "\n";
  for (const std::string& include : source.includes) text += "#include \"" + include + "\"\n";
  text += "\n" + space + " {\n";
  if (!source.kernels.empty()) {
    text += "namespace {\n\n";
    for (const Kernel& kernel : source.kernels) text += struct_of(kernel);
    text += "}  // namespace\n";
  }
  for (const std::string& function : source.functions) text += "\n" + function;
  return text + "\n}  // " + space + "\n";
}

names::Element real_element(FloatType type) {
  return type == FloatType::f32 ? names::Element::f32 : names::Element::f64;
}

names::Element complex_element(FloatType type) {
  return type == FloatType::f32 ? names::Element::c32 : names::Element::c64;
}

std::string ordered_by(const Choice& choice, bool has_forms) {
  std::string text = "Instructions by " + std::string(name_of(choice.ordering.order));
  if (choice.ordering.cap != 0) {
    text += ", for " + std::to_string(choice.ordering.cap) + " live values";
  }
  if (choice.pairs) {
    text += "; pairs at distances of " + std::to_string(choice.pairs->source) + " at the source, " +
            std::to_string(choice.pairs->destination) + " at the destination";
  }
  if (choice.through_memory) text += "; what is widened goes through memory";
  if (has_forms) text += "; forms by seed " + std::to_string(choice.seed);
  return text + ".";
}

kernelgen::Program tuned(const kernelgen::Program& scalar, const Choice& choice,
                         const kernelgen::Overlap& overlap) {
  return scheduled(choice.pairs ? beside(scalar, *choice.pairs) : scalar, choice.ordering, overlap);
}

namespace {

Kernel transform_kernel(Transforms::Body body) {
  body.program.widens_through_memory = body.choice.through_memory;
  const auto& [transform, program, choice] = body;
  const bool vectors = program.lanes > 1;
  Kernel kernel;
  kernel.name = transform.name;
  kernel.remark = ordered_by(choice, vectors);
  kernel.members = "  using Float = " + kernelgen::type_name(program.type) + ";\n";
  kernel.members += "  using Element = " + std::string(c_type(transform.element)) + ";\n";
  if (program.memory == kernelgen::Memory::paired) {
    kernel.members += "  using V = lanes::WideVector<Float, 16>;\n";
    kernel.members += "  using W = lanes::WideVector<Float, 32>;\n";
  } else if (vectors) {
    kernel.members += "  using V = " + kernelgen::vector_name(program) + ";\n";
  }
  kernel.members += std::string("  static constexpr bool kPathsDiffer = ") +
                    (kernelgen::has_whole_vector_access(program) ? "true" : "false") + ";\n" +
                    kernelgen::scale_members(transform.length, transform.divides, program.type);
  kernel.function =
      "template <class " + transform.memory +
      ">\n  HALDGEN_INLINE static void transform(const Float* src, Float* dst, Float scale)";
  const auto constants = constants_of(body);
  kernel.members += emit_constants(constants, "  static ");
  kernel.body = emit_body(program, transform.subscripts, constants) + transform.epilogue;
  return kernel;
}

/// Definition of the function behind an exported name, which runs a kernel: "Forward", or "Kernel,
/// Format<..>".
std::string transform_function(const std::string& exported_name, names::Element element,
                               const std::string& kernel) {
  return "extern \"C\" " +
         declaration(names::Signature::transform, element,
                     names::implementation_symbol(exported_name)) +
         " {\n  return family::run<" + kernel + ">(src, dst, flag);\n}\n";
}

}  // namespace

std::vector<kernelgen::NamedConstant> constants_of(const Transforms::Body& body) {
  std::vector<int> lengths{body.transform.length};
  if (body.transform.convolution) lengths.push_back(*body.transform.convolution);
  return named_constants(body.program, kernelgen::ConstantNames(lengths));
}

Source source_of(const Transforms& transforms) {
  Source source{.title = transforms.title,
                .type = transforms.type,
                .algorithm = transforms.algorithm,
                .operations = transforms.operations,
                .command = transforms.command,
                .includes = transforms.includes,
                .scope = transforms.scope,
                .kernels = {},
                .functions = {}};
  for (const Transforms::Body& body : transforms.bodies) {
    source.kernels.push_back(transform_kernel(body));
  }
  for (const Transforms::Function& function : transforms.functions) {
    const std::string& body = source.kernels[function.body].name;
    source.functions.push_back(transform_function(
        names::export_name(function.word, transforms.element, transforms.length),
        transforms.element, function.memory.empty() ? body : body + ", " + function.memory));
  }
  return source;
}

}  // namespace haldgen::family
