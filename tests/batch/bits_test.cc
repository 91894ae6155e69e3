// Each transform of a batch has the bits of the single call, wherever it lies and however many
// there are, and nothing but its elements is touched.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "bits/taker.h"
#include "tests/batch/field.h"
#include "tests/batch/library.h"

namespace haldgen::test {
namespace {

/// What the transforms of a batch are given, and what the single call makes of it by each flag.
template <class Float>
struct Examples {
  explicit Examples(const Batch<Float>& batch, std::size_t count) {
    const Transform<Float>& single = *batch.single;
    const auto hard = hard_inputs<Float>(single.src_floats, single.points);
    for (std::size_t t = 0; t < count; ++t) {
      // The first batches meet random numbers first; later ones what is hard on bits.
      sources.push_back(t % 2 == 0
                            ? random_floats<Float>(single.src_floats, static_cast<unsigned>(t))
                            : hard[(t * 7 + single.src_floats) % hard.size()]);
      if (t % 11 == 5) {
        sources[t][t % single.src_floats] = t % 2 == 0 ? std::numeric_limits<Float>::infinity()
                                                       : -std::numeric_limits<Float>::infinity();
      }
      for (const std::int32_t flag : flags) {
        results[static_cast<std::size_t>(flag)].push_back(result(single, sources[t], flag));
      }
    }
  }

  std::vector<std::vector<Float>> sources;
  std::vector<std::vector<Float>> results[haldScaleNone + 1];  ///< by flag
};

/// How a batch is called.
struct Case {
  Layout src, dst;
  std::size_t count;
  std::int32_t flag;
  Spot src_spot, dst_spot;

