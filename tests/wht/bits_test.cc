// Every bit of every result.
#include <gtest/gtest.h>

#include <limits>

#include "tests/wht/library.h"

namespace haldgen::wht::test {
namespace {

// Inputs on which a kernel with other arithmetic would give itself away.
template <class Float>
std::vector<std::vector<Float>> inputs(std::size_t count) {
  using Limits = std::numeric_limits<Float>;
  auto all = haldgen::test::hard_inputs<Float>(count, static_cast<int>(count));
  auto huge = random_floats<Float>(count, 5);
  for (Float& value : huge) value *= Limits::max();
  all.push_back(huge);
  for (const Float value : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
    all.push_back(random_floats<Float>(count, 6));
    all.back()[count * 2 / 3] = value;
  }
  return all;
}

TEST(Bits, EqualThePlainNetwork) {
  for_each_kernel([]<class Float>(const Kernel<Float>& kernel) {
    for (const std::vector<Float>& src : inputs<Float>(kernel.points())) {
      for (const std::int32_t flag : flags) {
        std::vector<Float> dst(src.size());
        allocator::reset();
        ASSERT_EQ(kernel.call(src.data(), dst.data(), flag, nullptr), haldStatusOk) << kernel.name;
        const auto scale = nearest_scale<Float>(kernel.order, flag);
        EXPECT_TRUE(identical(dst, plain_network(src, scale))) << kernel.name << ", flag " << flag;
      }
    }
  });
}

}  // namespace
}  // namespace haldgen::wht::test
