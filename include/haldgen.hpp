/**
 * @file haldgen.hpp
 * haldgen.h for C++20: lengths in types, std::complex, enumerators for scales. Header only; a call
 * compiles to the C call and nothing else.
 *
 * A block is anything that std::span can be made of with its length in the type: an array, a
 * std::array, a std::span of fixed extent. Its length selects the function when the program is
 * compiled, so nothing can fail, and transforms return nothing. What haldgen.h says of arrays,
 * threads and bits holds here: any alignment of the floats will do, source and destination may be
 * the same block but must not overlap otherwise, and the bits are those of the C functions.
 *
 * For lengths known at run time only there is kernel<T>. Batches are in haldbatch.hpp.
 */
#ifndef HALDGEN_HPP
#define HALDGEN_HPP

#if __cplusplus < 202002L && (!defined(_MSVC_LANG) || _MSVC_LANG < 202002L)
#error "haldgen.hpp is C++20 (-std=c++20); haldgen.h serves C and earlier C++"
#endif

#include <haldgen.h>
#include <haldgen_tables.hpp>

#include <array>
#include <bit>
#include <cassert>
#include <complex>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>
#include <new>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace haldgen {

/// The float types of the library.
template <class T>
concept real = std::same_as<T, float> || std::same_as<T, double>;

/// What multiplies every output of a transform of N points; the flags of haldgen.h.
enum class scale : std::int32_t {
  forward_by_n = haldScaleFwdByN,  ///< 1/N forward
  inverse_by_n = haldScaleInvByN,  ///< 1/N inverse
  by_sqrt_n = haldScaleBySqrtN,    ///< 1/sqrt(N) in both directions
  none = haldScaleNone,            ///< 1
};

/// Formats of a half spectrum, the bins 0 to N/2 of N real samples; haldgen.h has a table of them.
enum class packing { ccs, pack, perm };

/// What can go wrong where a length or a state is known at run time only.
enum class [[nodiscard]] status : std::int32_t{
    ok = haldStatusOk,
    bad_argument = haldStatusBadArgument,
    size_error = haldStatusSizeError,
    null_pointer = haldStatusNullPointer,  ///< also: no memory
    flag_error = haldStatusFlagError,
};

/// A text to print: what the status means.
[[nodiscard]] inline std::string_view to_string(status s) noexcept {
  return haldStatusText(static_cast<std::int32_t>(s));
}

/// N elements from a pointer on, as a block.
template <std::size_t N, class E>
[[nodiscard]] constexpr std::span<E, N> block(E* first) noexcept {
  return std::span<E, N>(first, N);
}

/// Floats in a packed half spectrum of n samples.
[[nodiscard]] constexpr std::size_t packed_size(packing p, std::size_t n) noexcept {
  return p == packing::ccs ? HALDGEN_CCS_SIZE(n) : n;
}

/// Where the real part of bin k stands in a packed half spectrum of n samples.
[[nodiscard]] constexpr std::size_t real_position(packing p, std::size_t n,
                                                  std::size_t k) noexcept {
  if (p == packing::ccs) return 2 * k;
  if (p == packing::perm && n % 2 == 0 && k != 0) return 2 * k == n ? 1 : 2 * k;
  return k == 0 ? 0 : 2 * k - 1;
}

/// Whether bin k has an imaginary part; it follows the real one. That of other bins is zero.
[[nodiscard]] constexpr bool has_imaginary_part(std::size_t n, std::size_t k) noexcept {
  return k != 0 && 2 * k != n;
}

