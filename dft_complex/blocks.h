// The blocks of the complex DFT that are written out. Each takes its inputs in order and gives its
// outputs in order; additions happen in the order written. Every operation makes nodes, so each
// stands in a statement of its own: their numbering must not hang on a compiler's evaluation order.
#pragma once

#include <vector>

#include "kernelgen/element.h"

namespace haldgen::dft_complex {

using kernelgen::EighthRoot;
using kernelgen::Wide;

template <class E>
using Elements = std::vector<E>;

/// The sign of the exponent: the inverse block is the forward one with i and -i exchanged.
struct Direction {
  int exponent = -1;

  /// exp(-+ pi i / 2).
  kernelgen::Turn quarter() const {
    return exponent < 0 ? kernelgen::Turn::three_quarters : kernelgen::Turn::quarter;
  }
};

template <class E>
Elements<E> dft2(const Elements<E>& x) {
  const E sum = x[0] + x[1];
  const E difference = x[0] - x[1];
  return {sum, difference};
}

template <class E>
Elements<E> dft3(const Elements<E>& x, Direction direction) {
  const E p = x[1] + x[2];
  const E d = x[1] - x[2];
  const E half = Wide(0.5) * p;
  const E m = x[0] - half;
  const E e = turned(kernelgen::sin_turn(1, 3) * d, direction.quarter());
  const E y0 = x[0] + p;
  const E y1 = m + e;
  const E y2 = m - e;
  return {y0, y1, y2};
}

template <class E>
Elements<E> dft4(const Elements<E>& x, Direction direction) {
  const E a = x[0] + x[2];
  const E b = x[0] - x[2];
  const E c = x[1] + x[3];
  const E d = turned(x[1] - x[3], direction.quarter());
  const E y0 = a + c;
  const E y1 = b + d;
  const E y2 = a - c;
  const E y3 = b - d;
  return {y0, y1, y2, y3};
}

/// Sums and differences that both five-point blocks start from, and their common sine half.
template <class E>
struct FivePoint {
  E p, q, d, f;

  explicit FivePoint(const Elements<E>& x)
      : p(x[1] + x[4]), q(x[3] + x[2]), d(x[1] - x[4]), f(x[3] - x[2]) {}

