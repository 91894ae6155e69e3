/**
 * @file haldbatch.hpp
 * haldbatch.h for C++20: the functions of haldgen.hpp on many blocks in a call, strided on both
 * sides, and on two-dimensional blocks. A program that calls them links haldgen::haldbatch.
 *
 * The bits are those of as many calls for single blocks. With the length in the type nothing can
 * fail; with a length known at run time the functions return a status: size_error, or bad_argument
 * if source and destination have different counts.
 */
#ifndef HALDBATCH_HPP
#define HALDBATCH_HPP

#include <haldbatch.h>
#include <haldbatch_tables.hpp>
#include <haldgen.hpp>

namespace haldgen {

/**
 * Many blocks of N elements each: element n of block t is data[n * step + t * dist]. N counts what
 * a function of haldgen.hpp has in its block: of a half spectrum in CCS format the N/2 + 1 bins.
 * Step and dist may have any value, negative ones included, and those of a source may be zero. A
 * destination may be the source if neighbours lie as many bytes apart in both.
 */
template <class E, std::size_t N = std::dynamic_extent>
struct blocks {
  E* data;              ///< element 0 of block 0
  std::ptrdiff_t step;  ///< from an element of a block to its next, in elements
  std::ptrdiff_t dist;  ///< from an element of a block to that of the next block
  std::size_t count;    ///< how many blocks
  /// N; nothing is stored if it is in the type.
  [[no_unique_address]] std::conditional_t<N == std::dynamic_extent, std::size_t,
                                           std::integral_constant<std::size_t, N>>
      length{};
};

namespace detail {

template <class Array>
using In = typename ShapeOf<std::remove_reference_t<Array>>::Element;

/// Rows: step 1; columns: distance 1.
template <std::size_t N, class Array>
blocks<In<Array>, N> all_blocks(Array& x, std::size_t n, bool by_rows) noexcept {
  const std::size_t count = n == 0 ? 0 : std::size(x) / n;
  const auto far = static_cast<std::ptrdiff_t>(by_rows ? n : count);
  blocks<In<Array>, N> all{std::data(x), by_rows ? 1 : far, by_rows ? far : 1, count};
  if constexpr (N == std::dynamic_extent) all.length = n;
  return all;
}

}  // namespace detail

/// As many blocks as there are one behind the other in an array, a span, a vector.
template <std::size_t N, detail::is_block Array>
[[nodiscard]] blocks<detail::In<Array>, N> rows(Array&& x) noexcept {
  return detail::all_blocks<N>(x, N, true);
}
/// The same for a length known at run time.
template <detail::is_block Array>
[[nodiscard]] blocks<detail::In<Array>> rows(Array&& x, std::size_t n) noexcept {
  return detail::all_blocks<std::dynamic_extent>(x, n, true);
}
/// As many blocks as there are side by side: the columns of a matrix of N rows.
template <std::size_t N, detail::is_block Array>
[[nodiscard]] blocks<detail::In<Array>, N> columns(Array&& x) noexcept {
  return detail::all_blocks<N>(x, N, false);
}
/// The same for a length known at run time.
template <detail::is_block Array>
[[nodiscard]] blocks<detail::In<Array>> columns(Array&& x, std::size_t n) noexcept {
  return detail::all_blocks<std::dynamic_extent>(x, n, false);
}

/// A block of two dimensions: R rows of C neighbours each, whose first elements are pitch apart.
template <class E, std::size_t R, std::size_t C>
struct matrix_block {
  E* data;                                                ///< the first element
  std::ptrdiff_t pitch = static_cast<std::ptrdiff_t>(C);  ///< from row to row, in elements