namespace detail {

// A std::complex is its two parts in a row, as Cplx32 and Cplx64 are. The library moves bytes and
// vectors and looks at arrays through neither type.
static_assert(sizeof(std::complex<float>) == sizeof(Cplx32));
static_assert(sizeof(std::complex<double>) == sizeof(Cplx64));
static_assert(alignof(std::complex<float>) >= alignof(Cplx32));
static_assert(alignof(std::complex<double>) >= alignof(Cplx64));

/// What is known of a block by its type.
template <class E, std::size_t N>
struct Shape {
  using Element = E;
  using Value = std::remove_const_t<E>;
  static constexpr std::size_t extent = N;
};

// Spelled out rather than asked of std::span, which takes compilers ten times as long.
template <class B>
struct ShapeOf {};
template <class E, std::size_t N>
struct ShapeOf<E[N]> : Shape<E, N> {};
template <class E, std::size_t N>
struct ShapeOf<std::array<E, N>> : Shape<E, N> {};
template <class E, std::size_t N>
struct ShapeOf<const std::array<E, N>> : Shape<const E, N> {};
template <class E, std::size_t N>
struct ShapeOf<std::span<E, N>> : Shape<E, N> {};
template <class E, std::size_t N>
struct ShapeOf<const std::span<E, N>> : Shape<E, N> {};
template <class B>
requires requires(B& b) { b.data(), b.size(); }
struct ShapeOf<B>
    : Shape<std::remove_reference_t<decltype(*std::declval<B&>().data())>, std::dynamic_extent> {};

template <class B>
concept is_block = requires {
  typename ShapeOf<std::remove_reference_t<B>>::Element;
};

template <class E>
struct FloatOfElement {
  static_assert(real<E>, "haldgen: elements are float, double or std::complex of one of them");
  using Type = float;
};
template <real T>
struct FloatOfElement<T> {
  using Type = T;
};
template <real T>
struct FloatOfElement<std::complex<T>> {
  using Type = T;
};

/// The float type of a block.
template <class B>
using FloatOf = typename FloatOfElement<typename ShapeOf<B>::Value>::Type;

/// The function of n points; null if there is none.
template <class Table>
[[nodiscard]] constexpr typename Table::Function find(std::size_t n) noexcept {
  return Table::has(n) ? Table::functions[Table::size_of(n) - Table::first] : nullptr;
}

/// Whether there is a transform of n points; if not, the compiler says which there are.
template <class Table, std::size_t n>
[[nodiscard]] consteval bool is_length() noexcept {
  Table::template check_length<Table::has(n)>();
  return Table::has(n);
}

/// Bytes of the work area of n points.
template <class Table>
[[nodiscard]] constexpr std::size_t work_bytes(std::size_t n) noexcept {
  return Table::has(n) ? Table::work_bytes[Table::size_of(n) - Table::first] : 0;
}

/// Whether the points are counted in the destination: a half spectrum does not tell them.
template <class Table>
inline constexpr bool counts_destination =
    !std::is_same_v<typename Table::Src, typename Table::Dst> && real<typename Table::Dst>;

/// Whether the elements are those of the transform; if not, the compiler says so.
template <class Table, class Src, class Dst>
[[nodiscard]] consteval bool has_elements() noexcept {
  constexpr bool has = std::is_same_v<typename Src::Value, typename Table::Src> &&
                       std::is_same_v<typename Dst::Element, typename Table::Dst>;
  static_assert(has,
                "haldgen: source or destination has elements of another type than the transform, "
                "or the destination is const");
  return has;
}

/// The points of a transform of blocks of these shapes. Of what is wrong the compiler says one
/// line, and the result is 0.
template <class Table, class Src, class Dst>
[[nodiscard]] consteval std::size_t points() noexcept {
  constexpr bool is_fixed =
      Src::extent != std::dynamic_extent && Dst::extent != std::dynamic_extent;
  static_assert(is_fixed,
                "haldgen: a length is not in its type. Pass block<N>(x.data()), or look the "
                "transform up by kernel<T>");
  if constexpr (has_elements<Table, Src, Dst>() && is_fixed) {
    constexpr std::size_t n = counts_destination<Table> ? Dst::extent : Src::extent;
    if constexpr (is_length<Table, n>()) {
      constexpr bool belong_together =
          Src::extent == Table::src_size(n) && Dst::extent == Table::dst_size(n);
      static_assert(belong_together,
                    "haldgen: the lengths of source and destination do not belong together");
      if constexpr (belong_together) return n;
    }
  }
  return 0;
}

/// Calls with the types of C.
template <class Src, class Dst, bool kNothrow, class... Declared, class... Rest>
void call(std::int32_t (*function)(const Src*, Dst*, Declared...) noexcept(kNothrow),
          const void* src, void* dst, Rest... rest) noexcept {
  function(static_cast<const Src*>(src), static_cast<Dst*>(dst), rest...);
}

[[nodiscard]] constexpr std::int32_t flag(scale s) noexcept { return static_cast<std::int32_t>(s); }

template <class Table, class Src, class Dst, class... Work>
void transform(const Src& src, Dst& dst, scale s, Work... work) noexcept {
  constexpr std::size_t n = points<Table, ShapeOf<Src>, ShapeOf<Dst>>();
  if constexpr (n != 0) {
    constexpr auto function = find<Table>(n);
    call(function, std::data(src), std::data(dst), flag(s), work...);
  }
}

/// That a half spectrum of n samples is one of the block's; the bins of CCS format do not tell.
template <std::size_t n, class Samples>
[[nodiscard]] consteval bool is_spectrum_of() noexcept {
  constexpr std::size_t extent = ShapeOf<std::remove_reference_t<Samples>>::extent;
  static_assert(extent == n || extent == std::dynamic_extent,
                "haldgen: the half spectrum is one of another number of samples");
  return true;
}

template <packing P, class T>
using RealForward = std::conditional_t<
    P == packing::ccs, DFTFwd_RToCCS<T>,
    std::conditional_t<P == packing::pack, DFTFwd_RToPack<T>, DFTFwd_RToPerm<T>>>;
template <packing P, class T>
using RealInverse = std::conditional_t<
    P == packing::ccs, DFTInv_CCSToR<T>,
    std::conditional_t<P == packing::pack, DFTInv_PackToR<T>, DFTInv_PermToR<T>>>;

}  // namespace detail

