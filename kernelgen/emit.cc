#include "kernelgen/emit.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <set>
#include <stdexcept>

#include "kernelgen/wide.h"

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
  Printer(const Program& program, const Subscripts& subscripts,
          const std::vector<NamedConstant>& constants, Language language)
      : program_(program), subscripts_(subscripts), constants_(constants), language_(language) {
    for (const Instruction& in : program.code) {
      if (is_store(in.op)) last_stored_ = std::max(last_stored_, in.address[0]);
    }
  }

  std::string run() {
    if (program_.lanewise) {
      define_lanewise_scales();
    } else if (scalar()) {
      if (!in_c()) define_two();
    } else if (has_scales()) {
      define_scales();
    }
    find_stages();
    for (std::size_t i = 0; i < program_.code.size(); ++i) {
      if (!marks_[i].above.empty()) line("// " + marks_[i].above);
      print(static_cast<int>(i));
      if (!marks_[i].behind.empty()) text_.insert(text_.size() - 1, "  // " + marks_[i].behind);
    }
    return std::move(text_);
  }

 private:
  bool in_c() const { return language_ == Language::c; }
  bool scalar() const { return program_.lanes == 1; }
  bool has_scales() const {
    return std::any_of(program_.code.begin(), program_.code.end(),
                       [](const Instruction& in) { return in.op == Op::scale; });
  }
  /// Of scalar programs: whether the instruction makes two values, side by side.
  bool is_pair(const Instruction& in) const { return scalar() && lanes_of(program_, in) == 2; }
  bool paired() const { return program_.memory == Memory::paired; }
  bool blocks() const {
    return program_.memory == Memory::blocks || paired() || program_.blockwise;
  }
  /// What the code calls the type of an instruction's result: W is twice as wide as V.
  std::string vector_of(const Instruction& in) const {
    return lanes_of(program_, in) > program_.lanes ? "W" : "V";
  }
  bool f32() const { return program_.type == FloatType::f32; }

  /// Comments that say which stage an instruction belongs to: that of the comment behind it, else
  /// of the last one above. Order puts stages into one another, so one that stays for a moment only
  /// does not get a line of its own. Loads belong to what needs them.
  struct Mark {
    std::string above = {};
    std::string behind = {};
  };

  void find_stages() {
    constexpr std::size_t kMoment = 3;
    const std::size_t count = program_.code.size();
    std::vector<std::string> stage(count + 1);
    for (std::size_t i = count; i-- > 0;) {
      const Instruction& in = program_.code[i];
      stage[i] = is_load(in.op) ? stage[i + 1] : in.stage;
    }
    marks_.resize(count);
    std::string above;
    for (std::size_t first = 0, last = 0; first < count; first = last) {
      while (last < count && stage[last] == stage[first]) ++last;
      if (stage[first] == above) continue;
      const std::string text = stage[first].empty() ? "butterfly" : stage[first];
      if (last - first > kMoment) {
        marks_[first].above = text;
        above = stage[first];
        continue;
      }
      for (std::size_t i = first; i < last; ++i) {
        const Op op = program_.code[i].op;
        const bool says_itself = is_load(op) || is_store(op) || op == Op::scale;
        if (!says_itself) marks_[i].behind = text;
      }
    }
  }

  void line(const std::string& content) { text_ += (in_c() ? "  " : "    ") + content + "\n"; }

  /// A word of the vocabulary of vectors, or of scalars.
  std::string word(const std::string& name) const { return in_c() ? name : "lanes::" + name; }
  std::string scalar_word(const std::string& name) const {
    return in_c() ? name : "scalar::" + name;
  }
  /// Of whole vectors: its name and its last arguments.
  std::string access(const std::string& name, const std::string& arguments) const {
    return in_c() ? name + "(" + arguments + ", aligned)"
                  : "Access::" + name + "(" + arguments + ")";
  }

  static std::string name(int value) { return "v" + std::to_string(value); }
  static std::string at(const char* base, int address) {
    return address == 0 ? base : base + (" + " + std::to_string(address));
  }

  /// Which of the scale vectors an instruction takes: bit j says that lane j is negated.
  static int scale_mask(const Instruction& in) {
    return (in.constant[0] < 0 ? 1 : 0) | (in.constant[1] < 0 ? 2 : 0);
  }

  /// The scale by the signs of lanes, of as many lanes as the instruction.
  std::string scale_name(const Instruction& in) const {
    if (!paired()) return "s" + std::to_string(scale_mask(in));
    std::string name = vector_of(in) == "W" ? "scale_w" : "scale_v";
    for (int l = 0; l < lanes_of(program_, in); ++l) {
      name += in.constant[static_cast<std::size_t>(l)] < 0 ? "n" : "p";
    }
    return name;
  }
  void define_paired_scales() {
    std::set<std::string> defined;
    for (const Instruction& in : program_.code) {
      if (in.op != Op::scale || !defined.insert(scale_name(in)).second) continue;
      Instruction signs;
      signs.lanes = in.lanes;
      bool any = false;
      for (std::size_t l = 0; l < static_cast<std::size_t>(lanes_of(program_, in)); ++l) {
        const bool minus = in.constant[l] < 0;
        any = any || minus;
        signs.constant[l] = minus ? -0.0 : 0.0;
      }
      const std::string type = vector_of(in);
      const std::string plain = "lanes::splat<" + type + ">(scale)";
      line("const " + type + " " + scale_name(in) + " = " +
           (any ? "lanes::change_sign_of_blocks(" + plain + ", " + constants(signs) + ")" : plain) +
           ";");
    }
  }

  void define_scales() {
    if (paired()) return define_paired_scales();
    line(blocks() ? "const V s0 = lanes::splat<V>(scale);"
                  : "const V s0 = " + word("broadcast") + "(scale);");
    for (int mask = 1; mask < 4; ++mask) {
      for (const Instruction& in : program_.code) {
        if (in.op != Op::scale || scale_mask(in) != mask) continue;
        Instruction signs;
        for (int l = 0; l < program_.lanes; ++l) {
          signs.constant[static_cast<std::size_t>(l)] = (mask >> (l % 2)) & 1 ? -0.0 : 0.0;
        }
        line("const V s" + std::to_string(mask) + " = " + word("change_sign") +
             (blocks() ? "_of_blocks" : "") + "(s0, " + constants(signs) + ");");
        break;
      }
    }
  }

  bool in64(const Instruction& in) const { return in.wide && f32(); }

  bool any(const auto& condition) const {
    return std::any_of(program_.code.begin(), program_.code.end(), condition);
  }

  /// A value may be multiplied by the scale or, carrying a minus, by its negative; wide values by
  /// the scale in 64 bits.
  void define_lanewise_scales() {
    const auto takes = [&](bool wide, bool minus) {
      return any([&](const Instruction& in) {
        return in.op == Op::scale && in64(in) == wide && (in.constant[0] < 0) == minus;
      });
    };
    if (takes(false, false) || takes(false, true)) line("const V s = lanes::splat<V>(scale);");
    if (takes(false, true)) line("const V minus_s = -s;");
    if (takes(true, false)) line("const auto wide_s = lanes::widen(lanes::splat<V>(scale));");
    if (takes(true, true)) throw std::logic_error("a wide value carries a minus");
  }

  static bool is_doubling(const Instruction& in) {
    return in.op == Op::multiply && in.constant[0] == 2.0;
  }

  // A compiler that knows the constant would make additions of doublings.
  void define_two() {
    for (const Instruction& in : program_.code) {
      if (!is_doubling(in)) continue;
      return line("const " + type_name(program_.type) + " two = scalar::opaque(" + constants(in) +
                  ");");
    }
  }

  std::string place(const char* array, const std::string& subscript, int address) const {
    if (subscript.empty()) return at(array, address);
    if (in_c()) return array + (" + " + subscript + "[" + std::to_string(address) + "]");
    return array + (" + " + subscript + "(" + std::to_string(address) + ")");
  }

  void define(int index, const std::string& expression) {
    const Instruction& in = program_.code[static_cast<std::size_t>(index)];
    std::string type = "V";
    if (program_.lanewise) {
      if (in64(in) && in.op != Op::narrow) type = "auto";
    } else if (paired()) {
      type = vector_of(in);
    } else if (scalar()) {
      type = is_pair(in) ? pair_type(in) : type_name(type_of(in));
    }
    line("const " + type + " " + name(index) + " = " + expression + ";");
  }

  /// Of the result of a scalar program's instruction, or of each of its lanes.
  FloatType type_of(const Instruction& in) const {
    const bool in32 = f32() && !(in.wide && in.op != Op::narrow);
    return in32 ? FloatType::f32 : FloatType::f64;
  }
  std::string pair_type(const Instruction& in) const {
    return type_of(in) == FloatType::f32 ? "lanes::FloatPair" : "lanes::DoublePair";
  }

  std::string constant(double number, FloatType type) const {
    const NamedConstant* named = find(constants_, number, type);
    if (named == nullptr) return literal(number, type);
    return (number == named->value ? "" : "-") + named->name;
  }

  std::string constants(const Instruction& in) const {
    if (scalar()) {
      const FloatType type = in.wide ? FloatType::f64 : program_.type;
      const std::string first = constant(in.constant[0], type);
      const bool same = std::signbit(in.constant[0]) == std::signbit(in.constant[1]) &&
                        in.constant[0] == in.constant[1];
      if (!is_pair(in) || same) return first;
      return pair_type(in) + "{" + first + ", " + constant(in.constant[1], type) + "}";
    }
    const bool repeated = blocks() && !paired();
    std::string text = repeated ? "lanes::repeated<V>(" : in_c() ? "vector(" : vector_of(in) + "{";
    for (int l = 0; l < lanes_of(program_, in); ++l) {
      text +=
          (l > 0 ? ", " : "") + constant(in.constant[static_cast<std::size_t>(l)], program_.type);
    }
    return text + (repeated || in_c() ? ")" : "}");
  }

  std::string slot(const Instruction& in) const {
    return "<" + std::to_string(in.address[0] / program_.lanes) + ">";
  }

  /// Both parts of an element, or of a bin, are stored where the second of them is there.
  void store_part(const Instruction& in) {
    const int address = in.address[0];
    const bool bins = program_.memory == Memory::half_spectrum;
    const int pair = (address + (bins ? 1 : 0)) / 2;
    const std::string at = "io.template store<" + std::to_string(bins ? 2 * pair - 1 : pair) + ">(";
    if (bins && (address == 0 || 2 * pair > last_stored_)) {
      return line("io.template store" + slot(in) + "(" + name(in.a) + ");");
    }
    const auto [first, fresh] = stored_.try_emplace(pair, in.a);
    if (fresh) return;
    const bool second_is_re = (address % 2 == 0) != bins;
    const int re = second_is_re ? in.a : first->second;
    const int im = second_is_re ? first->second : in.a;
    line(at + name(re) + ", " + name(im) + ");");
  }

  /// Whether the instruction is one that lanewise programs say in other words.
  bool print_lanewise(int index) {
    const Instruction& in = program_.code[static_cast<std::size_t>(index)];
    const std::string a = name(in.a);
    switch (in.op) {
      case Op::zero:
        define(index, "V{}");
        return true;
      case Op::multiply:
        define(index, constants(in) + " * " + a);
        return true;
      case Op::sign:
        define(index, "-" + a);
        return true;
      case Op::widen:
        define(index, "lanes::widen(" + a + ")");
        return true;
      case Op::narrow:
        define(index, "lanes::narrow(" + a + ")");
        return true;
      case Op::scale:
        define(index, (in64(in) ? "wide_s" : in.constant[0] < 0 ? "minus_s" : "s") + (" * " + a));
        return true;
      default:
        return false;
    }
  }

  /// Whether the instruction is one that programs of two widths say in other words.
  bool print_paired(int index) {
    const Instruction& in = program_.code[static_cast<std::size_t>(index)];
    const std::string a = name(in.a);
    const std::string type = "<" + vector_of(in) + ">";
    const std::string src = at("src", in.address[0]);
    const std::string dst = at("dst", in.address[0]);
    const auto half = [&](int i) { return std::to_string(in.half[static_cast<std::size_t>(i)]); };
    switch (in.op) {
      case Op::zero:
        define(index, vector_of(in) + "{}");
        return true;
      case Op::signed_add:
        define(index, "lanes::add_signed(" + a + ", " + name(in.b) + ", " + constants(in) + ")");
        return true;
      case Op::load:
        define(index, "lanes::load_wide" + type + "(" + src + ")");
        return true;
      case Op::load_pair:
        define(index,
               "lanes::load_halves" + type + "(" + src + ", " + at("src", in.address[1]) + ")");
        return true;
      case Op::load_single:
        define(index, "lanes::load_half" + type + "(" + src + ")");
        return true;
      case Op::join:
        define(index, "lanes::joined_blocks(" + a + ", " + name(in.b) + ")");
        return true;
      case Op::merge:
        define(index, "lanes::merged_blocks<" + half(0) + ", " + half(1) + ">(" + a + ", " +
                          name(in.b) + ")");
        return true;
      case Op::block:
        define(index, "lanes::block_of<" + half(0) + ">(" + a + ")");
        return true;
      case Op::store:
        line("lanes::store_wide" + type + "(" + dst + ", " + a + ");");
        return true;
      case Op::store_pair:
        line("lanes::store_halves(" + dst + ", " + at("dst", in.address[1]) + ", " + a + ");");
        return true;
      case Op::store_single:
        line("lanes::store_half<0>(" + dst + ", " + a + ");");
        return true;
      case Op::store_upper:
        line("lanes::store_half<1>(" + dst + ", " + a + ");");
        return true;
      default:
        return false;
    }
  }

  /// Whether the instruction is one that programs in blocks say in other words.
  bool print_in_blocks(int index) {
    const Instruction& in = program_.code[static_cast<std::size_t>(index)];
    const std::string a = name(in.a);
    const std::string first = std::to_string(in.address[0]);
    const std::string both = first + ", " + std::to_string(in.address[1]);
    switch (in.op) {
      case Op::load:
        define(index, "io.load(" + first + ")");
        return true;
      case Op::load_pair:
        define(index, "io.load_pair(" + both + ")");
        return true;
      case Op::load_single:
        define(index, "io.load_single(" + first + ")");
        return true;
      case Op::store:
        line("io.store(" + first + ", " + a + ");");
        return true;
      case Op::store_pair:
        line("io.store_pair(" + both + ", " + a + ");");
        return true;
      case Op::store_single:
        line("io.template store_half<0>(" + first + ", " + a + ");");
        return true;
      case Op::store_upper:
        line("io.template store_half<1>(" + first + ", " + a + ");");
        return true;
      case Op::alternate:
        define(index, "lanes::alternate_in_blocks(" + a + ", " + name(in.b) + ")");
        return true;
      case Op::interleave_lower:
        define(index, "lanes::in_turns_of_blocks<0>(" + a + ", " + name(in.b) + ")");
        return true;
      case Op::interleave_upper:
        define(index, "lanes::in_turns_of_blocks<1>(" + a + ", " + name(in.b) + ")");
        return true;
      case Op::sign:
        define(index, "lanes::change_sign_of_blocks(" + a + ", " + constants(in) + ")");
        return true;
      case Op::exchange:
        define(index, "lanes::exchange_in_blocks(" + a + ")");
        return true;
      case Op::gather:
        define(index, "lanes::gather_in_blocks<" + std::to_string(in.half[0]) + ", " +
                          std::to_string(in.half[1]) + ", " + std::to_string(in.cross[0]) + ", " +
                          std::to_string(in.cross[1]) + ">(" + a + ", " + name(in.b) + ")");
        return true;
      default:
        return false;
    }
  }

  /// Whether the instruction is one that says in words of its own how two values are side by side.
  bool print_beside(int index) {
    const Instruction& in = program_.code[static_cast<std::size_t>(index)];
    const std::string a = name(in.a);
    const std::string lanes =
        "<" + std::to_string(in.half[0]) + ", " + std::to_string(in.half[1]) + ">";
    if (in_c() && is_pair(in)) throw std::logic_error("values side by side in C");
    switch (in.op) {
      case Op::join:
        define(index, in.a == in.b ? "lanes::broadcast(" + a + ")"
                                   : "lanes::beside(" + a + ", " + name(in.b) + ")");
        return true;
      case Op::merge:
        define(index, in.a == in.b ? "lanes::rearranged" + lanes + "(" + a + ")"
                                   : "lanes::beside" + lanes + "(" + a + ", " + name(in.b) + ")");
        return true;
      case Op::block:
        define(index, "lanes::lane<" + std::to_string(in.half[0]) + ">(" + a + ")");
        return true;
      case Op::widen:
        if (is_pair(in)) define(index, "lanes::widened_pair(" + a + ")");
        return is_pair(in);
      case Op::narrow:
        if (is_pair(in)) define(index, "lanes::narrowed_pair(" + a + ")");
        return is_pair(in);
      case Op::scale:
        if (is_pair(in) && in64(in)) define(index, "double{scale} * " + a);
        return is_pair(in) && in64(in);
      default:
        return false;
    }
  }

  void print(int index) {
    const Instruction& in = program_.code[static_cast<std::size_t>(index)];
    const std::string a = name(in.a);
    const std::string b = name(in.b);
    const bool bins = program_.memory == Memory::half_spectrum;
    if (program_.memory == Memory::elements && in.op == Op::load) {
      return define(index, "io.template load<" + std::to_string(in.address[0] / 2) + ", " +
                               std::to_string(in.address[0] % 2) + ">()");
    }
    if ((program_.memory == Memory::elements || bins) && in.op == Op::store) return store_part(in);
    if (program_.lanewise && print_lanewise(index)) return;
    if (paired() && print_paired(index)) return;
    if (program_.memory == Memory::slots || bins) {
      if (in.op == Op::load) return define(index, "io.template load" + slot(in) + "()");
      if (in.op == Op::store) return line("io.template store" + slot(in) + "(" + a + ");");
    }
    if (blocks() && print_in_blocks(index)) return;
    if (scalar() && print_beside(index)) return;
    switch (in.op) {
      case Op::load:
        return define(index, scalar() ? scalar_word("load") + "(" +
                                            place("src", subscripts_.source, in.address[0]) + ")"
                                      : access("load", at("src", in.address[0])));
      case Op::load_pair:
        return define(index, word("load_pair") + "(" + at("src", in.address[0]) + ", " +
                                 at("src", in.address[1]) + ")");
      case Op::load_single:
        return define(index, word("load_single") + "(" + at("src", in.address[0]) + ")");
      case Op::zero:
        return define(index, scalar() ? "0" : in_c() ? "broadcast(0)" : "V{}");
      case Op::add:
        return define(index, a + " + " + b);
      case Op::subtract:
        return define(index, a + " - " + b);
      case Op::alternate:
        return define(index, word("alternate") + "(" + a + ", " + b + ")");
      case Op::multiply:
        return define(
            index, (scalar() && is_doubling(in) && !in_c() ? "two" : constants(in)) + (" * " + a));
      case Op::product:
        return define(index, a + " * " + b);
      case Op::interleave_lower:
        return define(index, word("interleave_lower") + "(" + a + ", " + b + ")");
      case Op::interleave_upper:
        return define(index, word("interleave_upper") + "(" + a + ", " + b + ")");
      case Op::sign:
        return define(index, word("change_sign") + "(" + a + ", " + constants(in) + ")");
      case Op::exchange:
        return define(index, word("exchange") + "(" + a + ")");
      case Op::gather:
        return define(index, word("gather") + (in_c() ? "(" : "<") + std::to_string(in.half[0]) +
                                 ", " + std::to_string(in.half[1]) + ", " +
                                 std::to_string(in.cross[0]) + ", " + std::to_string(in.cross[1]) +
                                 (in_c() ? ", " : ">(") + a + ", " + b + ")");
      case Op::negate:
        return define(index, std::string(f32() && !in.wide ? "0.0f - " : "0.0 - ") + a);
      case Op::widen:
        // What is loaded lies in memory already.
        return define(index, program_.widens_through_memory &&
                                     !is_load(program_.code[static_cast<std::size_t>(in.a)].op)
                                 ? scalar_word("widened_through_memory") + "(" + a + ")"
                                 : a);
      case Op::narrow:
        return define(index,
                      (in_c() ? "(float)" : "static_cast<float>(") + a + (in_c() ? "" : ")"));
      case Op::scale:
        return define(index, (scalar() ? std::string("scale") : scale_name(in)) + " * " + a);
      case Op::store:
        return line(scalar()
                        ? scalar_word("store") + "(" +
                              place("dst", subscripts_.destination, in.address[0]) + ", " + a + ");"
                        : access("store", at("dst", in.address[0]) + ", " + a) + ";");
      case Op::store_pair:
        return line(word("store_pair") + "(" + at("dst", in.address[0]) + ", " +
                    at("dst", in.address[1]) + ", " + a + ");");
      case Op::store_single:
        return line(word("store_single") + "(" + at("dst", in.address[0]) + ", " + a + ");");
      case Op::store_upper:
        return line(word("store_upper") + "(" + at("dst", in.address[0]) + ", " + a + ");");
      case Op::signed_add:
      case Op::join:
      case Op::merge:
      case Op::block:
        throw std::logic_error("vectors of two widths");
    }
  }

  const Program& program_;
  const Subscripts& subscripts_;
  const std::vector<NamedConstant>& constants_;
  Language language_;
  std::string text_;
  std::vector<Mark> marks_;
  int last_stored_ = 0;        ///< highest address of a store
  std::map<int, int> stored_;  ///< the first part that is there of elements, where both go at once
};

}  // namespace

