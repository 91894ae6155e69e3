#include "kernelgen/wide.h"

#include <cmath>
#include <initializer_list>

namespace haldgen::kernelgen {
namespace {

Wide quick_two_sum(double a, double b) {
  const double sum = a + b;
  return {sum, b - (sum - a)};
}

Wide two_sum(double a, double b) {
  const double sum = a + b;
  const double part = sum - a;
  return {sum, (a - (sum - part)) + (b - part)};
}

Wide two_product(double a, double b) {
  const double product = a * b;
  return {product, std::fma(a, b, -product)};
}

// 2 pi = 6.28318530717958647692528676655900576839433879875021...
constexpr Wide kTwoPi{6.283185307179586, 2.4492935982947064e-16};

struct CosSin {
  Wide cosine;
  Wide sine;
};

// Reduced in integers to the first eighth of the circle, so that symmetric angles give equal
// digits.
CosSin turn(std::int64_t k, std::int64_t n) {
  k %= n;
  if (k < 0) k += n;
  if (2 * k > n) {
    const CosSin mirrored = turn(n - k, n);
    return {mirrored.cosine, -mirrored.sine};
  }
  if (4 * k > n) {
    const CosSin mirrored = turn(n - 2 * k, 2 * n);
    return {-mirrored.cosine, mirrored.sine};
  }
  if (8 * k > n) {
    const CosSin mirrored = turn(n - 4 * k, 4 * n);
    return {mirrored.sine, mirrored.cosine};
  }
  if (8 * k == n) {
    const Wide half_root = sqrt(Wide(0.5));
    return {half_root, half_root};
  }
  if (k == 0) return {1.0, 0.0};
  const Wide angle = kTwoPi * Wide(static_cast<double>(k)) / Wide(static_cast<double>(n));
  return {cos(angle), sin(angle)};
}

}  // namespace

Wide operator+(Wide a, Wide b) {
  Wide high = two_sum(a.hi, b.hi);
  const Wide low = two_sum(a.lo, b.lo);
  high = quick_two_sum(high.hi, high.lo + low.hi);
  return quick_two_sum(high.hi, high.lo + low.lo);
}

Wide operator-(Wide a) { return {-a.hi, -a.lo}; }
Wide operator-(Wide a, Wide b) { return a + (-b); }

Wide operator*(Wide a, Wide b) {
  const Wide product = two_product(a.hi, b.hi);
  return quick_two_sum(product.hi, product.lo + (a.hi * b.lo + a.lo * b.hi));
}

Wide operator/(Wide a, Wide b) {
  const double first = a.hi / b.hi;
  Wide rest = a - b * Wide(first);
  const double second = rest.hi / b.hi;
  rest = rest - b * Wide(second);
  const double third = rest.hi / b.hi;
  return quick_two_sum(first, second) + Wide(third);
}

Wide& operator+=(Wide& a, Wide b) { return a = a + b; }
bool operator<(Wide a, Wide b) { return a.hi < b.hi || (a.hi == b.hi && a.lo < b.lo); }
bool operator==(Wide a, Wide b) { return a.hi == b.hi && a.lo == b.lo; }
Wide abs(Wide a) { return a.hi < 0 ? -a : a; }

Wide sqrt(Wide a) {
  if (!(a.hi > 0)) return 0.0;
  const Wide first = std::sqrt(a.hi);
  const Wide second = first + (a - first * first) / (first + first);  // Newton doubles the digits
  return second + (a - second * second) / (second + second);
}

// Taylor series: the terms fall below 2^-107 well before the 28th power.
Wide sin(Wide angle) {
  const Wide square = angle * angle;
  Wide term = angle;
  Wide sum = angle;
  for (int power = 3; power < 30; power += 2) {
    term = -(term * square) / Wide(static_cast<double>(power * (power - 1)));
    sum += term;
  }
  return sum;
}

Wide cos(Wide angle) {
  const Wide square = angle * angle;
  Wide term = 1.0;
  Wide sum = 1.0;
  for (int power = 2; power < 30; power += 2) {
    term = -(term * square) / Wide(static_cast<double>(power * (power - 1)));
    sum += term;
  }
  return sum;
}

double to_double(Wide a) { return a.hi + a.lo; }

float to_float(Wide a) {
  // Rounding by way of double could round twice, so the neighbours are compared in full width.
  const auto near = static_cast<float>(a.hi);
  float best = near;
  Wide error = abs(a - Wide(near));
  for (const float limit : {-HUGE_VALF, HUGE_VALF}) {
    const float other = std::nextafterf(near, limit);
    const Wide other_error = abs(a - Wide(other));
    if (other_error < error) {
      best = other;
      error = other_error;
    }
  }
  return best;
}

WideComplex operator+(WideComplex a, WideComplex b) { return {a.re + b.re, a.im + b.im}; }
WideComplex operator-(WideComplex a, WideComplex b) { return {a.re - b.re, a.im - b.im}; }
WideComplex operator*(WideComplex a, WideComplex b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
WideComplex operator*(Wide a, WideComplex b) { return {a * b.re, a * b.im}; }
WideComplex conj(WideComplex a) { return {a.re, -a.im}; }

WideComplex turned(WideComplex a, Turn turn) {
  switch (turn) {
    case Turn::quarter:
      return {-a.im, a.re};
    case Turn::half:
      return {-a.re, -a.im};
    case Turn::three_quarters:
      return {a.im, -a.re};
    case Turn::none:
      break;
  }
  return a;
}

WideComplex root(std::int64_t n, std::int64_t k) { return {cos_turn(k, n), -sin_turn(k, n)}; }
Wide cos_turn(std::int64_t k, std::int64_t n) { return turn(k, n).cosine; }
Wide sin_turn(std::int64_t k, std::int64_t n) { return turn(k, n).sine; }

}  // namespace haldgen::kernelgen