// Complex DFT.

/// X[k] = s * sum over n of x[n] * exp(-2*pi*i*k*n/N), from block to block of std::complex.
template <detail::is_block Src, detail::is_block Dst>
void dft(const Src& x, Dst&& X, scale s = scale::inverse_by_n) noexcept {
  detail::transform<detail::DFTFwd_CToC<detail::FloatOf<Src>>>(x, X, s);
}
/// In place.
template <detail::is_block Block>
void dft(Block&& x, scale s = scale::inverse_by_n) noexcept {
  haldgen::dft(x, x, s);
}

/// x[n] = s * sum over k of X[k] * exp(+2*pi*i*k*n/N), from block to block of std::complex.
template <detail::is_block Src, detail::is_block Dst>
void inverse_dft(const Src& X, Dst&& x, scale s = scale::inverse_by_n) noexcept {
  detail::transform<detail::DFTInv_CToC<detail::FloatOf<Src>>>(X, x, s);
}
/// In place.
template <detail::is_block Block>
void inverse_dft(Block&& X, scale s = scale::inverse_by_n) noexcept {
  haldgen::inverse_dft(X, X, s);
}

// Real DFT.

/**
 * The bins 0 to N/2 of N real samples in one of the packed formats, with the layout of the C
 * functions and nothing besides: an array of half spectra is an array of their floats. It begins
 * without values unless it is initialised by {}.
 */
template <real T, std::size_t N, packing P = packing::ccs>
class half_spectrum {
  using Table = detail::RealForward<P, T>;

 public:
  /// std::complex<T> in CCS format, T in the others.
  using element_type = typename Table::Dst;
  /// How many of them.
  static constexpr std::size_t element_count =
      detail::is_length<Table, N>() ? Table::dst_size(N) : 1;

  /// The number of bins.
  [[nodiscard]] static constexpr std::size_t size() noexcept { return HALDGEN_BINS(N); }

