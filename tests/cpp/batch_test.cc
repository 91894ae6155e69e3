// haldbatch.hpp: the bits of single blocks in any layout, and two dimensions.
#include <algorithm>
#include <array>
#include <haldbatch.hpp>
#include <string>

#include "cpp/words.h"

namespace haldgen::test {
namespace {

template <class T>
class Batches : public testing::Test {};
using Floats = testing::Types<float, double>;
TYPED_TEST_SUITE(Batches, Floats, );

constexpr std::size_t kCount = 5;

/// Rows as the columns of another array.
template <class E>
std::vector<E> transposed(const std::vector<E>& x, std::size_t length) {
  std::vector<E> y(x.size());
  const std::size_t count = x.size() / length;
  for (std::size_t i = 0; i < x.size(); ++i) y[i % length * count + i / length] = x[i];
  return y;
}

template <class E>
std::vector<E> elements_of(const auto& floats, std::size_t size) {
  const auto* first = reinterpret_cast<const E*>(floats.data());
  return {first, first + size};
}

/// A batch of rows into columns and one of columns into rows, with a length in the type.
template <class Src, class Dst, class Call, std::size_t n>
void call_batch(const std::vector<Src>& x, std::vector<Dst>& X, bool from_rows, scale s) {
  constexpr std::size_t from = elements<Src, Dst>(n), to = elements<Dst, Src>(n);
  if (from_rows) {
    Call{}(rows<from>(x), columns<to>(X), s);
  } else {
    Call{}(columns<from>(x), rows<to>(X), s);
  }
}

TYPED_TEST(Batches, AreSingleBlocks) {
  using T = TypeParam;
  for_each_word<T>([]<class Src, class Dst, auto function, class Call>(const char* name, Call call,
                                                                       const auto& look_up) {
    for (std::size_t n = kFirst; n <= kLast; ++n) {
      SCOPED_TRACE(std::string(name) + " of " + std::to_string(n));
      const std::size_t from = elements<Src, Dst>(n), to = elements<Dst, Src>(n);
      const auto x = elements_of<Src>(noise<T>(2 * kCount * from), kCount * from);
      const auto side_by_side = transposed(x, from);
      std::vector<Dst> expected(kCount * to), found(kCount * to), in_columns(kCount * to);
      const scale s = kScales[n % 4];
      const auto transform = look_up(n).value();
      for (std::size_t t = 0; t < kCount; ++t) transform(&x[t * from], &expected[t * to], s);
      EXPECT_EQ(call(rows(x, from), columns(in_columns, to), s), status::ok);
      EXPECT_TRUE(same(in_columns, transposed(expected, to)));
      EXPECT_EQ(call(columns(side_by_side, from), rows(found, to), s), status::ok);
      EXPECT_TRUE(same(found, expected));

      // A few with the length in the type: on these all of them depend alike.
      constexpr std::pair<std::size_t, decltype(&call_batch<Src, Dst, Call, 2>)> fixed[] = {
          {2, &call_batch<Src, Dst, Call, 2>},
          {25, &call_batch<Src, Dst, Call, 25>},
          {64, &call_batch<Src, Dst, Call, 64>}};
      for (const auto& [length, call_fixed] : fixed) {
        if (length != n) continue;
        call_fixed(x, in_columns, true, s);
        EXPECT_TRUE(same(in_columns, transposed(expected, to)));
        found.assign(found.size(), Dst{});
        call_fixed(side_by_side, found, false, s);
        EXPECT_TRUE(same(found, expected));
      }
    }
  });
}

TYPED_TEST(Batches, WalshHadamardNeedsNoWorkArea) {
  using T = TypeParam;
  static wht_work<T, 8192> work;
  const auto area = std::as_writable_bytes(std::span(work.area(), work.size()));
  for (std::size_t n = 2; n <= 8192; n *= 2) {
    const auto x = noise<T>(2 * n);
    std::vector<T> found(2 * n), expected(2 * n);
    kernel<T>::wht(n).value()(x.data(), expected.data(), area, scale::by_sqrt_n);
    kernel<T>::wht(n).value()(&x[n], &expected[n], area, scale::by_sqrt_n);
    EXPECT_EQ(haldgen::wht(rows(x, n), rows(found, n), scale::by_sqrt_n), status::ok);
    EXPECT_TRUE(same(found, expected)) << n;
  }
}

TYPED_TEST(Batches, StatusSaysWhatIsWrong) {
  std::array<std::complex<TypeParam>, 96> x{}, y{};
  const auto all_of = [](auto& array) { return std::span(array); };
  EXPECT_EQ(haldgen::dft(rows(x, 1), rows(y, 1)), status::size_error);
  EXPECT_EQ(haldgen::dft(rows(x, 0), rows(y, 0)), status::size_error);
  EXPECT_EQ(haldgen::dft(rows(x, 96)), status::size_error);
  EXPECT_EQ(haldgen::dft(rows(x, 8), rows<12>(y)), status::size_error);
  EXPECT_EQ(haldgen::dft(rows(x, 12), rows<12>(all_of(y).first(60))), status::bad_argument);
  EXPECT_EQ(haldgen::dft(rows(x, 12), scale{3}), status::flag_error);
  EXPECT_EQ(haldgen::inverse_dft(columns(x, 12)), status::ok);
  EXPECT_EQ(haldgen::dft(blocks<std::complex<TypeParam>>{nullptr, 1, 8, 2, 8}),
            status::null_pointer);
}

/// In place in two dimensions, in a frame that must stay as it is, beside rows, then columns.
template <class T, class E>
void expect_two_dimensions(const auto& transform) {
  constexpr std::size_t height = 4, width = 8, pitch = 11;
  const auto x = elements_of<E>(noise<T>(2 * height * width), height * width);
  auto expected = x, found = x;
  transform(rows<width>(expected));
  transform(columns<height>(expected));
  transform(matrix<height, width>(found));
  EXPECT_TRUE(same(found, expected));

  std::vector<E> framed(height * pitch, E(7)), all = framed;
  for (std::size_t i = 0; i < height * width; ++i) framed[1 + i / width * pitch + i % width] = x[i];
  for (std::size_t i = 0; i < height * width; ++i)
    all[1 + i / width * pitch + i % width] = expected[i];
  transform(matrix_block<E, height, width>{&framed[1], pitch});
  EXPECT_TRUE(same(framed, all));
}

TYPED_TEST(Batches, TwoDimensions) {
  using T = TypeParam;
  using Complex = std::complex<T>;
  constexpr scale s = scale::by_sqrt_n;
  expect_two_dimensions<T, Complex>([](auto x) { haldgen::dft(x, s); });
  expect_two_dimensions<T, Complex>([](auto x) { haldgen::inverse_dft(x, s); });
  expect_two_dimensions<T, T>([](auto x) { haldgen::hartley(x, s); });
  expect_two_dimensions<T, T>([](auto x) { haldgen::wht(x, s); });

  constexpr std::size_t height = 5, width = 12, bins = 7;
  const auto x = noise<T>(height * width);
  std::array<Complex, height * bins> found, expected;
  haldgen::real_dft(rows<width>(x), rows<bins>(expected), s);
  haldgen::dft(columns<height>(expected), s);
  haldgen::real_dft(matrix<height, width>(x), matrix<height, bins>(found), s);
  EXPECT_TRUE(same(found, expected));

  std::array<T, height * width> samples, expected_samples;
  haldgen::inverse_dft(columns<height>(expected), s);
  haldgen::inverse_real_dft(rows<bins>(expected), rows<width>(expected_samples), s);
  haldgen::inverse_real_dft(matrix<height, bins>(found), matrix<height, width>(samples), s);
  EXPECT_TRUE(same(samples, expected_samples));
  for (std::size_t i = 0; i < x.size(); ++i) EXPECT_NEAR(samples[i], x[i], 1e-5);
}

}  // namespace
}  // namespace haldgen::test
