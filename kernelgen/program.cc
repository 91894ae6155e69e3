#include "kernelgen/program.h"

namespace haldgen::kernelgen {
namespace {

/// A register: lanes of the element type, or one lane of 64 bits in a mixed scalar program.
struct Register {
  std::array<double, 8> lane{};  // exact carriers of 32-bit values too
};

template <class Float>
void interpret_as(const Program& program, const std::vector<Float>& source, Float scale,
                  std::vector<Float>& destination) {
  std::vector<Register> values(program.code.size());
  const auto block = static_cast<std::size_t>(program.lanes);
  for (std::size_t i = 0; i < program.code.size(); ++i) {
    const Instruction& in = program.code[i];
    const auto lanes = static_cast<std::size_t>(lanes_of(program, in));
    const Register a = in.a != kNoOperand ? values[at(in.a)] : Register{};
    const Register b = in.b != kNoOperand ? values[at(in.b)] : Register{};
    Register& r = values[i];
    // One rounding to the type of the operation. Operands of 32 bits make exact doubles, and a sum
    // or product of two such, rounded to double and then to float, is correctly rounded to float
    // because 53 >= 2 * 24 + 2.
    const auto rounded = [&](double v) {
      return in.wide ? v : static_cast<double>(static_cast<Float>(v));
    };
    const auto each = [&](auto operation) {
      for (std::size_t l = 0; l < lanes; ++l) r.lane[l] = operation(l);
    };
    switch (in.op) {
      case Op::load:
        each([&](std::size_t l) { return double{source[at(in.address[0]) + l]}; });
        break;
      case Op::load_pair:
        each([&](std::size_t l) { return double{source[at(in.address[l / 2]) + l % 2]}; });
        break;
      case Op::load_single:
        for (std::size_t l = 0; l < 2; ++l) r.lane[l] = source[at(in.address[0]) + l];
        break;
      case Op::zero:
        break;
      case Op::add:
        each([&](std::size_t l) { return rounded(a.lane[l] + b.lane[l]); });
        break;
      case Op::subtract:
        each([&](std::size_t l) { return rounded(a.lane[l] - b.lane[l]); });
        break;
      case Op::alternate:
        each([&](std::size_t l) {
          return rounded(l % 2 == 0 ? a.lane[l] - b.lane[l] : a.lane[l] + b.lane[l]);
        });
        break;
      case Op::signed_add:
        each([&](std::size_t l) { return rounded(a.lane[l] + in.constant[l] * b.lane[l]); });
        break;
      case Op::multiply:
        each([&](std::size_t l) { return rounded(a.lane[l] * in.constant[l]); });
        break;
      case Op::product:
        each([&](std::size_t l) { return rounded(a.lane[l] * b.lane[l]); });
        break;
      case Op::interleave_lower:
      case Op::interleave_upper: {
        const std::size_t first = in.op == Op::interleave_upper ? lanes / 2 : 0;
        each([&](std::size_t l) { return (l % 2 == 0 ? a : b).lane[first + l / 2]; });
        break;
      }
      case Op::sign:
        each([&](std::size_t l) { return 1.0 / in.constant[l] < 0 ? -a.lane[l] : a.lane[l]; });
        break;
      case Op::exchange:
        each([&](std::size_t l) { return a.lane[l ^ 1]; });
        break;
      case Op::gather:
        each([&](std::size_t l) {
          const std::size_t h = l % 4 / 2;
          return (h == 0 ? a : b).lane[l - l % 4 + 2 * at(in.half[h]) + (l % 2 ^ at(in.cross[h]))];
        });
        break;
      case Op::join:
      case Op::merge:
      case Op::block:
        each([&](std::size_t l) {
          const std::size_t half = in.op == Op::join ? 0 : at(in.half[l / block]);
          return (l < block ? a : b).lane[half * block + l % block];
        });
        break;
      case Op::negate:
        each([&](std::size_t l) { return rounded(0.0 - a.lane[l]); });
        break;
      case Op::widen:
        r = a;
        break;
      case Op::narrow:
        each([&](std::size_t l) { return double{static_cast<Float>(a.lane[l])}; });
        break;
      case Op::scale:
        each([&](std::size_t l) { return rounded(a.lane[l] * (in.constant[l] * double{scale})); });
        break;
      case Op::store:
        for (std::size_t l = 0; l < lanes; ++l) {
          destination[at(in.address[0]) + l] = static_cast<Float>(a.lane[l]);
        }
        break;
      case Op::store_pair:
        for (std::size_t l = 0; l < 4; ++l) {
          destination[at(in.address[l / 2]) + l % 2] = static_cast<Float>(a.lane[l]);
        }
        break;
      case Op::store_single:
      case Op::store_upper:
        for (std::size_t p = 0; p < 2; ++p) {
          destination[at(in.address[0]) + p] =
              static_cast<Float>(a.lane[p + (in.op == Op::store_upper ? 2 : 0)]);
        }
        break;
    }
  }
}

}  // namespace

double rounded(Wide value, FloatType type) {
  return type == FloatType::f32 ? double{to_float(value)} : to_double(value);
}

std::vector<int> operands(const Instruction& instruction) {
  std::vector<int> present;
  for (const int operand : {instruction.a, instruction.b}) {
    if (operand != kNoOperand) present.push_back(operand);
  }
  return present;
}

Instruction relocated(Instruction instruction, std::span<const int> place) {
  for (int* operand : {&instruction.a, &instruction.b}) {
    if (*operand != kNoOperand) *operand = place[at(*operand)];
  }
  return instruction;
}

bool is_load(Op op) {
  return op == Op::load || op == Op::load_pair || op == Op::load_single || op == Op::zero;
}

bool is_store(Op op) {
  return op == Op::store || op == Op::store_pair || op == Op::store_single || op == Op::store_upper;
}

Program pruned(const Program& program) {
  std::vector<char> needed(program.code.size(), 0);
  for (std::size_t i = program.code.size(); i-- > 0;) {
    const Instruction& in = program.code[i];
    if (!needed[i] && !is_store(in.op)) continue;
    needed[i] = 1;
    for (const int operand : operands(in)) needed[at(operand)] = 1;
  }
  Program result = program;
  result.code.clear();
  std::vector<int> place(program.code.size(), -1);
  for (std::size_t i = 0; i < program.code.size(); ++i) {
    if (!needed[i]) continue;
    place[i] = static_cast<int>(result.code.size());
    result.code.push_back(relocated(program.code[i], place));
  }
  return result;
}

void interpret(const Program& program, const std::vector<float>& source, float scale,
               std::vector<float>& destination) {
  interpret_as(program, source, scale, destination);
}

void interpret(const Program& program, const std::vector<double>& source, double scale,
               std::vector<double>& destination) {
  interpret_as(program, source, scale, destination);
}

}  // namespace haldgen::kernelgen
