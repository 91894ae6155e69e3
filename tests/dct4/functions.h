// The exported functions by element type.
#pragma once

#include <gtest/gtest.h>
#include <haldgen.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "tests/built/floats.h"

namespace haldgen::dct4::test {

using haldgen::test::identical;

template <class Float>
std::vector<Float> random_floats(std::int32_t count, unsigned seed) {
  return haldgen::test::random_floats<Float>(static_cast<std::size_t>(count), seed);
}

using FloatTypes = ::testing::Types<float, double>;

template <class Float>
struct Functions;
template <>
struct Functions<float> {
  static constexpr auto get_size = haldgDCT4GetSize_32f;
  static constexpr auto init = haldgDCT4Init_32f;
  static constexpr auto init_alloc = haldgDCT4InitAlloc_32f;
  static constexpr auto release = haldgDCT4Free_32f;
  static constexpr auto transform = haldgDCT4_32f;
};
template <>
struct Functions<double> {
  static constexpr auto get_size = haldgDCT4GetSize_64f;
  static constexpr auto init = haldgDCT4Init_64f;
  static constexpr auto init_alloc = haldgDCT4InitAlloc_64f;
  static constexpr auto release = haldgDCT4Free_64f;
  static constexpr auto transform = haldgDCT4_64f;
};

/// A state with allocation.
template <class Float>
class State {
 public:
  explicit State(std::int32_t length) {
    if (Functions<Float>::init_alloc(&state_, length) != haldStatusOk) {
      throw std::runtime_error("no state of length " + std::to_string(length));
    }
  }
  ~State() { Functions<Float>::release(state_); }
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  Dct4State* get() { return state_; }
  void run(const Float* src, Float* dst) {
    ASSERT_EQ(Functions<Float>::transform(src, dst, state_), haldStatusOk);
  }
  std::vector<Float> operator()(const std::vector<Float>& x) {
    std::vector<Float> y(x.size());
    run(x.data(), y.data());
    return y;
  }

 private:
  Dct4State* state_ = nullptr;
};

}  // namespace haldgen::dct4::test