  /// Bin k = 0..N/2.
  [[nodiscard]] std::complex<T> operator[](std::size_t k) const noexcept {
    assert(k < size());
    const T* part = floats() + real_position(P, N, k);
    return {part[0], has_imaginary_part(N, k) ? part[1] : T(0)};
  }
  /// Sets bin k = 0..N/2; the imaginary part of a bin that has none is dropped.
  void set(std::size_t k, std::complex<T> value) noexcept {
    assert(k < size());
    T* part = floats() + real_position(P, N, k);
    part[0] = value.real();
    if (has_imaginary_part(N, k)) {
      part[1] = value.imag();
    } else if (P == packing::ccs) {
      part[1] = 0;
    }
  }

  /// What the C functions read and write.
  [[nodiscard]] std::span<element_type, element_count> elements() noexcept {
    return std::span<element_type, element_count>(
        std::launder(reinterpret_cast<element_type*>(bytes_)), element_count);
  }
  /// What the C functions read.
  [[nodiscard]] std::span<const element_type, element_count> elements() const noexcept {
    return std::span<const element_type, element_count>(
        std::launder(reinterpret_cast<const element_type*>(bytes_)), element_count);
  }

  /// In CCS format: all bins as an array of complex numbers.
  [[nodiscard]] std::span<std::complex<T>, size()> bins() noexcept requires(P == packing::ccs) {
    return elements();
  }
  /// In CCS format: all bins as an array of complex numbers.
  [[nodiscard]] std::span<const std::complex<T>, size()> bins() const noexcept
      requires(P == packing::ccs) {
    return elements();
  }

 private:
  [[nodiscard]] T* floats() noexcept { return reinterpret_cast<T*>(elements().data()); }
  [[nodiscard]] const T* floats() const noexcept {
    return reinterpret_cast<const T*>(elements().data());
  }

  // Not an array of std::complex, which would be set to zero first.
  alignas(element_type) std::byte bytes_[element_count * sizeof(element_type)];
};

/**
 * R(k) + i*I(k) = s * sum over n of x[n] * exp(-2*pi*i*k*n/N), k = 0..N/2, from a block of N reals
 * to one of N/2 + 1 complex bins (CCS), or of N reals in Pack or Perm format.
 */
template <packing P = packing::ccs, detail::is_block Src, detail::is_block Dst>
void real_dft(const Src& x, Dst&& X, scale s = scale::inverse_by_n) noexcept {
  detail::transform<detail::RealForward<P, detail::FloatOf<Src>>>(x, X, s);
}
/// To a half spectrum in its format.
template <detail::is_block Src, real T, std::size_t N, packing P>
void real_dft(const Src& x, half_spectrum<T, N, P>& X, scale s = scale::inverse_by_n) noexcept {
  static_assert(detail::is_spectrum_of<N, Src>());
  haldgen::real_dft<P>(x, X.elements(), s);
}
/// To a new half spectrum.
template <packing P = packing::ccs, detail::is_block Src>
[[nodiscard]] auto real_dft(const Src& x, scale s = scale::inverse_by_n) noexcept {
  half_spectrum<detail::FloatOf<Src>, detail::ShapeOf<Src>::extent, P> X;
  haldgen::real_dft(x, X, s);
  return X;
}

/// The N samples of a half spectrum: real_dft back.
template <packing P = packing::ccs, detail::is_block Src, detail::is_block Dst>
void inverse_real_dft(const Src& X, Dst&& x, scale s = scale::inverse_by_n) noexcept {
  detail::transform<detail::RealInverse<P, detail::FloatOf<Src>>>(X, x, s);
}
/// From a half spectrum in its format.
template <real T, std::size_t N, packing P, detail::is_block Dst>
void inverse_real_dft(const half_spectrum<T, N, P>& X, Dst&& x,
                      scale s = scale::inverse_by_n) noexcept {
  static_assert(detail::is_spectrum_of<N, Dst>());
  haldgen::inverse_real_dft<P>(X.elements(), x, s);
}

// Hartley transform.

