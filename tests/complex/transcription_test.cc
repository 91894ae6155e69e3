// The algorithms of the smallest and the power-of-two kernels, written down once more from their
// formulas, component by component: the compiled kernels must give the same bits, and up to
// length 6 the same signs of exact zeros. From length 8 on the signs in which sums are held are not
// part of the algorithm, and inputs are such that no exact zero occurs.
#include <gtest/gtest.h>

#include <cmath>

#include "haldgen.h"
#include "tests/complex/live_kernels.h"

namespace haldgen::dft_complex {
namespace {

template <class Float>
struct Point {
  Float re;
  Float im;
};
template <class Float>
using Points = std::vector<Point<Float>>;

template <class Float>
Point<Float> operator+(Point<Float> a, Point<Float> b) {
  return {a.re + b.re, a.im + b.im};
}
template <class Float>
Point<Float> operator-(Point<Float> a, Point<Float> b) {
  return {a.re - b.re, a.im - b.im};
}
template <class Float>
Point<Float> operator*(Float s, Point<Float> a) {
  return {s * a.re, s * a.im};
}
template <class Float>
Point<Float> by_minus_i(Point<Float> a) {
  return {a.im, -a.re};
}
template <class Float>
Point<Float> by_plus_i(Point<Float> a) {
  return {-a.im, a.re};
}

template <class Float>
Points<Float> dft2(const Points<Float>& x) {
  return {x[0] + x[1], x[0] - x[1]};
}

/// Products in 64 bits whatever the element type, each result narrowed once; as a block of a longer
/// kernel in the element type alone.
template <class Float, class Product = double>
Points<Float> dft3(const Points<Float>& x) {
  const auto c = static_cast<Product>(0.5);
  const auto s = static_cast<Product>(0.8660254037844386);
  const Point<Float> p = x[1] + x[2];
  const Point<Float> d = x[1] - x[2];
  const Point<Float> m{static_cast<Float>(Product{x[0].re} - c * Product{p.re}),
                       static_cast<Float>(Product{x[0].im} - c * Product{p.im})};
  const auto e_r = static_cast<Float>(s * Product{d.im});
  const auto e_i = static_cast<Float>(s * Product{d.re});
  return {x[0] + p, {m.re + e_r, m.im - e_i}, {m.re - e_r, m.im + e_i}};
}

template <class Float>
Points<Float> dft4(const Points<Float>& x) {
  const Point<Float> a = x[0] + x[2];
  const Point<Float> b = x[0] - x[2];
  const Point<Float> c = x[1] + x[3];
  const Point<Float> d = x[1] - x[3];
  return {a + c, {b.re + d.im, b.im - d.re}, a - c, {b.re - d.im, b.im + d.re}};
}

template <class Float>
Points<Float> dft5(const Points<Float>& x) {
  const double c1 = 0.30901699437494745;
  const double c2 = 0.8090169943749475;
  const double s1 = 0.9510565162951535;
  const double s2 = 0.5877852522924731;
  const Point<Float> p = x[1] + x[4];
  const Point<Float> q = x[3] + x[2];
  const Point<Float> d = x[1] - x[4];
  const Point<Float> f = x[3] - x[2];
  const auto narrowed = [](double v) { return static_cast<Float>(v); };
  const auto a_of = [&](double x0, double pp, double qq) {
    return narrowed((x0 + c1 * pp) - c2 * qq);
  };
  const auto b_of = [&](double x0, double pp, double qq) {
    return narrowed((x0 - c2 * pp) + c1 * qq);
  };
  const Point<Float> a{a_of(x[0].re, p.re, q.re), a_of(x[0].im, p.im, q.im)};
  const Point<Float> b{b_of(x[0].re, p.re, q.re), b_of(x[0].im, p.im, q.im)};
  const Float u = narrowed(s1 * double{d.im} - s2 * double{f.im});
  const Float v = narrowed(s2 * double{d.im} + s1 * double{f.im});
  const Float w = narrowed(s2 * double{f.re} - s1 * double{d.re});
  const Float z = narrowed(s2 * double{d.re} + s1 * double{f.re});
  return {(x[0] + p) + q,
          {a.re + u, a.im + w},
          {b.re + v, b.im - z},
          {b.re - v, b.im + z},
          {a.re - u, a.im - w}};
}

/// Two points n, n + 3 apart first, then three points 2 apart on each of their bins.
template <class Float>
Points<Float> dft6(const Points<Float>& x) {
  Points<Float> sums, differences;
  for (const std::size_t n : {0U, 2U, 4U}) {
    const auto pair = dft2<Float>({x[n], x[(n + 3) % 6]});
    sums.push_back(pair[0]);
    differences.push_back(pair[1]);
  }
  const auto even = dft3<Float, Float>(sums);
  const auto odd = dft3<Float, Float>(differences);
  return {even[0], odd[1], even[2], odd[0], even[1], odd[2]};
}

/// exp(-2 pi i k / n), from the first eighth of the circle.
template <class Float>
Point<Float> root(int n, int k) {
  k %= n;
  if (8 * k <= n) {
    const long double angle = 2 * std::acos(-1.0L) * k / n;
    return {static_cast<Float>(std::cos(angle)), static_cast<Float>(-std::sin(angle))};
  }
  if (4 * k <= n) {  // exp(-i (pi/2 - t)) = -i exp(i t)
    const Point<Float> t = root<Float>(4 * n, n - 4 * k);
    return {-t.im, -t.re};
  }
  return by_minus_i(root<Float>(4 * n, 4 * k - n));
}

/// Four multiplications.
template <class Float>
Point<Float> full_product(Point<Float> w, Point<Float> a) {
  return {w.re * a.re - w.im * a.im, w.re * a.im + w.im * a.re};
}

/// exp(-pi i / 4) a and exp(-3 pi i / 4) a: sum and difference of the components, two products.
template <class Float>
Point<Float> eighth(Point<Float> a) {
  const Float r = root<Float>(8, 1).re;
  return {r * (a.im + a.re), r * (a.im - a.re)};
}
template <class Float>
Point<Float> three_eighths(Point<Float> a) {
  return by_minus_i(eighth(a));
}

enum class Eighths { full, two_products };

template <class Float>
Point<Float> twiddled(Point<Float> a, int n, int k, Eighths form) {
  k %= n;
  for (int turns = 0; 4 * k >= n; ++turns) {
    k -= n / 4;
    a = by_minus_i(a);
  }
  if (k == 0) return a;
  if (form == Eighths::two_products && 8 * k == n) return eighth(a);
  return full_product(root<Float>(n, k), a);
}

template <class Float>
Points<Float> dft8(const Points<Float>& x) {
  Points<Float> sums, y;
  for (std::size_t n = 0; n < 4; ++n) sums.push_back(x[n] + x[n + 4]);
  for (std::size_t n = 0; n < 4; ++n) y.push_back(x[n] - x[n + 4]);
  y[1] = eighth(y[1]);
  y[2] = by_minus_i(y[2]);
  y[3] = three_eighths(y[3]);
  const auto even = dft4(sums);
  const auto odd = dft4(y);
  return {even[0], odd[0], even[1], odd[1], even[2], odd[2], even[3], odd[3]};
}

/// Odd outputs: X[4k+1] is the transform of A[n] = W^n (d[n] - i d[n+4]), X[4k+3] that of
/// B[n] = W^3n (d[n] + i d[n+4]); W^2 d[2] and W^6 d[6] are eighth roots, the elements of odd
/// number enter through their products by c and s.
Points<double> dft16(const Points<double>& x) {
  const double c = 0.9238795325112867;
  const double s = 0.3826834323650898;
  Points<double> z, d;
  for (std::size_t n = 0; n < 8; ++n) z.push_back(x[n] + x[n + 8]);
  for (std::size_t n = 0; n < 8; ++n) d.push_back(x[n] - x[n + 8]);
  const auto even = dft8(z);

  Points<double> a(4), b(4);
  a[0] = d[0] + by_minus_i(d[4]);
  b[0] = d[0] + by_plus_i(d[4]);

  const auto e2 = eighth(d[2]);
  const auto e6 = three_eighths(d[6]);
  a[2] = e2 + e6;
  b[2] = by_minus_i(e2) + by_plus_i(e6);

  // W (d1 - i d5) with W = c - i s, W^3 (d1 + i d5) with W^3 = s - i c.
  const auto t1 = c * d[1] - s * d[5];
  const auto u1 = s * d[1] + c * d[5];
  a[1] = t1 + by_minus_i(u1);
  b[1] = u1 + by_minus_i(t1);

  // W^3 (d3 - i d7), W^9 (d3 + i d7) with W^9 = -c + i s.
  const auto t3 = c * d[3] + s * d[7];
  const auto u3 = s * d[3] - c * d[7];
  a[3] = u3 + by_minus_i(t3);
  b[3] = by_plus_i(u3) - t3;

  const auto one = dft4(a);
  const auto three = dft4(b);
  Points<double> y;
  for (std::size_t k = 0; k < 4; ++k) {
    for (const auto& v : {even[2 * k], one[k], even[2 * k + 1], three[k]}) y.push_back(v);
  }
  return y;
}

/// First `Second` transforms over the classes, twiddles, then `First` transforms across them.
template <class Float, class FirstStage, class SecondStage>
Points<Float> cooley_tukey(const Points<Float>& x, int first, int second, Eighths form,
                           const FirstStage& first_stage, const SecondStage& second_stage) {
  const auto at = [](int k) { return static_cast<std::size_t>(k); };
  std::vector<Points<Float>> middle;
  for (int s = 0; s < second; ++s) {
    Points<Float> in;
    for (int r = 0; r < first; ++r) in.push_back(x[at(s + second * r)]);
    Points<Float> out = first_stage(in);
    for (int r = 0; r < first; ++r) out[at(r)] = twiddled(out[at(r)], first * second, r * s, form);
    middle.push_back(out);
  }
  Points<Float> y(x);
  for (int r = 0; r < first; ++r) {
    Points<Float> in;
    for (int s = 0; s < second; ++s) in.push_back(middle[at(s)][at(r)]);
    const Points<Float> out = second_stage(in);
    for (int t = 0; t < second; ++t) y[at(r + first * t)] = out[at(t)];
  }
  return y;
}

std::string kernel_name(const std::string& word, int length, bool f32) {
  return "haldg" + word + "_CToC_" + std::to_string(length) + (f32 ? "_32fc" : "_64fc");
}

template <class Float>
Points<Float> points(const std::vector<Float>& parts) {
  Points<Float> x;
  for (std::size_t i = 0; i < parts.size(); i += 2) x.push_back({parts[i], parts[i + 1]});
  return x;
}

/// Scaled parts, one after the other.
template <class Float>
std::vector<Float> scaled_parts(const Points<Float>& x) {
  const Float scale = static_cast<Float>(1) / static_cast<Float>(x.size());
  std::vector<Float> parts;
  for (const Point<Float>& v : x) {
    parts.push_back(scale * v.re);
    parts.push_back(scale * v.im);
  }
  return parts;
}

template <class Float>
void expect_result(const std::string& name, const std::vector<Float>& source, int flag,
                   const std::vector<Float>& expected) {
  test::Floats<Float> src(source, 0);
  test::Floats<Float> dst(source, 0);
  ASSERT_EQ(test::built_kernel(name)(src.data(), dst.data(), flag), haldStatusOk);
  ASSERT_TRUE(test::identical(dst.values(), expected))
      << name << " of " << testing::PrintToString(source) << " gives "
      << testing::PrintToString(dst.values()) << ", not " << testing::PrintToString(expected);
}

template <class Float, class Transform>
void expect_transcription(int length, const Transform& transform) {
  const std::string name = kernel_name("DFTFwd", length, sizeof(Float) == 4);
  for (unsigned seed = 100; seed < 300; ++seed) {
    const auto source = test::random_floats<Float>(2 * static_cast<std::size_t>(length), seed);
    const Points<Float> expected = transform(points(source));
    for (const Point<Float>& v : expected) ASSERT_TRUE(v.re != 0 && v.im != 0);
    expect_result(name, source, haldScaleFwdByN, scaled_parts(expected));
  }
}

template <class Float>
Points<Float> mirrored(Points<Float> x) {
  for (Point<Float>& v : x) std::swap(v.re, v.im);
  return x;
}

/// The same with exact zeros, both ways: the inverse exchanges real and imaginary parts.
template <class Float>
void expect_signed_transcription(int length, Points<Float> (*transform)(const Points<Float>&)) {
  expect_transcription<Float>(length, transform);
  const bool f32 = sizeof(Float) == 4;
  for (const auto& source : test::vanishing_inputs<Float>(2 * static_cast<std::size_t>(length))) {
    const Points<Float> x = points(source);
    expect_result(kernel_name("DFTFwd", length, f32), source, haldScaleFwdByN,
                  scaled_parts(transform(x)));
    expect_result(kernel_name("DFTInv", length, f32), source, haldScaleInvByN,
                  scaled_parts(mirrored(transform(mirrored(x)))));
    if (testing::Test::HasFatalFailure()) return;
  }
}

TEST(Transcription, Length2) {
  expect_signed_transcription<float>(2, dft2<float>);
  expect_signed_transcription<double>(2, dft2<double>);
}
TEST(Transcription, Length3) {
  expect_signed_transcription<float>(3, dft3<float>);
  expect_signed_transcription<double>(3, dft3<double>);
}
TEST(Transcription, Length4) {
  expect_signed_transcription<float>(4, dft4<float>);
  expect_signed_transcription<double>(4, dft4<double>);
}
TEST(Transcription, Length5) {
  expect_signed_transcription<float>(5, dft5<float>);
  expect_signed_transcription<double>(5, dft5<double>);
}
TEST(Transcription, Length6) {
  expect_signed_transcription<float>(6, dft6<float>);
  expect_signed_transcription<double>(6, dft6<double>);
}

TEST(Transcription, Length8) {
  expect_transcription<float>(8, [](const Points<float>& x) {
    return cooley_tukey(x, 4, 2, Eighths::full, dft4<float>, dft2<float>);
  });
  expect_transcription<double>(8, dft8<double>);
}

TEST(Transcription, Length16Of32BitElements) {
  expect_transcription<float>(16, [](const Points<float>& x) {
    return cooley_tukey(x, 4, 4, Eighths::full, dft4<float>, dft4<float>);
  });
}

TEST(Transcription, Length16Of64BitElements) { expect_transcription<double>(16, dft16); }

TEST(Transcription, Length32) {
  expect_transcription<float>(32, [](const Points<float>& x) {
    return cooley_tukey(x, 4, 8, Eighths::full, dft4<float>, dft8<float>);
  });
  expect_transcription<double>(32, [](const Points<double>& x) {
    return cooley_tukey(x, 8, 4, Eighths::two_products, dft8<double>, dft4<double>);
  });
}

TEST(Transcription, Length64Of32BitElements) {
  expect_transcription<float>(64, [](const Points<float>& x) {
    return cooley_tukey(x, 8, 8, Eighths::full, dft8<float>, dft8<float>);
  });
}

TEST(Transcription, Length64Of64BitElements) {
  expect_transcription<double>(64, [](const Points<double>& x) {
    return cooley_tukey(x, 16, 4, Eighths::two_products, dft16, dft4<double>);
  });
}

}  // namespace
}  // namespace haldgen::dft_complex