  /// x[0] to the cosine halves a, b gives the outputs.
  Elements<E> finish(const E& y0, const E& a, const E& b, Direction direction) const {
    const Wide s1 = kernelgen::sin_turn(1, 5);
    const Wide s2 = kernelgen::sin_turn(2, 5);
    const E s1_d = s1 * d;
    const E s2_f = s2 * f;
    const E u = written_turned(s1_d - s2_f, direction.quarter());
    const E s2_d = s2 * d;
    const E s1_f = s1 * f;
    const E v = turned(s2_d + s1_f, direction.quarter());
    const E y1 = a + u;
    const E y2 = b + v;
    const E y3 = b - v;
    const E y4 = a - u;
    return {y0, y1, y2, y3, y4};
  }
};

template <class E>
Elements<E> dft5(const Elements<E>& x, Direction direction) {
  const Wide c1 = kernelgen::cos_turn(1, 5);
  const Wide c2 = -kernelgen::cos_turn(2, 5);
  const FivePoint<E> half(x);
  const E c1_p = c1 * half.p;
  const E c1_p_x = x[0] + c1_p;
  const E c2_q = c2 * half.q;
  const E a = c1_p_x - c2_q;
  const E c2_p = c2 * half.p;
  const E c2_p_x = x[0] - c2_p;
  const E c1_q = c1 * half.q;
  const E b = c2_p_x + c1_q;
  const E sum = x[0] + half.p;
  const E y0 = sum + half.q;
  return half.finish(y0, a, b, direction);
}

template <class E>
Elements<E> dft5_folded(const Elements<E>& x, Direction direction) {
  const FivePoint<E> half(x);
  const E t = half.p + half.q;
  const E quarter = Wide(0.25) * t;
  const E m = x[0] - quarter;
  const E difference = half.p - half.q;
  const E e = (sqrt(Wide(5.0)) / Wide(4.0)) * difference;
  const E a = m + e;
  const E b = m - e;
  const E y0 = x[0] + t;
  return half.finish(y0, a, b, direction);
}

template <class E>
Elements<E> dft_direct(const Elements<E>& x, Direction direction) {
  const int p = static_cast<int>(x.size());
  const int half = (p - 1) / 2;
  const auto at = [](int k) { return static_cast<std::size_t>(k); };
  Elements<E> sums, differences;
  for (int k = 1; k <= half; ++k) sums.push_back(x[at(k)] + x[at(p - k)]);
  for (int k = 1; k <= half; ++k) differences.push_back(x[at(k)] - x[at(p - k)]);
  Elements<E> y(x);
  for (const E& a : sums) y[0] = y[0] + a;
  for (int j = 1; j <= half; ++j) {
    E cosines = x[0];
    E sines = zero_like(x[0]);
    for (int k = 1; k <= half; ++k) {
      const E c = kernelgen::cos_turn(std::int64_t{j} * k, p) * sums[at(k - 1)];
      cosines = cosines + c;
      const E s = kernelgen::sin_turn(std::int64_t{j} * k, p) * differences[at(k - 1)];
      sines = k == 1 ? s : sines + s;
    }
    const E e = turned(sines, direction.quarter());
    y[at(j)] = cosines + e;
    y[at(p - j)] = cosines - e;
  }
  return y;
}

template <class E>
Elements<E> dft8(const Elements<E>& x, Direction direction) {
  Elements<E> sums, differences;
  for (std::size_t n = 0; n < 4; ++n) sums.push_back(x[n] + x[n + 4]);
  for (std::size_t n = 0; n < 4; ++n) {
    const E d = x[n] - x[n + 4];
    differences.push_back(
        twiddle(d, 8, -direction.exponent * static_cast<int>(n), EighthRoot::sum_first));
  }
  const Elements<E> even = dft4(sums, direction);
  const Elements<E> odd = dft4(differences, direction);
  return {even[0], odd[0], even[1], odd[1], even[2], odd[2], even[3], odd[3]};
}

/// 16 as 2 then 8. The odd outputs need W^n d[n] and W^3n d[n] of the differences d; for odd n both
/// are made of the same products of d[n] by cos(pi/8) and sin(pi/8), so that past the products the
/// odd half runs on additions only. d[2] and d[6] go through an eighth root each; `eighths_joined`
/// takes their sum and difference first and multiplies those, at the same counts. Where the upper
/// half of x is zero, that sum and difference are the even half's too.
template <class E>
Elements<E> dft16_shared(const Elements<E>& x, Direction direction, bool eighths_joined) {
  const Wide c = kernelgen::cos_turn(1, 16);
  const Wide s = kernelgen::sin_turn(1, 16);
  Elements<E> z, d;
  for (std::size_t n = 0; n < 8; ++n) z.push_back(x[n] + x[n + 8]);
  for (std::size_t n = 0; n < 8; ++n) d.push_back(x[n] - x[n + 8]);
  const Elements<E> even = dft8(z, direction);

  // A[n] = W^n (d[n] - i d[n+4]) leads to the outputs 1 mod 4, B[n] = W^3n (d[n] + i d[n+4]) to
  // those 3 mod 4.
  const E a0 = d[0] + turned(d[4], direction.quarter());
  const E b0 = d[0] - turned(d[4], direction.quarter());

  E a2 = d[2];
  E b2 = d[6];
  if (eighths_joined) {
    const Wide r = sqrt(Wide(0.5));
    const E difference = d[2] - d[6];
    const E alpha = r * difference;
    const E sum = d[2] + d[6];
    const E beta = turned(r * sum, direction.quarter());
    a2 = alpha + beta;
    b2 = beta - alpha;
  } else {
    const E e2 = twiddle(d[2], 8, -direction.exponent, EighthRoot::sum_first);
    const E e6 = twiddle(d[6], 8, -3 * direction.exponent, EighthRoot::sum_first);
    a2 = e2 + e6;
    b2 = turned(e2 - e6, direction.quarter());
  }

  const E c_d1 = c * d[1];
  const E s_d5 = s * d[5];
  const E t1 = c_d1 - s_d5;
  const E s_d1 = s * d[1];
  const E c_d5 = c * d[5];
  const E u1 = s_d1 + c_d5;
  const E a1 = t1 + turned(u1, direction.quarter());
  const E b1 = u1 + turned(t1, direction.quarter());

  const E s_d3 = s * d[3];
  const E c_d7 = c * d[7];
  const E u3 = s_d3 - c_d7;
  const E c_d3 = c * d[3];
  const E s_d7 = s * d[7];
  const E t3 = c_d3 + s_d7;
  const E a3 = u3 + turned(t3, direction.quarter());
  const E b3 = -(t3 + turned(u3, direction.quarter()));

  const Elements<E> one = dft4(Elements<E>{a0, a1, a2, a3}, direction);
  const Elements<E> three = dft4(Elements<E>{b0, b1, b2, b3}, direction);
  Elements<E> y;
  for (std::size_t k = 0; k < 4; ++k) {
    y.push_back(even[2 * k]);
    y.push_back(one[k]);
    y.push_back(even[2 * k + 1]);
    y.push_back(three[k]);
  }
  return y;
}

}  // namespace haldgen::dft_complex