/// H[k] = s * sum over n of x[n] * (cos(2*pi*k*n/N) + sin(2*pi*k*n/N)), from block to block of
/// reals.
template <detail::is_block Src, detail::is_block Dst>
void hartley(const Src& x, Dst&& H, scale s = scale::none) noexcept {
  detail::transform<detail::Hartley<detail::FloatOf<Src>>>(x, H, s);
}
/// In place.
template <detail::is_block Block>
void hartley(Block&& x, scale s = scale::none) noexcept {
  haldgen::hartley(x, x, s);
}

// Walsh-Hadamard transform.

/**
 * The work area of a Walsh-Hadamard transform of N points, or fewer: nothing below 256, 72 KiB at
 * most. It needs no contents and keeps none; each thread needs its own.
 */
template <real T, std::size_t N>
class wht_work {
 public:
  /// Bytes that the transform of N points needs.
  [[nodiscard]] static constexpr std::size_t size() noexcept { return bytes; }
  /// As the C functions take it.
  [[nodiscard]] std::uint8_t* area() noexcept { return bytes_; }

 private:
  static constexpr std::size_t bytes =
      detail::is_length<detail::WHT<T>, N>() ? detail::work_bytes<detail::WHT<T>>(N) : 0;

  alignas(64) std::uint8_t bytes_[bytes == 0 ? 1 : bytes];
};

/// Y[k] = s * sum over n of (-1)^popcount(k & n) * x[n], from block to block of reals.
template <detail::is_block Src, detail::is_block Dst, real T, std::size_t N>
void wht(const Src& x, Dst&& Y, wht_work<T, N>& work, scale s = scale::none) noexcept {
  using Table = detail::WHT<detail::FloatOf<Src>>;
  constexpr std::size_t n =
      detail::points<Table, detail::ShapeOf<Src>, detail::ShapeOf<std::remove_reference_t<Dst>>>();
  static_assert(std::is_same_v<Table, detail::WHT<T>> &&
                    detail::work_bytes<Table>(n) <= wht_work<T, N>::size(),
                "haldgen: the wht_work is one for another float type or for fewer points");
  detail::transform<Table>(x, Y, s, work.area());
}
/// In place.
template <detail::is_block Block, real T, std::size_t N>
void wht(Block&& x, wht_work<T, N>& work, scale s = scale::none) noexcept {
  haldgen::wht(x, x, work, s);
}
/// Up to 128 points, without a work area.
template <detail::is_block Src, detail::is_block Dst>
void wht(const Src& x, Dst&& Y, scale s = scale::none) noexcept {
  using Table = detail::WHT<detail::FloatOf<Src>>;
  constexpr std::size_t n =
      detail::points<Table, detail::ShapeOf<Src>, detail::ShapeOf<std::remove_reference_t<Dst>>>();
  static_assert(detail::work_bytes<Table>(n) == 0,
                "haldgen: from 256 points on pass a wht_work<T, N> as work area");
  detail::transform<Table>(x, Y, s, nullptr);
}
/// In place.
template <detail::is_block Block>
void wht(Block&& x, scale s = scale::none) noexcept {
  haldgen::wht(x, x, s);
}

// Planned DCT-IV.

/**
 * y[k] = sum over n of x[n] * cos(pi/N * (n + 1/2) * (k + 1/2)), for N = 2, 4, .. last_length.
 * There is no scale: twice gives N/2 times the input; FFTW's REDFT11 is twice this transform.
 *
 * An object owns its state, in memory of its own or in a buffer of the caller that must outlive it.
 * A state has scratch memory: one call at a time. Nothing but set-up in memory of its own
 * allocates.
 */
template <real T>
class dct4 {
 public:
  /// The largest N.
  static constexpr std::size_t last_length = (std::size_t{1} << 28) / sizeof(T);

  /// Bytes of a buffer for the state of n points, at any alignment; 0 if there is no such length.
  [[nodiscard]] static std::size_t state_bytes(std::size_t n) noexcept {
    std::int32_t size = 0;
    // The library also answers for numbers that are no lengths of a DCT-IV.
    if (!std::has_single_bit(n) || n > last_length) return 0;
    if (detail::DCT4GetSize<T>(static_cast<std::int32_t>(n), &size) != haldStatusOk) return 0;
    return static_cast<std::size_t>(size);
  }

