#include "kernelgen/unpack.h"

#include <cmath>
#include <map>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "kernelgen/integers.h"

namespace haldgen::kernelgen {
namespace {

/// What an instruction computes, whatever its place in a program.
using Key = std::tuple<Op, int, int, double, int, bool>;

Key key_of(const Instruction& in) {
  const bool commutes = in.op == Op::add || in.op == Op::product;
  const bool turned = commutes && in.b < in.a;
  return {in.op,          turned ? in.b : in.a, turned ? in.a : in.b,
          in.constant[0], in.address[0],        in.wide};
}

class Unpacking {
 public:
  explicit Unpacking(const Program& packed) : packed_(packed), values_(packed.code.size()) {
    program_.type = packed.type;
    program_.exact = packed.exact;
  }

  Program run() {
    for (std::size_t i = 0; i < packed_.code.size(); ++i) {
      const std::size_t lanes = at(lanes_of(packed_, packed_.code[i]));
      for (std::size_t lane = 0; lane < lanes; ++lane) make(i, lane);
    }
    return pruned(program_);
  }

 private:
  /// A value of the scalar program, or its negative.
  struct Signed {
    int value = kNoOperand;
    bool minus = false;
  };

  int emit(Op op, int a = kNoOperand, int b = kNoOperand, double constant = 0, int address = 0) {
    Instruction in;
    in.op = op;
    in.a = a;
    in.b = b;
    in.constant.fill(constant);
    in.address[0] = address;
    in.stage = stage_;
    const auto next = static_cast<int>(program_.code.size());
    if (!is_store(op)) {
      const auto [known, fresh] = known_.try_emplace(key_of(in), next);
      if (!fresh) return known->second;
    }
    program_.code.push_back(in);
    return next;
  }

  Signed load(int address) { return {emit(Op::load, kNoOperand, kNoOperand, 0, address), false}; }
  void store(const Signed& v, int address) {
    if (v.minus) throw std::logic_error("a stored value carries a minus");
    emit(Op::store, v.value, kNoOperand, 0, address);
  }

  Signed sum(const Signed& a, const Signed& b) {
    if (a.minus && b.minus) {
      const int negated = emit(Op::sign, a.value, kNoOperand, -0.0);
      return {emit(Op::subtract, negated, b.value)};
    }
    if (b.minus) return {emit(Op::subtract, a.value, b.value)};
    if (a.minus) return {emit(Op::subtract, b.value, a.value)};
    return {emit(Op::add, a.value, b.value)};
  }

  static Signed negated(Signed v) { return {v.value, !v.minus}; }

  void make(std::size_t index, std::size_t lane) {
    const Instruction& in = packed_.code[index];
    const auto l = static_cast<int>(lane);
    const auto a = [&](std::size_t from) { return values_[at(in.a)][from]; };
    const auto b = [&](std::size_t from) { return values_[at(in.b)][from]; };
    Signed& result = values_[index][lane];
    stage_ = in.stage;
    switch (in.op) {
      case Op::load:
        result = load(in.address[0] + l);
        return;
      case Op::load_pair:
        result = load(in.address[lane / 2] + l % 2);
        return;
      case Op::load_single:
        result = lane < 2 ? load(in.address[0] + l) : Signed{emit(Op::zero)};
        return;
      case Op::zero:
        result = {emit(Op::zero)};
        return;
      case Op::add:
        result = sum(a(lane), b(lane));
        return;
      case Op::subtract:
        result = sum(a(lane), negated(b(lane)));
        return;
      case Op::alternate:
        result = sum(a(lane), lane % 2 == 0 ? negated(b(lane)) : b(lane));
        return;
      case Op::signed_add:
        result = sum(a(lane), in.constant[lane] < 0 ? negated(b(lane)) : b(lane));
        return;
      case Op::multiply: {
        const double factor = in.constant[lane];
        result = {emit(Op::multiply, a(lane).value, kNoOperand, std::abs(factor)),
                  a(lane).minus != std::signbit(factor)};
        return;
      }
      case Op::sign:
        result = std::signbit(in.constant[lane]) ? negated(a(lane)) : a(lane);
        return;
      case Op::exchange:
        result = a(lane ^ 1);
        return;
      case Op::gather: {
        const std::size_t half = lane % 4 / 2;
        const std::size_t from =
            lane - lane % 4 + at(2 * in.half[half]) + (lane % 2 ^ at(in.cross[half]));
        result = half == 0 ? a(from) : b(from);
        return;
      }
      case Op::join:
      case Op::merge:
      case Op::block: {
        const std::size_t block = at(packed_.lanes);
        const std::size_t half = in.op == Op::join ? 0 : at(in.half[lane / block]);
        const std::size_t from = half * block + lane % block;
        result = lane < block ? a(from) : b(from);
        return;
      }
      case Op::scale: {
        const bool minus = a(lane).minus != (in.constant[lane] < 0);
        result = {emit(Op::scale, a(lane).value, kNoOperand, minus ? -1.0 : 1.0)};
        return;
      }
      case Op::store:
        return store(a(lane), in.address[0] + l);
      case Op::store_pair:
        return store(a(lane), in.address[lane / 2] + l % 2);
      case Op::store_single:
        if (lane < 2) store(a(lane), in.address[0] + l);
        return;
      case Op::store_upper:
        if (lane >= 2) store(a(lane), in.address[0] + l - 2);
        return;
      case Op::product:
      case Op::interleave_lower:
      case Op::interleave_upper:
      case Op::negate:
      case Op::widen:
      case Op::narrow:
        break;
    }
    throw std::logic_error("no instruction of a packed transform");
  }

  const Program& packed_;
  Program program_;
  std::string stage_;
  std::vector<std::array<Signed, 8>> values_;
  std::map<Key, int> known_;
};

/// Numbers for the values of several programs: equal expressions have the same.
class Numbering {
 public:
  /// The numbers of what is stored, by address.
  std::map<int, int> stores(const Program& program) {
    std::vector<int> numbers;
    std::map<int, int> stored;
    for (const Instruction& in : program.code) {
      const Instruction numbered = relocated(in, numbers);
      if (is_store(in.op)) {
        stored[in.address[0]] = numbered.a;
        numbers.push_back(kNoOperand);
      } else {
        numbers.push_back(number(numbered));
      }
    }
    return stored;
  }

 private:
  int number(Instruction in) {
    // -x - y and -y - x are the same.
    if (in.op == Op::subtract) {
      const auto minus = negated_.find(in.a);
      if (minus != negated_.end() && in.b < minus->second) {
        in.a = number(Instruction{.op = Op::sign, .a = in.b, .constant = {-0.0}});
        in.b = minus->second;
      }
    }
    const auto next = static_cast<int>(numbers_.size());
    const auto [known, fresh] = numbers_.try_emplace(key_of(in), next);
    if (fresh && in.op == Op::sign) negated_[next] = in.a;
    return known->second;
  }

  std::map<Key, int> numbers_;
  std::map<int, int> negated_;
};

}  // namespace

Program unpacked(const Program& packed) { return Unpacking(packed).run(); }

Program parts_exchanged(Program scalar) {
  for (Instruction& in : scalar.code) {
    if (in.op == Op::load || in.op == Op::store) in.address[0] ^= 1;
  }
  return scalar;
}

bool same_results(const Program& one, const Program& other) {
  Numbering numbering;
  return numbering.stores(one) == numbering.stores(other);
}

}  // namespace haldgen::kernelgen
