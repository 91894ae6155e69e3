// The compiled kernels against the interpreter of their programs, bit by bit, at the places in
// memory where the passes want them.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

#include "dct4/kernel.h"
#include "dct4/passes.h"

namespace haldgen::dct4 {
namespace {

using kernelgen::FloatType;
using kernelgen::Program;

template <class Float>
constexpr FloatType kType = sizeof(Float) == 4 ? FloatType::f32 : FloatType::f64;

/// Aligned as a state's blocks are.
template <class Float>
class Block {
 public:
  explicit Block(std::size_t count) : floats_(count + 32 / sizeof(Float)), count_(count) {
    const auto beyond = reinterpret_cast<std::uintptr_t>(floats_.data()) % 32;
    start_ = floats_.data() + (32 - beyond) % 32 / sizeof(Float);
  }
  Block(const Block&) = delete;
  Block& operator=(const Block&) = delete;
  Float* data() { return start_; }
  Float& operator[](std::ptrdiff_t i) { return start_[i]; }
  void fill_random(unsigned seed) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<Float> uniform(-1, 1);
    for (std::size_t i = 0; i < count_; ++i) start_[i] = uniform(random);
  }

 private:
  std::vector<Float> floats_;
  std::size_t count_;
  Float* start_;
};

template <class Float>
bool same_bits(Float a, Float b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

/// What the kernel's program makes of these slots.
template <class Float>
std::vector<Float> interpreted(Part part, int size, const std::vector<Float>& slots,
                               std::size_t outputs) {
  const Kernel kernel{part, size, kType<Float>};
  const Program program = kernel_program(kernel, ordering_of(kernel));
  std::vector<Float> result(outputs);
  interpret(program, slots, Float{1}, result);
  return result;
}

template <class Float>
void check_fixed(int length, void (*kernel)(const Float*, Float*)) {
  Block<Float> src(static_cast<std::size_t>(length)), dst(static_cast<std::size_t>(length));
  src.fill_random(1);
  kernel(src.data(), dst.data());
  const auto expected = interpreted<Float>(Part::fixed, length, {src.data(), src.data() + length},
                                           static_cast<std::size_t>(length));
  for (int k = 0; k < length; ++k) {
    EXPECT_TRUE(same_bits(dst[k], expected[static_cast<std::size_t>(k)])) << length << " " << k;
  }
}

/// Steps between the elements of a sequence, the blocks of a spectrum and its parts.
struct Shape {
  int step;
  int block;
  int imaginary;
  int groups;
};

template <class Float>
void check_fold(int m, const Shape& shape, void (*kernel)(const FoldRun<Float>&)) {
  constexpr int kWidth = kLanes<Float>;
  const int half = m / 2 * shape.step;  // where the elements behind begin
  Block<Float> x(static_cast<std::size_t>(2 * half));
  Block<Float> z(static_cast<std::size_t>(m / 2 * shape.block));
  x.fill_random(2);
  kernel({{x.data(), x.data() + half + shape.step - kWidth, shape.step},
          {z.data(), shape.block, shape.imaginary},
          shape.groups});
  for (int group = 0; group < shape.groups; ++group) {
    std::vector<Float> slots;
    for (int slot = 0; slot < m; ++slot) {
      for (int lane = 0; lane < kWidth; ++lane) {
        const int j = kWidth * group + lane;
        const int t = slot < m / 2 ? slot : m / 2 - 1 - slot;
        slots.push_back(t >= 0 ? x[shape.step * t + j] : x[half - shape.step * t - 1 - j]);
      }
    }
    const auto expected =
        interpreted<Float>(Part::fold, m, slots, static_cast<std::size_t>(m * kWidth));
    for (int k = 0; k < m; ++k) {
      for (int lane = 0; lane < kWidth; ++lane) {
        const int place = k / 2 * shape.block + k % 2 * shape.imaginary + kWidth * group + lane;
        EXPECT_TRUE(same_bits(z[place], expected[static_cast<std::size_t>(k * kWidth + lane)]))
            << "length " << m << ", step " << shape.step << ", output " << k;
      }
    }
  }
}

/// All blocks of a transform of length radix * m, by rotations that are any numbers.
template <class Float>
void check_recombine(int radix, int m, void (*kernel)(const RecombineRun<Float>&)) {
  constexpr int kWidth = kLanes<Float>;
  const auto count = static_cast<std::size_t>(radix * m);
  Block<Float> z(count), table(count), y(count);
  z.fill_random(3);
  table.fill_random(4);
  const int groups = m / 2 / kWidth;
  kernel({z.data(), table.data(), y.data(), y.data() + m - kWidth, m, groups});
  const int row = 2 * radix;
  for (int group = 0; group < groups; ++group) {
    std::vector<Float> slots;
    const Float* const blocks = z.data() + row * kWidth * group;
    if (row < kWidth) slots.assign(blocks, blocks + row * kWidth);
    for (int element = 0; element + kWidth <= row; element += kWidth) {
      for (int lane = 0; lane < kWidth; ++lane) {
        const Float* const from = blocks + lane * row + element;
        slots.insert(slots.end(), from, from + kWidth);
      }
    }
    const Float* const rotations = table.data() + row * kWidth * group;
    slots.insert(slots.end(), rotations, rotations + row * kWidth);
    const auto expected =
        interpreted<Float>(Part::recombine, radix, slots, static_cast<std::size_t>(row * kWidth));
    for (int k = 0; k < row; ++k) {
      for (int lane = 0; lane < kWidth; ++lane) {
        const int b = kWidth * group + lane;
        const Float actual = k < radix ? y[b + m * k] : y[m - 1 - b + m * (k - radix)];
        EXPECT_TRUE(same_bits(actual, expected[static_cast<std::size_t>(k * kWidth + lane)]))
            << "radix " << radix << ", m " << m << ", output " << k;
      }
    }
  }
}

template <class Float>
void check_inner_recombine(int radix, void (*kernel)(const InnerRecombineRun<Float>&)) {
  constexpr int kWidth = kLanes<Float>;
  constexpr int kElements = kLine<Float>;
  const int sub_length = 8, rows = sub_length / 2, m = radix * sub_length;
  const auto pitch = static_cast<int>(inner_pitch<Float>(radix));
  const int entries = 2 * (radix - 1) * kWidth;
  Block<Float> e(static_cast<std::size_t>(rows * pitch));
  Block<Float> table(static_cast<std::size_t>(rows * entries));
  // Blocks four lines apart, the imaginary parts two lines behind.
  const int block = 4 * kElements, imaginary = 2 * kElements;
  Block<Float> z(static_cast<std::size_t>(m / 2 * block));
  e.fill_random(5);
  table.fill_random(6);
  kernel({e.data(), table.data(), {z.data(), block, imaginary}, sub_length});
  for (int row = 0; row < rows * kLineGroups; ++row) {
    const int b = row / kLineGroups, group = row % kLineGroups;
    std::vector<Float> slots;
    for (int k = 0; k < 2 * radix; ++k) {
      const Float* const from = e.data() + pitch * b + kElements * k + kWidth * group;
      slots.insert(slots.end(), from, from + kWidth);
    }
    slots.insert(slots.end(), table.data() + b * entries, table.data() + (b + 1) * entries);
    const auto expected = interpreted<Float>(Part::inner_recombine, radix, slots,
                                             static_cast<std::size_t>(2 * radix * kWidth));
    for (int k = 0; k < 2 * radix; ++k) {
      const int index = b + k / 2 * sub_length;
      const int place =
          block * (index < m / 2 ? index : m - 1 - index) + k % 2 * imaginary + kWidth * group;
      for (int lane = 0; lane < kWidth; ++lane) {
        EXPECT_TRUE(
            same_bits(z[place + lane], expected[static_cast<std::size_t>(k * kWidth + lane)]))
            << "radix " << radix << ", output " << k;
      }
    }
  }
}

template <class Float>
class Bits : public ::testing::Test {};
using FloatTypes = ::testing::Types<float, double>;
TYPED_TEST_SUITE(Bits, FloatTypes);

/// Checks the kernel of every class of a part; classes count powers of two.
template <class Kernel, std::size_t Count, class Check>
void for_each_class(Kernel* const (&table)[Count], int first, int last, Check check) {
  ASSERT_EQ(first << (Count - 1), last);
  for (std::size_t k = 0; k < Count; ++k) {
    ASSERT_NE(table[k], nullptr) << "size " << (first << k);
    check(first << k, table[k]);
  }
}

TYPED_TEST(Bits, FixedKernels) {
  for_each_class(KernelTable<TypeParam>::kFixed, 2, 32, check_fixed<TypeParam>);
}

TYPED_TEST(Bits, FoldsOfEveryShape) {
  for_each_class(KernelTable<TypeParam>::kFold, 2, 64, [](int m, auto* kernel) {
    constexpr int kWidth = kLanes<TypeParam>;
    constexpr int kElements = kLine<TypeParam>;
    for (int radix = kWidth; radix <= 32; radix *= 2) {
      const auto pitch = static_cast<int>(inner_pitch<TypeParam>(radix));
      check_fold<TypeParam>(m, {2 * radix, 2 * radix, radix, radix / kWidth}, kernel);
      check_fold<TypeParam>(m, {kElements, pitch, kElements, kLineGroups}, kernel);
    }
    check_fold<TypeParam>(m, {40, 48, 24, 20 / kWidth}, kernel);
  });
}

TYPED_TEST(Bits, RecombinationsAtSeveralLengths) {
  for_each_class(KernelTable<TypeParam>::kRecombine, 1, 32, [](int radix, auto* kernel) {
    for (const int m : {8, 16, radix, 2 * radix, 4 * radix}) {
      if (m >= 8) check_recombine<TypeParam>(radix, m, kernel);
    }
  });
}

TYPED_TEST(Bits, InnerRecombinations) {
  for_each_class(KernelTable<TypeParam>::kInnerRecombine, 2, 32, check_inner_recombine<TypeParam>);
}

}  // namespace
}  // namespace haldgen::dct4