  /// Without a length, to be set up later.
  dct4() noexcept = default;

#if defined(__cpp_exceptions)
  /// Set up; throws std::length_error or std::bad_alloc.
  explicit dct4(std::size_t n) { require(set_up(n), n); }
  /// Set up in a buffer; throws std::length_error, also if the buffer is smaller than
  /// state_bytes(n).
  dct4(std::size_t n, std::span<std::byte> buffer) { require(set_up(n, buffer), n); }
#endif

  /// Takes the state over; what is left is without a length.
  dct4(dct4&& other) noexcept { swap(other); }
  /// Takes the state over; what is left is without a length.
  dct4& operator=(dct4&& other) noexcept {
    dct4(std::move(other)).swap(*this);
    return *this;
  }
  dct4(const dct4&) = delete;
  dct4& operator=(const dct4&) = delete;
  ~dct4() = default;

  /// Exchanges states.
  void swap(dct4& other) noexcept {
    std::swap(size_, other.size_);
    std::swap(memory_, other.memory_);
    std::swap(state_, other.state_);
  }

  /// The same without exceptions: size_error, or null_pointer if there is no memory. The object
  /// keeps what it had unless ok is returned.
  status set_up(std::size_t n) noexcept {
    const std::size_t bytes = state_bytes(n);
    if (bytes == 0) return status::size_error;
    std::unique_ptr<std::byte[]> memory(new (std::nothrow) std::byte[bytes]);
    if (memory == nullptr) return status::null_pointer;
    const status result = set_up(n, {memory.get(), bytes});
    if (result == status::ok) memory_ = std::move(memory);
    return result;
  }
  /// In a buffer of the caller; size_error also if it is smaller than state_bytes(n).
  status set_up(std::size_t n, std::span<std::byte> buffer) noexcept {
    const std::size_t bytes = state_bytes(n);
    if (bytes == 0 || buffer.size() < bytes) return status::size_error;
    Dct4State* state = nullptr;
    const auto result = static_cast<status>(detail::DCT4Init<T>(
        &state, static_cast<std::int32_t>(n), reinterpret_cast<std::uint8_t*>(buffer.data())));
    if (result != status::ok) return result;
    size_ = n;
    state_ = state;
    memory_.reset();
    return result;
  }

  /// N; 0 before set-up.
  [[nodiscard]] std::size_t size() const noexcept { return size_; }

  /// The transform of size() elements, also in place.
  void operator()(std::span<const T> x, std::span<T> y) noexcept {
    assert(state_ != nullptr && x.size() == size_ && y.size() == size_);
    detail::DCT4<T>(x.data(), y.data(), state_);
  }

 private:
#if defined(__cpp_exceptions)
  static void require(status s, std::size_t n) {
    if (s == status::ok) return;
    if (s == status::null_pointer) throw std::bad_alloc();
    throw std::length_error("haldgen: no DCT-IV of " + std::to_string(n) +
                            " points in this buffer: lengths are the powers of two from 2 to " +
                            std::to_string(last_length) + ", of state_bytes(length) bytes each");
  }
#endif

  std::size_t size_ = 0;
  std::unique_ptr<std::byte[]> memory_;
  Dct4State* state_ = nullptr;
};

// Lengths known at run time.

/// A transform that was looked up; made by kernel<T>. Copies are the same transform.
template <class Table>
class sized_transform {
  static constexpr bool has_work = requires { Table::work_bytes; };

 public:
  using Src = typename Table::Src;  ///< elements that a call reads: floats or std::complex
  using Dst = typename Table::Dst;  ///< elements that it writes

  /// Looks the transform of n points up.
  explicit sized_transform(std::size_t n) noexcept
      // No function of the library throws, but C has no types that say so.
      : function_(reinterpret_cast<Function>(detail::find<Table>(n))), size_(n) {}