  /// R blocks of C elements.
  [[nodiscard]] blocks<E, C> rows() const noexcept { return {data, 1, pitch, R}; }
  /// C blocks of R elements.
  [[nodiscard]] blocks<E, R> columns() const noexcept { return {data, pitch, 1, C}; }
};

/// The block of two dimensions that an array of R * C elements is.
template <std::size_t R, std::size_t C, detail::is_block Array>
[[nodiscard]] matrix_block<detail::In<Array>, R, C> matrix(Array&& x) noexcept {
  assert(std::size(x) == R * C);
  return {std::data(x)};
}

namespace detail {

template <class E>
using PartOf = typename FloatOfElement<std::remove_cv_t<E>>::Type;

template <class Src, class Dst>
std::int32_t call(std::int32_t (*function)(const Src*, std::ptrdiff_t, std::ptrdiff_t, Dst*,
                                           std::ptrdiff_t, std::ptrdiff_t, std::int32_t,
                                           std::ptrdiff_t, std::int32_t),
                  const auto& src, const auto& dst, std::size_t size, scale s) noexcept {
  const void* const from = src.data;
  void* const to = dst.data;
  return function(static_cast<const Src*>(from), src.step, src.dist, static_cast<Dst*>(to),
                  dst.step, dst.dist, static_cast<std::int32_t>(size),
                  static_cast<std::ptrdiff_t>(src.count), flag(s));
}

/// Nothing, or a status if a length is not in its type.
template <class Table, class Src, std::size_t N, class Dst, std::size_t M>
auto transform_all(const blocks<Src, N>& src, const blocks<Dst, M>& dst, scale s) noexcept {
  if constexpr (N == std::dynamic_extent || M == std::dynamic_extent) {
    if constexpr (!has_elements<Table, Shape<Src, std::dynamic_extent>,
                                Shape<Dst, std::dynamic_extent>>())
      return status::ok;
    const std::size_t n = counts_destination<Table> ? dst.length : src.length;
    if (!Table::has(n) || src.length != Table::src_size(n) || dst.length != Table::dst_size(n)) {
      return status::size_error;
    }
    if (src.count != dst.count) return status::bad_argument;
    return static_cast<status>(call(batch_function<Table>, src, dst, Table::size_of(n), s));
  } else {
    constexpr std::size_t n = points<Table, Shape<Src, N>, Shape<Dst, M>>();
    assert(src.count == dst.count);
    if constexpr (n != 0) call(batch_function<Table>, src, dst, Table::size_of(n), s);
  }
}

}  // namespace detail

// Batches.

/// dft of each block.
template <class Src, std::size_t N, class Dst, std::size_t M>
auto dft(blocks<Src, N> x, blocks<Dst, M> X, scale s = scale::inverse_by_n) noexcept {
  return detail::transform_all<detail::DFTFwd_CToC<detail::PartOf<Src>>>(x, X, s);
}
/// In place.
template <class E, std::size_t N>
auto dft(blocks<E, N> x, scale s = scale::inverse_by_n) noexcept {
  return haldgen::dft(x, x, s);
}

/// inverse_dft of each block.
template <class Src, std::size_t N, class Dst, std::size_t M>
auto inverse_dft(blocks<Src, N> X, blocks<Dst, M> x, scale s = scale::inverse_by_n) noexcept {
  return detail::transform_all<detail::DFTInv_CToC<detail::PartOf<Src>>>(X, x, s);
}
/// In place.
template <class E, std::size_t N>
auto inverse_dft(blocks<E, N> X, scale s = scale::inverse_by_n) noexcept {
  return haldgen::inverse_dft(X, X, s);
}

/// real_dft of each block: to N/2 + 1 bins each, or to N reals in Pack or Perm format.
template <packing P = packing::ccs, class Src, std::size_t N, class Dst, std::size_t M>
auto real_dft(blocks<Src, N> x, blocks<Dst, M> X, scale s = scale::inverse_by_n) noexcept {
  return detail::transform_all<detail::RealForward<P, detail::PartOf<Src>>>(x, X, s);
}
/// inverse_real_dft of each block.
template <packing P = packing::ccs, class Src, std::size_t N, class Dst, std::size_t M>
auto inverse_real_dft(blocks<Src, N> X, blocks<Dst, M> x, scale s = scale::inverse_by_n) noexcept {
  return detail::transform_all<detail::RealInverse<P, detail::PartOf<Src>>>(X, x, s);
}

/// hartley of each block.
template <class Src, std::size_t N, class Dst, std::size_t M>
auto hartley(blocks<Src, N> x, blocks<Dst, M> H, scale s = scale::none) noexcept {
  return detail::transform_all<detail::Hartley<detail::PartOf<Src>>>(x, H, s);
}
/// In place.
template <class E, std::size_t N>
auto hartley(blocks<E, N> x, scale s = scale::none) noexcept {
  return haldgen::hartley(x, x, s);
}

/// wht of each block. There is no work area: from 256 points on values rest in Y.
template <class Src, std::size_t N, class Dst, std::size_t M>
auto wht(blocks<Src, N> x, blocks<Dst, M> Y, scale s = scale::none) noexcept {
  return detail::transform_all<detail::WHT<detail::PartOf<Src>>>(x, Y, s);
}
/// In place.
template <class E, std::size_t N>
auto wht(blocks<E, N> x, scale s = scale::none) noexcept {
  return haldgen::wht(x, x, s);
}

// Two dimensions: all rows, then all columns, each with the scale of its length.

/// dft in two dimensions.
template <class Src, class Dst, std::size_t R, std::size_t C>
void dft(matrix_block<Src, R, C> x, matrix_block<Dst, R, C> X,
         scale s = scale::inverse_by_n) noexcept {
  haldgen::dft(x.rows(), X.rows(), s);
  haldgen::dft(X.columns(), s);
}
/// In place.
template <class E, std::size_t R, std::size_t C>
void dft(matrix_block<E, R, C> x, scale s = scale::inverse_by_n) noexcept {
  haldgen::dft(x, x, s);
}

/// inverse_dft in two dimensions.
template <class Src, class Dst, std::size_t R, std::size_t C>
void inverse_dft(matrix_block<Src, R, C> X, matrix_block<Dst, R, C> x,
                 scale s = scale::inverse_by_n) noexcept {
  haldgen::inverse_dft(X.rows(), x.rows(), s);
  haldgen::inverse_dft(x.columns(), s);
}
/// In place.
template <class E, std::size_t R, std::size_t C>
void inverse_dft(matrix_block<E, R, C> X, scale s = scale::inverse_by_n) noexcept {
  haldgen::inverse_dft(X, X, s);
}

/// real_dft of the rows, each to C/2 + 1 bins; then dft of the columns of bins.
template <class Src, class Dst, std::size_t R, std::size_t C, std::size_t Bins>
void real_dft(matrix_block<Src, R, C> x, matrix_block<Dst, R, Bins> X,
              scale s = scale::inverse_by_n) noexcept {
  haldgen::real_dft(x.rows(), X.rows(), s);
  haldgen::dft(X.columns(), s);
}
/// real_dft in two dimensions back. X is kept: the columns go to an area on the stack, 33 KiB at
/// most.
template <class Src, class Dst, std::size_t R, std::size_t C, std::size_t Bins>
void inverse_real_dft(matrix_block<Src, R, Bins> X, matrix_block<Dst, R, C> x,
                      scale s = scale::inverse_by_n) noexcept {
  using Complex = std::complex<Dst>;
  alignas(64) std::byte area[R * Bins * sizeof(Complex)];
  const matrix_block<Complex, R, Bins> half{reinterpret_cast<Complex*>(area)};
  haldgen::inverse_dft(X.columns(), half.columns(), s);
  haldgen::inverse_real_dft(half.rows(), x.rows(), s);
}

/// hartley of the rows and of the columns: a product of two kernels, not one of a sum.
template <class Src, class Dst, std::size_t R, std::size_t C>
void hartley(matrix_block<Src, R, C> x, matrix_block<Dst, R, C> H, scale s = scale::none) noexcept {
  haldgen::hartley(x.rows(), H.rows(), s);
  haldgen::hartley(H.columns(), s);
}
/// In place.
template <class E, std::size_t R, std::size_t C>
void hartley(matrix_block<E, R, C> x, scale s = scale::none) noexcept {
  haldgen::hartley(x, x, s);
}

/// wht in two dimensions: up to rounding, that of R * C points.
template <class Src, class Dst, std::size_t R, std::size_t C>
void wht(matrix_block<Src, R, C> x, matrix_block<Dst, R, C> Y, scale s = scale::none) noexcept {
  haldgen::wht(x.rows(), Y.rows(), s);
  haldgen::wht(Y.columns(), s);
}
/// In place.
template <class E, std::size_t R, std::size_t C>
void wht(matrix_block<E, R, C> x, scale s = scale::none) noexcept {
  haldgen::wht(x, x, s);
}

}  // namespace haldgen

#endif
