// The lane program: what a kernel executes, one instruction after another, each with one result.
// It is printed as code, and interpreted to say which bits that code must give.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "kernelgen/wide.h"

namespace haldgen::kernelgen {

enum class Op {
  load,         ///< lanes of consecutive source floats from `address[0]`
  load_pair,    ///< two elements, from `address[0]` into the lower and `address[1]` the upper half
  load_single,  ///< one element into the lower half, zeros above
  zero,
  add,               ///< a + b
  subtract,          ///< a - b
  alternate,         ///< a - b in even lanes, a + b in odd lanes
  signed_add,        ///< a + b or a - b, by the sign of the constant, which is 1 or -1
  multiply,          ///< a times the constants
  product,           ///< a * b, for factors that are known at run time only
  interleave_lower,  ///< lanes of the lower halves of a and b in turns
  interleave_upper,  ///< lanes of the upper halves of a and b in turns
  sign,              ///< lanes of a negated where the constant is -0
  exchange,          ///< lanes 2j and 2j+1 of a exchanged
  gather,  ///< element half[0] of a below element half[1] of b, each exchanged if cross[.] says so
  negate,  ///< 0 - a
  widen,   ///< the 64-bit value of a 32-bit one
  narrow,  ///< a 64-bit value rounded to 32 bits
  scale,   ///< a times the scale of the call
  join,    ///< a below b, in a vector of twice the width
  merge,   ///< block half[0] of a below block half[1] of b, both of twice the width
  block,   ///< block half[0] of a, which has twice the width
  store,   ///< all lanes to consecutive destination floats from `address[0]`
  store_pair,    ///< lower half to the element at `address[0]`, upper half to `address[1]`
  store_single,  ///< lower half to the element at `address[0]`
  store_upper,   ///< upper half to the element at `address[0]`
};

constexpr int kNoOperand = -1;

struct Instruction {
  Op op = Op::zero;
  int a = kNoOperand;  ///< the instructions whose results it takes
  int b = kNoOperand;
  std::array<double, 8> constant{};  ///< lanes, already rounded to the type of the operation
  std::array<int, 2> address{};      ///< in floats from the base
  std::array<int, 2> half{};
  std::array<int, 2> cross{};
  int lanes = 0;           ///< of its vector, where a program has vectors of two widths or pairs
  bool wide = false;       ///< scalar programs of 32-bit elements: a 64-bit operation
  std::string stage = {};  ///< of the statement that it belongs to; none: whichever needs it
};

enum class FloatType { f32, f64 };

/// The number of the type that a constant becomes.
double rounded(Wide value, FloatType type);

/// What the addresses of a program mean. Arrays: floats from the bases of `src` and `dst`, which
/// may be one array. Slots: an accessor `io` knows where each whole vector lies, vector k being
/// loaded or stored at the address k times the lanes; it never loads what the program has stored.
/// Elements: an accessor knows where both parts of each complex element lie, and is given both at
/// once to store. Half spectrum: slots, and of what is stored the values 2j - 1 and 2j, the parts
/// of bin j, are given at once; value 0, and the last of an even number, have no other part.
/// Blocks: an accessor touches the arrays of as many transforms as wider vectors have blocks of 128
/// bits, in each of which the program of one runs. Paired: arrays, by vectors of one block or two.
enum class Memory { arrays, slots, elements, half_spectrum, blocks, paired };

struct Program {
  FloatType type = FloatType::f64;
  int lanes = 1;  ///< floats in a vector; 1 for scalar programs, in which pairs say that they are
  std::vector<Instruction> code;
  Memory memory = Memory::arrays;
  /// Of scalar programs: in each lane of vectors, whose type V the code is a template over, runs
  /// the program of another transform.
  bool lanewise = false;
  /// Of vector programs: in each block of 128 bits of wider vectors, whose type V the code is a
  /// template over, runs the program of others; programs in Memory::blocks are such by themselves.
  bool blockwise = false;
  /// Of scalar programs: what is widened is stored, and converted as it is loaded.
  bool widens_through_memory = false;
  /// The values of which the magnitudes of its constants are roundings.
  std::map<double, Wide> exact = {};
};

/// The lanes of an instruction's result, or of what it stores.
inline int lanes_of(const Program& program, const Instruction& instruction) {
  return instruction.lanes != 0 ? instruction.lanes : program.lanes;
}

/// Those operands that an instruction has.
std::vector<int> operands(const Instruction& instruction);

/// The instruction with operand i at place[i].
Instruction relocated(Instruction instruction, std::span<const int> place);

bool is_load(Op op);
bool is_store(Op op);

/// The program without instructions whose results lead to no store.
Program pruned(const Program& program);

/// Runs the program as the compiled kernel must: every operation rounded once in its own type.
/// `source` and `destination` hold floats (parts of elements), all of which the program may touch.
void interpret(const Program& program, const std::vector<float>& source, float scale,
               std::vector<float>& destination);
void interpret(const Program& program, const std::vector<double>& source, double scale,
               std::vector<double>& destination);

}  // namespace haldgen::kernelgen