std::string literal(double value, FloatType type) {
  if (type == FloatType::f32) return shortest(static_cast<float>(value)) + "f";
  return shortest(value);
}

std::string vector_name(const Program& program) {
  return "lanes::Vector<Float, " + std::to_string(program.lanes) + ">";
}

std::string type_name(FloatType type) { return type == FloatType::f32 ? "float" : "double"; }

std::string suffix(FloatType type) { return type == FloatType::f32 ? "32f" : "64f"; }

std::string describe(const Tally& t, FloatType type) {
  const auto sum = [](int a, int b) { return std::to_string(a + b); };
  std::string text = "//   " + sum(t.in32.additions, t.in64.additions) + " additions, " +
                     sum(t.in32.negations, t.in64.negations) + " negations, " +
                     sum(t.in32.products, t.in64.products) +
                     " multiplications and the scale, depth " + std::to_string(t.depth) + "\n";
  if (type == FloatType::f64) return text;
  return text + "//   in 64 bits: " + sum(t.in64.additions, t.in64.negations) + " additions, " +
         sum(t.in64.products, t.in64.scales) + " multiplications; " + std::to_string(t.widenings) +
         " widenings, " + std::to_string(t.narrowings) + " narrowings\n";
}

ScaleFactors scale_factors(int points, FloatType type) {
  const Wide n(points);
  return {literal(rounded(Wide(1.0) / n, type), type),
          literal(rounded(Wide(1.0) / sqrt(n), type), type)};
}