  /// Whether there is a transform of this length.
  [[nodiscard]] explicit operator bool() const noexcept { return function_ != nullptr; }

#if defined(__cpp_exceptions)
  /// This transform if there is one; else throws std::out_of_range.
  [[nodiscard]] const sized_transform& value() const {
    if (function_ != nullptr) return *this;
    throw std::out_of_range("haldgen: no transform of " + std::to_string(size_) + " points. " +
                            Table::title + ": " + Table::lengths + " points");
  }
#endif

  /// The points that were asked for.
  [[nodiscard]] std::size_t size() const noexcept { return size_; }
  /// Elements that a call reads.
  [[nodiscard]] std::size_t src_size() const noexcept { return Table::src_size(size_); }
  /// Elements that a call writes.
  [[nodiscard]] std::size_t dst_size() const noexcept { return Table::dst_size(size_); }
  /// Bytes of the work area.
  [[nodiscard]] std::size_t work_bytes() const noexcept requires has_work {
    return detail::work_bytes<Table>(size_);
  }

  /// The transform, also in place.
  void operator()(const Src* src, Dst* dst, scale s) const noexcept requires(!has_work) {
    detail::call(function_, src, dst, detail::flag(s));
  }
  /// With a work area of work_bytes() at a multiple of 16 bytes; without one where that is 0.
  void operator()(const Src* src, Dst* dst, std::span<std::byte> work,
                  scale s) const noexcept requires has_work {
    assert(work.size() >= work_bytes());
    detail::call(function_, src, dst, detail::flag(s),
                 reinterpret_cast<std::uint8_t*>(work.data()));
  }

 private:
  template <class F>
  struct Nothrow;
  template <class R, class... A>
  struct Nothrow<R (*)(A...)> {
    using Type = R (*)(A...) noexcept;
  };
  using Function = typename Nothrow<typename Table::Function>::Type;

  Function function_;
  std::size_t size_;
};

/**
 * Transforms by length, for lengths known at run time only. The look-up is done once; a call is the
 * C call through a pointer.
 *
 *     if (const auto transform = kernel<float>::dft(n)) transform(x, X, scale::none);
 *     kernel<float>::dft(n).value()(x, X, scale::none);  // throws if there is no such length
 */
template <real T>
struct kernel {
  using Dft = sized_transform<detail::DFTFwd_CToC<T>>;         ///< type of dft(n)
  using InverseDft = sized_transform<detail::DFTInv_CToC<T>>;  ///< type of inverse_dft(n)
  template <packing P>
  using RealDft = sized_transform<detail::RealForward<P, T>>;  ///< type of real_dft<P>(n)
  template <packing P>
  using InverseRealDft = sized_transform<detail::RealInverse<P, T>>;  ///< of inverse_real_dft<P>(n)
  using Hartley = sized_transform<detail::Hartley<T>>;                ///< type of hartley(n)
  using Wht = sized_transform<detail::WHT<T>>;                        ///< type of wht(n)

  /// Complex DFT of n points.
  [[nodiscard]] static Dft dft(std::size_t n) noexcept { return Dft(n); }
  /// Inverse complex DFT of n points.
  [[nodiscard]] static InverseDft inverse_dft(std::size_t n) noexcept { return InverseDft(n); }
  /// DFT of n reals to a half spectrum, of complex bins in CCS format.
  template <packing P = packing::ccs>
  [[nodiscard]] static RealDft<P> real_dft(std::size_t n) noexcept {
    return RealDft<P>(n);
  }
  /// The n reals of a half spectrum.
  template <packing P = packing::ccs>
  [[nodiscard]] static InverseRealDft<P> inverse_real_dft(std::size_t n) noexcept {
    return InverseRealDft<P>(n);
  }
  /// Hartley transform of n points.
  [[nodiscard]] static Hartley hartley(std::size_t n) noexcept { return Hartley(n); }
  /// Walsh-Hadamard transform of n points, a power of two.
  [[nodiscard]] static Wht wht(std::size_t n) noexcept { return Wht(n); }
};

}  // namespace haldgen

#endif
