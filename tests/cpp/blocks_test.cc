// haldgen.hpp on single blocks: the bits of the general C functions, at all lengths.
#include <array>
#include <string>

#include "cpp/words.h"

// The program's own, in the place of haldcore's: no transform may allocate.
extern "C" void* haldMalloc(std::int32_t /*size*/) {
  ADD_FAILURE() << "memory taken";
  return nullptr;
}

namespace haldgen::test {
namespace {

template <class T>
class Blocks : public testing::Test {};
using Floats = testing::Types<float, double>;
TYPED_TEST_SUITE(Blocks, Floats, );

template <class Src, class Dst, class Call, std::size_t n>
void call_of_length(const void* x, void* X, scale s) {
  Call{}(*static_cast<const std::array<Src, elements<Src, Dst>(n)>*>(x),
         *static_cast<std::array<Dst, elements<Dst, Src>(n)>*>(X), s);
}

/// Calls of all lengths, from the first; pointers, so that what is instantiated stays small.
template <class Src, class Dst, class Call>
constexpr auto calls_by_length() {
  return []<std::size_t... I>(std::index_sequence<I...>) {
    return std::array{&call_of_length<Src, Dst, Call, kFirst + I>...};
  }
  (std::make_index_sequence<kLast + 1 - kFirst>());
}

TYPED_TEST(Blocks, AreTheFunctionsOfC) {
  using T = TypeParam;
  for_each_word<T>([]<class Src, class Dst, auto function, class Call>(
      const char* name, Call /*call*/, const auto& look_up) {
    constexpr auto calls = calls_by_length<Src, Dst, Call>();
    for (std::size_t n = kFirst; n <= kLast; ++n) {
      for (const scale s : kScales) {
        SCOPED_TRACE(std::string(name) + " of " + std::to_string(n) + ", flag " +
                     std::to_string(flag(s)));
        const auto floats = noise<T>(2 * n + 2);
        std::vector<T> expected(2 * n + 2), found = expected, in_place = floats, sized = expected;
        const auto* x = reinterpret_cast<const Src*>(floats.data());
        const auto dst = [](std::vector<T>& array) { return reinterpret_cast<Dst*>(array.data()); };
        call_general<function>(x, dst(expected), n, s);
        calls[n - kFirst](x, dst(found), s);
        EXPECT_TRUE(same(found, expected));
        const auto transform = look_up(n).value();
        EXPECT_EQ(transform.src_size(), (elements<Src, Dst>(n)));
        ASSERT_EQ(transform.dst_size(), (elements<Dst, Src>(n)));
        transform(x, dst(sized), s);
        EXPECT_TRUE(same(sized, expected));
        calls[n - kFirst](reinterpret_cast<const Src*>(in_place.data()), dst(in_place), s);
        const std::size_t bytes = transform.dst_size() * sizeof(Dst);
        EXPECT_EQ(std::memcmp(in_place.data(), expected.data(), bytes), 0);
      }
    }
  });
}

/// Whether a half spectrum has the bins of CCS format, by whatever way it came about.
template <class T, std::size_t N, packing P>
bool half_spectrum_is_right() {
  const auto samples = noise<T>(N);
  const auto x = block<N>(samples.data());
  std::array<std::complex<T>, N / 2 + 1> bins;
  haldgen::real_dft(x, bins);
  const auto spectrum = haldgen::real_dft<P>(x);
  static_assert(sizeof spectrum == sizeof(T) * packed_size(P, N));
  half_spectrum<T, N, P> filled, again;
  bool right = spectrum.size() == bins.size();
  for (std::size_t k = 0; k < bins.size(); ++k) {
    right = right && spectrum[k] == bins[k];
    filled.set(k, bins[k]);
  }
  haldgen::real_dft(x, again);
  std::array<T, N> y, expected;
  haldgen::inverse_real_dft(spectrum, y);
  haldgen::inverse_real_dft(bins, expected);
  if constexpr (P == packing::ccs) right = right && same(spectrum.bins(), bins);
  return right && same(filled.elements(), spectrum.elements()) &&
         same(again.elements(), spectrum.elements()) && same(y, expected);
}

TYPED_TEST(Blocks, HalfSpectraHaveTheirBins) {
  using enum packing;
  [&]<std::size_t... N>(std::index_sequence<N...>) {
    for (const auto& [n, is_right] :
         {std::pair(N, &half_spectrum_is_right<TypeParam, N, ccs>)...,
          std::pair(N, &half_spectrum_is_right<TypeParam, N, pack>)...,
          std::pair(N, &half_spectrum_is_right<TypeParam, N, perm>)...}) {
      EXPECT_TRUE(is_right()) << n;
    }
  }
  (std::index_sequence<2, 3, 4, 5, 16, 25, 63, 64>());
}

TYPED_TEST(Blocks, AreArraysOfAnyKindAndInPlace) {
  const auto floats = noise<TypeParam>(16);
  std::array<std::complex<TypeParam>, 8> x, forward, inverse;
  for (std::size_t i = 0; i < 8; ++i) x[i] = {floats[2 * i], floats[2 * i + 1]};
  haldgen::dft(x, forward, scale::inverse_by_n);
  haldgen::inverse_dft(x, inverse, scale::inverse_by_n);
  std::complex<TypeParam> y[8];
  std::ranges::copy(x, y);
  haldgen::dft(y);
  EXPECT_TRUE(same(y, forward));
  auto z = x;
  haldgen::inverse_dft(std::span(z));
  EXPECT_TRUE(same(z, inverse));
  std::array<TypeParam, 16> h, expected;
  haldgen::hartley(block<16>(floats.data()), expected, scale::none);
  std::ranges::copy(floats, h.begin());
  haldgen::hartley(h);
  EXPECT_TRUE(same(h, expected));
}

/// The transforms of an order: with a work area of its length, of the largest, without one.
template <class T>
struct Hadamard {
  using Function = void (*)(const T*, T*, scale);
  std::size_t work_bytes;
  Function own, shared, none;
};

template <class T, std::size_t order>
Hadamard<T> hadamard() {
  constexpr std::size_t n = std::size_t{1} << order;
  const auto with = []<std::size_t M>(std::integral_constant<std::size_t, M>) {
    return [](const T* x, T* Y, scale s) {
      static wht_work<T, M> work;
      haldgen::wht(block<n>(x), block<n>(Y), work, s);
      std::copy(x, x + n, Y);
      haldgen::wht(block<n>(Y), work, s);
    };
  };
  Hadamard<T> result{wht_work<T, n>::size(), with(std::integral_constant<std::size_t, n>()),
                     with(std::integral_constant<std::size_t, 8192>()), nullptr};
  if constexpr (n < 256) {
    result.none = [](const T* x, T* Y, scale s) { haldgen::wht(block<n>(x), block<n>(Y), s); };
  }
  return result;
}

TYPED_TEST(Blocks, WalshHadamard) {
  using T = TypeParam;
  const auto all = []<std::size_t... I>(std::index_sequence<I...>) {
    return std::array{hadamard<T, I + 1>()...};
  }
  (std::make_index_sequence<13>());
  static wht_work<T, 8192> work;
  for (std::size_t order = 1; order <= all.size(); ++order) {
    const Hadamard<T>& transforms = all[order - 1];
    const std::size_t n = std::size_t{1} << order;
    const auto input = noise<T>(n);
    std::vector<T> expected(n), found(n);
    for (const scale s : kScales) {
      SCOPED_TRACE(std::to_string(n) + ", flag " + std::to_string(flag(s)));
      ASSERT_EQ(of_type<T>(haldgWHT_32f, haldgWHT_64f)(input.data(), expected.data(),
                                                       static_cast<std::int32_t>(order), flag(s),
                                                       work.area()),
                haldStatusOk);
      for (const auto& transform : {transforms.own, transforms.shared, transforms.none}) {
        if (transform == nullptr) continue;
        found.assign(n, 0);
        transform(input.data(), found.data(), s);
        EXPECT_TRUE(same(found, expected));
      }
      const auto sized = kernel<T>::wht(n).value();
      found.assign(n, 0);
      sized(input.data(), found.data(), std::as_writable_bytes(std::span(work.area(), work.size())),
            s);
      EXPECT_TRUE(same(found, expected));
      std::uint32_t bytes = 1;
      of_type<T>(haldgWHTGetBufferSize_32f, haldgWHTGetBufferSize_64f)(
          static_cast<std::int32_t>(order), &bytes);
      EXPECT_EQ(transforms.work_bytes, bytes);
      EXPECT_EQ(sized.work_bytes(), bytes);
    }
  }
}

TYPED_TEST(Blocks, DctOwnsItsState) {
  using T = TypeParam;
  static_assert(!std::is_invocable_v<dct4<float>&, std::span<double>, std::span<double>>);
  static_assert(!std::is_copy_constructible_v<dct4<T>>);
  for (std::size_t n = 2; n <= 1024; n *= 2) {
    SCOPED_TRACE(n);
    const auto length = static_cast<std::int32_t>(n);
    std::int32_t bytes = 0;
    ASSERT_EQ(of_type<T>(haldgDCT4GetSize_32f, haldgDCT4GetSize_64f)(length, &bytes), haldStatusOk);
    EXPECT_EQ(dct4<T>::state_bytes(n), static_cast<std::size_t>(bytes));
    std::vector<std::uint8_t> of_c(static_cast<std::size_t>(bytes));
    Dct4State* state = nullptr;
    of_type<T>(haldgDCT4Init_32f, haldgDCT4Init_64f)(&state, length, of_c.data());
    const auto x = noise<T>(n);
    std::vector<T> expected(n), y(n);
    of_type<T>(haldgDCT4_32f, haldgDCT4_64f)(x.data(), expected.data(), state);

    const auto expect = [&](dct4<T>& transform) {
      ASSERT_EQ(transform.size(), n);
      y.assign(n, 0);
      transform(x, y);
      EXPECT_TRUE(same(y, expected));
    };
    std::vector<std::byte> buffer(dct4<T>::state_bytes(n) + 1);
    dct4<T> own(n), lent(n, std::span(buffer).subspan(1)), moved(std::move(own));
    expect(lent);
    expect(moved);
    EXPECT_EQ(own.size(), 0u);  // NOLINT(bugprone-use-after-move): what is left is specified
    own = std::move(lent);
    expect(own);
    // A failure leaves the state as it was.
    EXPECT_EQ(own.set_up(33), status::size_error);
    EXPECT_EQ(own.set_up(n, std::span(buffer).subspan(2)), status::size_error);
    expect(own);
    EXPECT_EQ(own.set_up(n), status::ok);
    expect(own);
  }
}

TYPED_TEST(Blocks, SaysWhatThereIsNot) {
  using T = TypeParam;
  for (const std::size_t n : {std::size_t{0}, std::size_t{1}, std::size_t{65}, ~std::size_t{0}}) {
    EXPECT_FALSE(kernel<T>::dft(n));
    EXPECT_FALSE(kernel<T>::wht(n));
    EXPECT_EQ(dct4<T>::state_bytes(n), 0u);
  }
  EXPECT_EQ(dct4<T>::state_bytes(2 * dct4<T>::last_length), 0u);
  const auto message = [](const auto& f) -> std::string {
    try {
      f();
    } catch (const std::logic_error& error) {
      return error.what();
    }
    return "nothing";
  };
  EXPECT_EQ(message([] { (void)kernel<T>::hartley(65).value(); }),
            "haldgen: no transform of 65 points. Hartley transform: 2..64 points");
  EXPECT_NE(message([] { dct4<T> none(33); }).find("no DCT-IV of 33 points"), std::string::npos);
  for (const status s : {status::ok, status::bad_argument, status::size_error, status::null_pointer,
                         status::flag_error}) {
    EXPECT_NE(to_string(s), to_string(status{1}));
  }
}

}  // namespace
}  // namespace haldgen::test