  std::string text() const {
    return src.name + " to " + dst.name + ", " + std::to_string(count) + " transforms, flag " +
           std::to_string(flag) + (src_spot.at_end ? ", at the end" : ", at the start") + ", " +
           std::to_string(src_spot.shift) + " and " + std::to_string(dst_spot.shift) + " bytes off";
  }
};

/// What the source of transform t is in a layout in which all are one, or all elements are.
template <class Float>
std::vector<Float> seen(const Examples<Float>& examples, const Layout& layout, std::size_t t,
                        std::size_t width) {
  std::vector<Float> source = examples.sources[layout.dist == 0 ? 0 : t];
  for (std::size_t i = width; layout.step == 0 && i < source.size(); ++i) {
    source[i] = source[i % width];
  }
  return source;
}

template <class Float>
void expect_single_bits(const Batch<Float>& batch, const Examples<Float>& examples, const Case& c) {
  const Field<Float> src(c.src, batch.src_elements(), batch.src_width, c.count, c.src_spot);
  const Field<Float> dst(c.dst, batch.dst_elements(), batch.dst_width, c.count, c.dst_spot);
  for (std::size_t t = 0; t < c.count; ++t) {
    src.write(t, seen(examples, c.src, t, batch.src_width));
  }
  src.allow(GuardedPages::Access::read);
  volatile std::int32_t status = 1;
  ASSERT_FALSE(faults([&] {
    status =
        batch.function(src.first(), c.src.step, c.src.dist, dst.first(), c.dst.step, c.dst.dist,
                       batch.single->size, static_cast<std::ptrdiff_t>(c.count), c.flag);
  })) << batch.name
      << ", " << c.text() << ": touches other memory";
  ASSERT_EQ(status, haldStatusOk) << batch.name << ", " << c.text();
  for (std::size_t t = 0; t < c.count; ++t) {
    const std::vector<Float> source = seen(examples, c.src, t, batch.src_width);
    const bool known = identical(source, examples.sources[t]);
    const std::vector<Float> expected = known
                                            ? examples.results[static_cast<std::size_t>(c.flag)][t]
                                            : result(*batch.single, source, c.flag);
    ASSERT_TRUE(bits::same<Float>(dst.read(t), expected))
        << batch.name << ", " << c.text() << ": other bits in transform " << t;
  }
  ASSERT_TRUE(dst.untouched_between()) << batch.name << ", " << c.text() << ": writes beside";
}

/// `src` and `dst` begin at one address; the array is as large as the elements of the wider side.
template <class Float>
void expect_single_bits_in_place(const Batch<Float>& batch, const Examples<Float>& examples,
                                 const Layout& src, const Layout& dst, std::size_t count,
                                 std::int32_t flag) {
  const bool wider_dst = batch.dst_width > batch.src_width;
  const std::size_t elements = std::max(batch.src_elements(), batch.dst_elements());
  const Field<Float> memory(wider_dst ? dst : src, elements,
                            std::max(batch.src_width, batch.dst_width), count, {true, 0});
  const Field<Float> before(memory, src, batch.src_elements(), batch.src_width);
  const Field<Float> after(memory, dst, batch.dst_elements(), batch.dst_width);
  for (std::size_t t = 0; t < count; ++t) before.write(t, examples.sources[t]);
  ASSERT_EQ(batch.function(before.first(), src.step, src.dist, after.first(), dst.step, dst.dist,
                           batch.single->size, static_cast<std::ptrdiff_t>(count), flag),
            haldStatusOk);
  const auto& expected = examples.results[static_cast<std::size_t>(flag)];
  for (std::size_t t = 0; t < count; ++t) {
    ASSERT_TRUE(bits::same<Float>(after.read(t), expected[t]))
        << batch.name << " in place, " << src.name << ", " << count << ": transform " << t;
  }
}

template <class Float>
class Batches : public testing::Test {};
using Floats = testing::Types<float, double>;
TYPED_TEST_SUITE(Batches, Floats);

/// Visits every function at every length with examples for as many transforms as are worth it.
template <class Float, class Visitor>
void for_each_batch(Visitor&& visit) {
  ASSERT_FALSE(batches<Float>().empty());
  for (const Batch<Float>& batch : batches<Float>()) {
    const std::size_t most = batch.single->src_floats <= 128 ? 40
                             : batch.single->points <= 1024  ? 9
                                                             : 3;
    visit(batch, Examples<Float>(batch, most), most);
    if (testing::Test::HasFatalFailure()) return;
  }
}

TYPED_TEST(Batches, OfAnyCountInRowsAndColumns) {
  for_each_batch<TypeParam>([](const auto& batch, const auto& examples, std::size_t most) {
    std::size_t number = 0;
    for (std::size_t count = 1; count <= most; ++count) {
      const auto src = layouts(batch.src_elements(), count);
      const auto dst = layouts(batch.dst_elements(), count);
      // Rows and columns on both sides, one pair in turns.
      for (const std::size_t pair : {number % 4, (number + 3) % 4}) {
        const bool at_end = number % 3 != 0;
        expect_single_bits(batch, examples,
                           {src[pair / 2],
                            dst[pair % 2],
                            count,
                            flags[(number / 4) % 4],
                            {at_end, 0},
                            {at_end, 0}});
        if (testing::Test::HasFatalFailure()) return;
      }
      ++number;
    }
  });
}

TYPED_TEST(Batches, OfAnyLayoutAndAlignment) {
  for_each_batch<TypeParam>([](const auto& batch, const auto& examples, std::size_t most) {
    const bool complex = batch.single->element == names::Element::c32 ||
                         batch.single->element == names::Element::c64;
    const std::size_t unit = complex ? sizeof(TypeParam) : 1;
    std::size_t number = 0;
    for (const std::size_t count :
         {std::min<std::size_t>(most, 3), std::min<std::size_t>(most, 21)}) {
      const auto src = layouts(batch.src_elements(), count);
      const auto dst = layouts(batch.dst_elements(), count);
      const std::size_t sinks = dst.size() - kLayoutsOfSources;
      for (std::size_t i = 0; i < src.size(); ++i) {
        for (const std::size_t j : {i % sinks, (5 * i + count) % sinks}) {
          expect_single_bits(batch, examples,
                             {src[i],
                              dst[j],
                              count,
                              flags[number % 4],
                              {number % 2 == 0, (number % 5) * unit},
                              {number % 2 == 0, (number % 3) * unit}});
          if (testing::Test::HasFatalFailure()) return;
          ++number;
        }
      }
    }
  });
}

TYPED_TEST(Batches, InPlace) {
  for_each_batch<TypeParam>([](const auto& batch, const auto& examples, std::size_t most) {
    const std::size_t elements = std::max(batch.src_elements(), batch.dst_elements());
    const std::size_t width = std::max(batch.src_width, batch.dst_width);
    // Equally many bytes apart: samples as far from one another as bins.
    const auto of = [width](const Layout& layout, std::size_t side) {
      const auto more = static_cast<std::ptrdiff_t>(width / side);
      return Layout{layout.name, layout.step * more, layout.dist * more};
    };
    for (const std::size_t count :
         {std::size_t{1}, std::min<std::size_t>(most, 8), std::min<std::size_t>(most, 37)}) {
      const auto all = layouts(elements, count);
      for (std::size_t i = 0; i < all.size() - kLayoutsOfSources; ++i) {
        expect_single_bits_in_place(batch, examples, of(all[i], batch.src_width),
                                    of(all[i], batch.dst_width), count, flags[i % 4]);
        if (testing::Test::HasFatalFailure()) return;
      }
      // Samples one behind the other in rows with room for the bins.
      if (batch.src_width == batch.dst_width) continue;
      const Layout rows{"rows with room", 1, static_cast<std::ptrdiff_t>(elements)};
      Layout src = of(rows, batch.src_width);
      Layout dst = of(rows, batch.dst_width);
      src.step = dst.step = 1;
      expect_single_bits_in_place(batch, examples, src, dst, count, haldScaleNone);
      if (testing::Test::HasFatalFailure()) return;
    }
  });
}

}  // namespace
}  // namespace haldgen::test
