#include "kernelgen/emit.h"

#include <charconv>

namespace haldgen::kernelgen {
namespace {

template <class Float>
std::string shortest(Float value) {
  char digits[64];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  std::string text(digits, end);
  if (text.find_first_of(".e") == std::string::npos) text += ".0";
  return text;
}

class Printer {
 public:
  explicit Printer(const Program& program) : program_(program) {}

  std::string run() {
    if (!scalar() && program_.memory == Memory::arrays) define_scales();
    for (std::size_t i = 0; i < program_.code.size(); ++i) print(static_cast<int>(i));
    return std::move(text_);
  }

 private:
  bool scalar() const { return program_.lanes == 1; }
  bool f32() const { return program_.type == FloatType::f32; }

  void line(const std::string& content) { text_ += "    " + content + "\n"; }

  static std::string name(int value) { return "v" + std::to_string(value); }
  static std::string at(const char* base, int address) {
    return address == 0 ? base : base + (" + " + std::to_string(address));
  }

  /// Which of the scale vectors an instruction takes: bit j says that lane j is negated.
  static int scale_mask(const Instruction& in) {
    return (in.constant[0] < 0 ? 1 : 0) | (in.constant[1] < 0 ? 2 : 0);
  }

  void define_scales() {
    line("const V s0 = lanes::broadcast(scale);");
    for (int mask = 1; mask < 4; ++mask) {
      for (const Instruction& in : program_.code) {
        if (in.op != Op::scale || scale_mask(in) != mask) continue;
        Instruction signs;
        for (int l = 0; l < program_.lanes; ++l) {
          signs.constant[static_cast<std::size_t>(l)] = (mask >> (l % 2)) & 1 ? -0.0 : 0.0;
        }
        line("const V s" + std::to_string(mask) + " = lanes::change_sign(s0, " + constants(signs) +
             ");");
        break;
      }
    }
  }

  void define(int index, const std::string& expression) {
    const Instruction& in = program_.code[static_cast<std::size_t>(index)];
    const char* type = "V";
    if (scalar()) type = f32() && !(in.wide && in.op != Op::narrow) ? "float" : "double";
    line(std::string("const ") + type + " " + name(index) + " = " + expression + ";");
  }

  std::string constants(const Instruction& in) const {
    if (scalar()) {
      return literal(in.constant[0], f32() && !in.wide ? FloatType::f32 : FloatType::f64);
    }
    std::string text = "V{";
    for (int l = 0; l < program_.lanes; ++l) {
      text +=
          (l > 0 ? ", " : "") + literal(in.constant[static_cast<std::size_t>(l)], program_.type);
    }
    return text + "}";
  }

  std::string slot(const Instruction& in) const {
    return "<" + std::to_string(in.address[0] / program_.lanes) + ">";
  }

  void print(int index) {
    const Instruction& in = program_.code[static_cast<std::size_t>(index)];
    const std::string a = name(in.a);
    const std::string b = name(in.b);
    if (program_.memory == Memory::slots) {
      if (in.op == Op::load) return define(index, "io.template load" + slot(in) + "()");
      if (in.op == Op::store) return line("io.template store" + slot(in) + "(" + a + ");");
    }
    switch (in.op) {
      case Op::load:
        return define(index, scalar() ? "src[" + std::to_string(in.address[0]) + "]"
                                      : "Access::load(" + at("src", in.address[0]) + ")");
      case Op::load_pair:
        return define(index, "lanes::load_pair(" + at("src", in.address[0]) + ", " +
                                 at("src", in.address[1]) + ")");
      case Op::load_single:
        return define(index, "lanes::load_single(" + at("src", in.address[0]) + ")");
      case Op::zero:
        return define(index, scalar() ? "0" : "V{}");
      case Op::add:
        return define(index, a + " + " + b);
      case Op::subtract:
        return define(index, a + " - " + b);
      case Op::alternate:
        return define(index, "lanes::alternate(" + a + ", " + b + ")");
      case Op::multiply:
        return define(index, constants(in) + " * " + a);
      case Op::product:
        return define(index, a + " * " + b);
      case Op::interleave_lower:
        return define(index, "lanes::interleave_lower(" + a + ", " + b + ")");
      case Op::interleave_upper:
        return define(index, "lanes::interleave_upper(" + a + ", " + b + ")");
      case Op::sign:
        return define(index, "lanes::change_sign(" + a + ", " + constants(in) + ")");
      case Op::exchange:
        return define(index, "lanes::exchange(" + a + ")");
      case Op::gather:
        return define(index, "lanes::gather<" + std::to_string(in.half[0]) + ", " +
                                 std::to_string(in.half[1]) + ", " + std::to_string(in.cross[0]) +
                                 ", " + std::to_string(in.cross[1]) + ">(" + a + ", " + b + ")");
      case Op::negate:
        return define(index, std::string(f32() && !in.wide ? "0.0f - " : "0.0 - ") + a);
      case Op::widen:
        return define(index, a);
      case Op::narrow:
        return define(index, "static_cast<float>(" + a + ")");
      case Op::scale:
        return define(
            index,
            (scalar() ? std::string("scale") : "s" + std::to_string(scale_mask(in))) + " * " + a);
      case Op::store:
        return line(scalar() ? "dst[" + std::to_string(in.address[0]) + "] = " + a + ";"
                             : "Access::store(" + at("dst", in.address[0]) + ", " + a + ");");
      case Op::store_pair:
        return line("lanes::store_pair(" + at("dst", in.address[0]) + ", " +
                    at("dst", in.address[1]) + ", " + a + ");");
      case Op::store_single:
        return line("lanes::store_single(" + at("dst", in.address[0]) + ", " + a + ");");
      case Op::store_upper:
        return line("lanes::store_upper(" + at("dst", in.address[0]) + ", " + a + ");");
    }
  }

  const Program& program_;
  std::string text_;
};

}  // namespace

std::string literal(double value, FloatType type) {
  if (type == FloatType::f32) return shortest(static_cast<float>(value)) + "f";
  return shortest(value);
}

std::string emit_body(const Program& program) { return Printer(program).run(); }

bool has_whole_vector_access(const Program& program) {
  if (program.lanes == 1) return false;
  for (const Instruction& in : program.code) {
    if (in.op == Op::load || in.op == Op::store) return true;
  }
  return false;
}

}  // namespace haldgen::kernelgen
