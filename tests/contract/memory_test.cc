// What a transform reads and writes, and that no placement of its arrays changes a bit.
#include "tests/contract/memory.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/contract/transform.h"

namespace haldgen::test {
namespace {

constexpr std::byte canary{0xA5};

void fill(std::span<std::byte> bytes) { std::fill(bytes.begin(), bytes.end(), canary); }

// Whether `bytes` holds these floats at an offset and the canary everywhere else.
template <class Float>
bool holds(std::span<const std::byte> bytes, std::size_t offset, const std::vector<Float>& floats) {
  const auto is_canary = [](std::byte byte) { return byte == canary; };
  const std::size_t size = floats.size() * sizeof(Float);
  const auto array = bytes.subspan(offset, size);
  const auto behind = bytes.subspan(offset + size);
  return std::memcmp(array.data(), floats.data(), size) == 0 &&
         std::all_of(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(offset),
                     is_canary) &&
         std::all_of(behind.begin(), behind.end(), is_canary);
}

// Both ends of the pages. Complex arrays need the alignment of a float; others may begin at any
// byte.
template <class Float>
std::vector<Placement> placements(const Transform<Float>& transform) {
  const bool real = transform.word->elements[0] == names::Element::f32;
  std::vector<Placement> all;
  for (const bool at_end : {false, true}) {
    for (std::size_t distance = 0; distance < (real ? 16 : 64);
         distance += real ? 1 : sizeof(Float)) {
      all.push_back({at_end, distance});
    }
  }
  return all;
}

// Puts floats at a place in pages that otherwise hold the canary; where they are.
template <class Float>
std::size_t put(const GuardedPages& pages, const Placement& place, std::size_t array_floats,
                const std::vector<Float>& floats) {
  const std::size_t offset = place.offset(array_floats * sizeof(Float), pages.bytes().size());
  fill(pages.bytes());
  std::ranges::copy(std::as_bytes(std::span(floats)), pages.bytes().data() + offset);
  return offset;
}

template <class Float>
void check_separate_arrays(const Transform<Float>& transform) {
  const std::vector<Float> input = random_floats<Float>(transform.src_floats, 1);
  const std::vector<Float> expected = result(transform, input, haldScaleBySqrtN);
  const GuardedPages src(transform.src_floats * sizeof(Float) + 64);
  const GuardedPages dst(transform.dst_floats * sizeof(Float) + 64);
  for (const Placement& from : placements(transform)) {
    src.allow(GuardedPages::Access::write);
    const std::size_t read_at = put(src, from, input.size(), input);
    src.allow(GuardedPages::Access::read);
    for (const Placement& to : placements(transform)) {
      const std::size_t write_at = put<Float>(dst, to, expected.size(), {});
      const std::string where = transform.name + ", src " + from.text() + ", dst " + to.text();
      volatile std::int32_t status = 1;
      ASSERT_FALSE(faults([&] {
        status = transform.call(reinterpret_cast<const Float*>(src.bytes().data() + read_at),
                                reinterpret_cast<Float*>(dst.bytes().data() + write_at),
                                haldScaleBySqrtN);
      })) << where
          << ": faulted";
      ASSERT_EQ(status, haldStatusOk) << where;
      ASSERT_TRUE(holds(dst.bytes(), write_at, expected)) << where << ": other bits";
    }
  }
}

template <class Float>
void check_in_place(const Transform<Float>& transform) {
  const std::vector<Float> input = random_floats<Float>(transform.src_floats, 2);
  std::vector<Float> expected = result(transform, input, haldScaleBySqrtN);
  // Behind a result that is shorter than the source, the source stays.
  for (std::size_t i = expected.size(); i < input.size(); ++i) expected.push_back(input[i]);
  const GuardedPages pages(expected.size() * sizeof(Float) + 64);
  for (const Placement& place : placements(transform)) {
    const std::size_t offset = put(pages, place, expected.size(), input);
    auto* array = reinterpret_cast<Float*>(pages.bytes().data() + offset);
    const std::string where = transform.name + " in place, " + place.text();
    volatile std::int32_t status = 1;
    ASSERT_FALSE(faults([&] { status = transform.call(array, array, haldScaleBySqrtN); }))
        << where << ": faulted";
    ASSERT_EQ(status, haldStatusOk) << where;
    ASSERT_TRUE(holds(pages.bytes(), offset, expected)) << where << ": other bits";
  }
}

// The source is in read-only pages and both arrays touch an inaccessible page at distance 0.
TEST(Memory, NoPlacementChangesABitAndNothingElseIsTouched) {
  for_each_fixed([](const auto& transform) { check_separate_arrays(transform); });
}

TEST(Memory, InPlaceGivesTheSameBits) {
  for_each_fixed([](const auto& transform) { check_in_place(transform); });
}

}  // namespace
}  // namespace haldgen::test