std::array<std::string, 3> factors_by_flag(int length, Divides divides, FloatType type) {
  const ScaleFactors factors = scale_factors(length, type);
  const std::string one = literal(1.0, type);
  return {divides == Divides::inverse ? one : factors.by_n,
          divides == Divides::forward ? one : factors.by_n, factors.by_root};
}

std::string scale_members(int length, Divides divides, FloatType type) {
  constexpr const char* kNames[] = {"kFwdByN", "kInvByN", "kBySqrtN"};
  const auto factors = factors_by_flag(length, divides, type);
  std::string text;
  for (std::size_t i = 0; i < factors.size(); ++i) {
    text += std::string("  static constexpr Float ") + kNames[i] + " = " + factors[i] + ";\n";
  }
  return text;
}

std::string emit_body(const Program& program, const Subscripts& subscripts,
                      const std::vector<NamedConstant>& constants, Language language) {
  return Printer(program, subscripts, constants, language).run();
}

std::string emit_constants(const std::vector<NamedConstant>& constants, const std::string& before,
                           Language language) {
  if (constants.empty()) return "";
  std::string text = before.substr(0, before.find_first_not_of(' '));
  text += "// cos_1_5 is cos(2 pi 1/5), and so on.\n";
  for (const NamedConstant& c : constants) {
    text += before + (language == Language::c ? "const " : "constexpr ") + type_name(c.type) + " " +
            c.name + " = " + literal(c.value, c.type) + ";\n";
  }
  return text;
}

bool has_whole_vector_access(const Program& program) {
  if (program.lanes == 1 || program.memory == Memory::paired) return false;
  for (const Instruction& in : program.code) {
    if (in.op == Op::load || in.op == Op::store) return true;
  }
  return false;
}

}  // namespace haldgen::kernelgen
