// Which calls are refused, with which status, in which order of tests.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <set>

#include "tests/contract/memory.h"
#include "tests/contract/transform.h"

namespace haldgen::test {
namespace {

// Besides the neighbours of the valid flags: values that equal one in their low bits, which a
// narrowed comparison or a shift by the flag would take for valid, and the ends of the range.
std::vector<std::int32_t> bad_flags() {
  std::set<std::int32_t> values = {INT_MIN, INT_MIN + 1, INT_MIN + 8, INT_MAX};
  for (std::int32_t value = -70; value <= 70; ++value) values.insert(value);
  for (int bit = 4; bit < 31; ++bit) {
    for (const std::int32_t flag : flags) {
      values.insert(1 << bit | flag);
      values.insert(-(1 << bit) | flag);
    }
    values.insert(1 << bit);
  }
  for (const std::int32_t flag : flags) values.erase(flag);
  return {values.begin(), values.end()};
}

// Arrays that a refused call can neither read nor write: first in their pages, or a float behind.
class ClosedArrays {
 public:
  explicit ClosedArrays(std::size_t size) : src_(size), dst_(size) {
    src_.allow(GuardedPages::Access::none);
    dst_.allow(GuardedPages::Access::none);
  }
  template <class Float>
  const Float* src(std::size_t shift) const {
    return reinterpret_cast<const Float*>(src_.bytes().data()) + shift;
  }
  template <class Float>
  Float* dst(std::size_t shift) const {
    return reinterpret_cast<Float*>(dst_.bytes().data()) + shift;
  }

 private:
  GuardedPages src_;
  GuardedPages dst_;
};

// The status of a call that touches no array; a touch is a failure and gives 1.
template <class Call>
std::int32_t untouched(Call&& call) {
  volatile std::int32_t status = 1;
  EXPECT_FALSE(faults([&] { status = call(); })) << "an array was touched";
  return status;
}

template <class Float>
void check_refusals(const Transform<Float>& transform) {
  SCOPED_TRACE(transform.name);
  static const std::vector<std::int32_t> bad = bad_flags();
  std::vector<std::int32_t> all(flags.begin(), flags.end());
  all.insert(all.end(), bad.begin(), bad.end());
  const ClosedArrays arrays((std::max(transform.src_floats, transform.dst_floats) + 1) *
                            sizeof(Float));
  for (const std::size_t shift : {0U, 1U}) {
    const auto* src = arrays.src<Float>(shift);
    auto* dst = arrays.dst<Float>(shift);
    for (const std::int32_t flag : all) {
      for (const auto& [from, to] :
           {std::pair<const Float*, Float*>{nullptr, nullptr}, {nullptr, dst}, {src, nullptr}}) {
        ASSERT_EQ(untouched([&, f = from, t = to] { return transform.call(f, t, flag); }),
                  haldStatusNullPointer)
            << "src " << from << ", dst " << to << ", flag " << flag;
      }
    }
    for (const std::size_t dst_shift : {0U, 1U}) {
      auto* to = arrays.dst<Float>(dst_shift);
      for (const std::int32_t flag : bad) {
        ASSERT_EQ(untouched([&] { return transform.call(src, to, flag); }), haldStatusFlagError)
            << "src " << src << ", dst " << to << ", flag " << flag;
      }
    }
  }
}

template <class Float>
void check_sizes(const GeneralEntry<Float>& entry) {
  SCOPED_TRACE(entry.name);
  std::set<std::int32_t> bad = {INT_MIN, INT_MAX};
  for (std::int32_t size = -300; size <= 600; ++size) bad.insert(size);
  for (int bit = 10; bit < 31; ++bit) bad.insert({1 << bit, (1 << bit) + 2, -(1 << bit)});
  for (const int size : entry.word->sizes) bad.erase(size);
  const ClosedArrays arrays(sizeof(Float));
  for (const std::int32_t size : bad) {
    for (const std::int32_t flag : {0, 3, -1, static_cast<int>(haldScaleNone)}) {
      for (const Float* src : {static_cast<const Float*>(nullptr), arrays.src<Float>(0)}) {
        for (Float* dst : {static_cast<Float*>(nullptr), arrays.dst<Float>(0)}) {
          ASSERT_EQ(untouched([&] { return entry.call(src, dst, size, flag); }),
                    haldStatusSizeError)
              << "src " << src << ", dst " << dst << ", size " << size << ", flag " << flag;
        }
      }
    }
  }
}

TEST(Status, NullPointersOutrankBadFlagsAndRefusedCallsTouchNothing) {
  for_each_fixed([](const auto& transform) { check_refusals(transform); });
}

TEST(Status, GeneralEntriesRefuseAsTheFixedSizesDo) {
  for (const auto& transform : live<float>().through_general) check_refusals(transform);
  for (const auto& transform : live<double>().through_general) check_refusals(transform);
}

TEST(Status, BadSizesOutrankEverything) {
  for (const auto& entry : live<float>().general) check_sizes(entry);
  for (const auto& entry : live<double>().general) check_sizes(entry);
}

}  // namespace
}  // namespace haldgen::test
