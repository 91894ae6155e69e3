// The interpreter, operation by operation.
#include "kernelgen/program.h"

#include <gtest/gtest.h>

#include <cmath>

namespace haldgen::kernelgen {
namespace {

template <class Float>
std::vector<Float> run(const Program& program, std::vector<Float> source, Float scale = 1) {
  std::vector<Float> destination(source.size(), Float{-99});
  interpret(program, source, scale, destination);
  return destination;
}

Instruction make(Op op, int a = -1, int b = -1) {
  Instruction in;
  in.op = op;
  in.a = a;
  in.b = b;
  return in;
}

Instruction load(int address) {
  Instruction in = make(Op::load);
  in.address[0] = address;
  return in;
}

Instruction store(int a, int address = 0) {
  Instruction in = make(Op::store, a);
  in.address[0] = address;
  return in;
}

/// Two vectors of four floats, one operation, one store.
std::vector<float> on_two(Instruction operation, std::vector<float> source) {
  operation.a = 0;
  operation.b = 1;
  const Program program{FloatType::f32, 4, {load(0), load(4), operation, store(2)}};
  return run(program, std::move(source));
}

const std::vector<float> kSource{1, 2, 3, 4, 10, 20, 30, 40};

TEST(Interpreter, LaneOperations) {
  EXPECT_EQ(on_two(make(Op::add), kSource),
            (std::vector<float>{11, 22, 33, 44, -99, -99, -99, -99}));
  const auto lanes_of = [](const Instruction& in) {
    auto all = on_two(in, kSource);
    all.resize(4);
    return all;
  };
  using V = std::vector<float>;
  EXPECT_EQ(lanes_of(make(Op::subtract)), (V{-9, -18, -27, -36}));
  EXPECT_EQ(lanes_of(make(Op::alternate)), (V{-9, 22, -27, 44}));
  EXPECT_EQ(lanes_of(make(Op::exchange)), (V{2, 1, 4, 3}));
  EXPECT_EQ(lanes_of(make(Op::negate)), (V{-1, -2, -3, -4}));
  Instruction in = make(Op::multiply);
  in.constant = {2, -3, 0.5, 0};
  EXPECT_EQ(lanes_of(in), (V{2, -6, 1.5, 0}));
  in = make(Op::sign);
  in.constant = {0.0, -0.0, -0.0, 0.0};
  EXPECT_EQ(lanes_of(in), (V{1, -2, -3, 4}));
  in = make(Op::gather);
  in.half = {1, 0};
  in.cross = {0, 1};
  EXPECT_EQ(lanes_of(in), (V{3, 4, 20, 10}));
  in.half = {0, 1};
  in.cross = {1, 0};
  EXPECT_EQ(lanes_of(in), (V{2, 1, 30, 40}));
}

TEST(Interpreter, MemoryOperations) {
  Instruction pair = make(Op::load_pair);
  pair.address = {6, 0};
  Instruction single = make(Op::load_single);
  single.address[0] = 2;
  Instruction store_pair = make(Op::store_pair, 0);
  store_pair.address = {4, 2};
  Instruction store_single = make(Op::store_single, 0);
  store_single.address[0] = 0;
  Instruction store_upper = make(Op::store_upper, 0);
  store_upper.address[0] = 6;
  EXPECT_EQ(run(Program{FloatType::f32, 4, {pair, store_pair, store_single, store_upper}}, kSource),
            (std::vector<float>{30, 40, 1, 2, 30, 40, 1, 2}));
  EXPECT_EQ(run(Program{FloatType::f32, 4, {single, store(0)}}, kSource),
            (std::vector<float>{3, 4, 0, 0, -99, -99, -99, -99}));
  EXPECT_EQ(run(Program{FloatType::f32, 4, {make(Op::zero), store(0, 4)}}, kSource),
            (std::vector<float>{-99, -99, -99, -99, 0, 0, 0, 0}));
  EXPECT_EQ(run(Program{FloatType::f64, 2, {load(2), store(0)}}, std::vector<double>{1, 2, 3, 4}),
            (std::vector<double>{3, 4, -99, -99}));
}

TEST(Interpreter, ScaleIsAMultiplication) {
  Instruction scale = make(Op::scale, 0);
  scale.constant = {1, -1, 1, -1};  // the lanes' signs of the scale
  const Program program{FloatType::f32, 4, {load(0), scale, store(1)}};
  EXPECT_EQ(run(program, std::vector<float>{1, 3, -7, 5}, 0.1F),
            (std::vector<float>{0.1F, 0.1F * -3, 0.1F * -7, 0.1F * -5}));
}

TEST(Interpreter, EachOperationRoundsInItsOwnType) {
  // 1 + 2^-24 is a tie in 32 bits, exact in 64.
  const std::vector<float> source{1, 0x1p-24F, 0x1p-24F};
  const auto sum_of_three = [&](bool wide) {
    std::vector<Instruction> code{load(0), load(1), load(2)};
    for (int i = 0; i < 3 && wide; ++i) {
      code.push_back(make(Op::widen, i));
      code.back().wide = true;
    }
    const int first = wide ? 3 : 0;
    code.push_back(make(Op::add, first, first + 1));
    code.back().wide = wide;
    code.push_back(make(Op::add, static_cast<int>(code.size()) - 1, first + 2));
    code.back().wide = wide;
    if (wide) {
      code.push_back(make(Op::narrow, static_cast<int>(code.size()) - 1));
      code.back().wide = true;
    }
    code.push_back(store(static_cast<int>(code.size()) - 1));
    return run(Program{FloatType::f32, 1, code}, source)[0];
  };
  EXPECT_EQ(sum_of_three(false), 1.0F);
  EXPECT_EQ(sum_of_three(true), 1.0F + 0x1p-23F);
}

TEST(Interpreter, ProductsRoundInTheirType) {
  Instruction times = make(Op::multiply, 0);
  times.constant = {1.0F + 0x1p-23F, 1, 1, 1};
  const float x = 1.0F + 0x1p-23F;
  EXPECT_EQ(run(Program{FloatType::f32, 1, {load(0), times, store(1)}}, std::vector<float>{x})[0],
            1.0F + 0x1p-22F);
  times.wide = true;
  EXPECT_EQ(run(Program{FloatType::f64, 1, {load(0), times, store(1)}},
                std::vector<double>{double{x}})[0],
            1.0 + 0x1p-22 + 0x1p-46);
}

TEST(Interpreter, DenormalFloatsAreNotFlushed) {
  Instruction half = make(Op::multiply, 0);
  half.constant = {0.5, 0.5, 0.5, 0.5};
  const Program program{FloatType::f32, 1, {load(0), half, store(1)}};
  EXPECT_EQ(run(program, std::vector<float>{0x1p-148F})[0], 0x1p-149F);
  EXPECT_EQ(run(program, std::vector<float>{0x1p-149F})[0], 0.0F);  // a tie, to even
  EXPECT_EQ(run(program, std::vector<float>{3 * 0x1p-149F})[0], 0x1p-148F);
}

TEST(Interpreter, SignsOfZero) {
  const auto sign_of = [](Instruction in, float x) {
    in.a = 0;
    in.b = 0;
    return std::signbit(
        run(Program{FloatType::f32, 1, {load(0), in, store(1)}}, std::vector<float>{x})[0]);
  };
  EXPECT_FALSE(sign_of(make(Op::negate), 0.0F));  // 0 - 0
  EXPECT_FALSE(sign_of(make(Op::negate), -0.0F));
  Instruction flip = make(Op::sign);
  flip.constant[0] = -0.0;
  EXPECT_TRUE(sign_of(flip, 0.0F));
  EXPECT_FALSE(sign_of(flip, -0.0F));
  EXPECT_TRUE(sign_of(make(Op::add), -0.0F));
  EXPECT_FALSE(sign_of(make(Op::subtract), -0.0F));
}

TEST(Interpreter, InPlaceReadsWhatWasStored) {
  std::vector<double> data{1, 2, 3, 4};
  interpret(Program{FloatType::f64, 2, {load(0), store(0, 2), load(2), store(2, 0)}}, data, 1.0,
            data);
  EXPECT_EQ(data, (std::vector<double>{1, 2, 1, 2}));
}

TEST(Pruned, KeepsWhatLeadsToStores) {
  const Program program{FloatType::f64,
                        2,
                        {load(0), load(2), make(Op::exchange, 0), make(Op::add, 0, 1),
                         make(Op::subtract, 2, 3), make(Op::exchange, 3), store(5)}};
  const Program result = pruned(program);
  std::vector<Op> ops;
  for (const Instruction& in : result.code) ops.push_back(in.op);
  EXPECT_EQ(ops, (std::vector<Op>{Op::load, Op::load, Op::add, Op::exchange, Op::store}));
  const std::vector<double> source{1, 2, 30, 40};
  EXPECT_EQ(run(result, source), run(program, source));
}

TEST(Interpreter, LoadsAndStoresAreKnown) {
  for (const Op op : {Op::load, Op::load_pair, Op::load_single, Op::zero}) {
    EXPECT_TRUE(is_load(op) && !is_store(op));
  }
  for (const Op op : {Op::store, Op::store_pair, Op::store_single, Op::store_upper}) {
    EXPECT_TRUE(is_store(op) && !is_load(op));
  }
  EXPECT_FALSE(is_load(Op::add) || is_store(Op::add) || is_store(Op::scale));
}

}  // namespace
}  // namespace haldgen::kernelgen
