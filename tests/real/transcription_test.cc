// The algorithms of some kernels written down once more from their formulas: the compiled kernels
// must give the same bits, signs of exact zeros included.
#include <gtest/gtest.h>

#include <cmath>

#include "haldgen.h"
#include "tests/built/library.h"
#include "tests/built/statements.h"

namespace haldgen::dft_real {
namespace {

using namespace test::statements;  // NOLINT(google-build-using-namespace): formulas are in it

/// A result before its scale. A statement with constants is scaled, and negated, in 64 bits.
struct Result {
  double value;
  bool wide;
  bool negated;
};
using Results = std::vector<Result>;

template <class Float>
Float finished(const Result& r, Float scale) {
  if (r.wide) {
    const double scaled = double{scale} * r.value;
    return static_cast<Float>(r.negated ? 0.0 - scaled : scaled);
  }
  const Float scaled = scale * static_cast<Float>(r.value);
  return r.negated ? Float{0} - scaled : scaled;
}

Result sum(double value) { return {value, false, false}; }
Result minus_sum(double value) { return {value, false, true}; }
Result statement(double value) { return {value, true, false}; }
Result minus_statement(double value) { return {value, true, true}; }

// Forward: results R(0), R(1), I(1), ..

template <class Float>
Results forward2(const Numbers<Float>& x) {
  return {sum(x[0] + x[1]), sum(x[0] - x[1])};
}

template <class Float>
Results forward3(const Numbers<Float>& x) {
  const Float a = x[1] + x[2], d = x[1] - x[2];
  return {sum(x[0] + a), statement(w(x[0]) - kHalf * w(a)), minus_statement(kSine3 * w(d))};
}

template <class Float>
Results forward4(const Numbers<Float>& x) {
  const Float u = x[0] + x[2], v = x[1] + x[3];
  return {sum(u + v), sum(x[0] - x[2]), minus_sum(x[1] - x[3]), sum(u - v)};
}

template <class Float>
Results forward5(const Numbers<Float>& x) {
  constexpr double c1 = 0.30901699437494745, c2 = 0.8090169943749475;
  constexpr double s1 = 0.5877852522924731, s2 = 0.9510565162951535;
  const Float a1 = x[1] + x[4], a2 = x[3] + x[2], d1 = x[1] - x[4], d2 = x[3] - x[2];
  const Float r0 = x[0] + a1;
  return {sum(r0 + a2), statement(c1 * w(a1) + w(x[0]) - c2 * w(a2)),
          statement(s1 * w(d2) - s2 * w(d1)), statement(w(x[0]) - c2 * w(a1) + c1 * w(a2)),
          minus_statement(s1 * w(d1) + s2 * w(d2))};
}

template <class Float>
Results forward6(const Numbers<Float>& x) {
  const Block3<Float> a(x[0], x[2], x[4]), b(x[3], x[5], x[1]);
  return {sum(a.total + b.total),   sum(a.cosine - b.cosine), minus_sum(a.sine - b.sine),
          sum(a.cosine + b.cosine), sum(a.sine + b.sine),     sum(a.total - b.total)};
}

template <class Float>
Results forward7(const Numbers<Float>& x) {
  constexpr double c1 = 0.6234898018587335, c2 = 0.2225209339563144, c3 = 0.9009688679024191;
  constexpr double s1 = 0.7818314824680298, s2 = 0.9749279121818236, s3 = 0.4338837391175581;
  const Float a1 = x[1] + x[6], a2 = x[5] + x[2], a3 = x[4] + x[3];
  const Float d1 = x[1] - x[6], d2 = x[5] - x[2], d3 = x[4] - x[3];
  const Float first = x[0] + a1, second = first + a2;
  return {sum(second + a3),
          statement(c1 * w(a1) + w(x[0]) - c2 * w(a2) - c3 * w(a3)),
          statement(s2 * w(d2) - s1 * w(d1) + s3 * w(d3)),
          statement(w(x[0]) - c2 * w(a1) - c3 * w(a2) + c1 * w(a3)),
          minus_statement(s2 * w(d1) + s3 * w(d2) + s1 * w(d3)),
          statement(w(x[0]) - c3 * w(a1) + c1 * w(a2) - c2 * w(a3)),
          statement(s2 * w(d3) - s3 * w(d1) - s1 * w(d2))};
}

template <class Float>
Results forward8(const Numbers<Float>& x) {
  const Float u0 = x[0] + x[4], u1 = x[1] + x[5], u2 = x[2] + x[6], u3 = x[3] + x[7];
  const Float e = x[0] - x[4], f = x[2] - x[6];
  const Float d1 = x[1] - x[5], d3 = x[3] - x[7];
  const auto p = kept<Float>(kEighth * w(d1)), r = kept<Float>(kEighth * w(d3));
  const Float minus = p - r, plus = p + r;
  const Float even = u0 + u2, odd = u1 + u3;
  return {sum(even + odd),    sum(minus + e), minus_sum(plus + f), sum(u0 - u2),
          minus_sum(u1 - u3), sum(e - minus), minus_sum(plus - f), sum(even - odd)};
}

template <class Float>
Results forward9(const Numbers<Float>& x) {
  constexpr double c1 = 0.766044443118978, s1 = 0.6427876096865394;
  constexpr double c2 = 0.17364817766693036, s2 = 0.984807753012208;
  const Block3<Float> b0(x[0], x[3], x[6]), b1(x[1], x[4], x[7]), b2(x[2], x[5], x[8]);
  const auto p1 = kept<Float>(c1 * w(b1.cosine) - s1 * w(b1.sine));
  const auto q1 = kept<Float>(s1 * w(b1.cosine) + c1 * w(b1.sine));
  const auto p2 = kept<Float>(c2 * w(b2.cosine) - s2 * w(b2.sine));
  const auto q2 = kept<Float>(s2 * w(b2.cosine) + c2 * w(b2.sine));
  const Float totals = b1.total + b2.total, difference = b1.total - b2.total;
  const Float v = p2 + p1, z = q1 + q2, q = q2 - q1, p = p1 - p2;
  const auto t0 = kept<Float>(w(b0.cosine) - kHalf * w(v));
  const auto t1 = kept<Float>(kSine3 * w(q)), t2 = kept<Float>(kSine3 * w(p));
  const auto t3 = kept<Float>(kHalf * w(z) - w(b0.sine));
  return {sum(b0.total + totals),
          sum(b0.cosine + v),
          minus_sum(b0.sine + z),
          sum(t0 - t1),
          minus_sum(t3 + t2),
          statement(w(b0.total) - kHalf * w(totals)),
          minus_statement(kSine3 * w(difference)),
          sum(t0 + t1),
          sum(t3 - t2)};
}

template <class Float>
struct Pair {
  Float first, second;
};

/// (c f + s h, s f - c h).
template <class Float>
Pair<Float> reflected(double c, double s, Float f, Float h) {
  return {kept<Float>(c * w(f) + s * w(h)), kept<Float>(s * w(f) - c * w(h))};
}
/// (c f + s h, c h - s f).
template <class Float>
Pair<Float> turned(double c, double s, Float f, Float h) {
  return {kept<Float>(c * w(f) + s * w(h)), kept<Float>(c * w(h) - s * w(f))};
}

template <class Float>
Results forward13(const Numbers<Float>& x) {
  const Block3<Float> b1(x[1], x[3], x[9]), b2(x[8], x[11], x[7]), b3(x[12], x[10], x[4]),
      b4(x[5], x[2], x[6]);
  const Float s13 = b1.total + b3.total, s24 = b2.total + b4.total;
  const Float sums = s13 + s24, differences = s13 - s24;
  const Float t13 = b1.cosine + b3.cosine, t24 = b2.cosine + b4.cosine;
  const Float u13 = b1.sine + b3.sine, u24 = b2.sine + b4.sine;
  const Float e = t13 + t24, f = t13 - t24, g = u13 + u24, h = u24 - u13;
  const Float dt13 = b1.cosine - b3.cosine, du42 = b4.sine - b2.sine;
  const Float j = dt13 + du42, k = dt13 - du42;
  const Float du31 = b3.sine - b1.sine, dt24 = b2.cosine - b4.cosine;
  const Float m = du31 + dt24, q = du31 - dt24;
  const Float a = b1.total - b3.total, b = b2.total - b4.total;
  const auto t = kept<Float>(w(x[0]) - 0.08333333333333333 * w(sums));
  const auto u = kept<Float>(0.3004626062886657 * w(differences));
  const auto [f1, f2] = reflected(0.5165207806234897, 0.30711137115908277, f, h);
  const auto [j1, j2] = turned(0.5124953431658732, 0.31378278210316923, j, q);
  const auto [g1, g2] = turned(0.5751407294740031, 0.1741386011521359, a, b);
  const auto [e1, e2] = reflected(0.15180597207438773, 0.5814344829416822, e, g);
  const auto [k1, k2] = turned(0.02319821121153658, 0.6004772719326652, k, m);

  const Float v = f1 + e1, ww = e1 - f1, plus = t + u, minus = t - u;
  const Float vs = e2 - f2, ws = f2 + e2;
  const auto vc = kept<Float>(w(plus) - kHalf * w(v)), vr = kept<Float>(kSine3 * w(vs));
  const auto wc = kept<Float>(w(minus) - kHalf * w(ww)), wr = kept<Float>(kSine3 * w(ws));

  const Float p = j1 + k2, r = j2 - k1, y = j2 + k1, kj = k2 - j1;
  const auto z = kept<Float>(w(g2) - kHalf * w(y)), o = kept<Float>(kSine3 * w(kj));
  const auto n = kept<Float>(kSine3 * w(r) - kHalf * w(p));
  const auto l = kept<Float>(0.4330127018922193 * w(r) + 0.7499999999999999 * w(p));
  const auto mm = kept<Float>(kHalf * w(n) + w(g1));
  return {sum(x[0] + sums), sum(plus + v), sum(g2 + y),      sum(wc + wr),     sum(n - g1),
          sum(vc + vr),     sum(z + o),    sum(vc - vr),     minus_sum(z - o), sum(minus + ww),
          sum(l - mm),      sum(wc - wr),  minus_sum(mm + l)};
}

template <class Float>
Results forward16(const Numbers<Float>& x) {
  Float u[8], d[8];
  for (std::size_t i = 0; i < 8; ++i) {
    u[i] = x[i] + x[i + 8];
    d[i] = x[i] - x[i + 8];
  }
  Float s[4], t[4];
  for (std::size_t i = 0; i < 4; ++i) {
    s[i] = u[i] + u[i + 4];
    t[i] = u[i] - u[i + 4];
  }
  const Float even = s[0] + s[2], odd = s[1] + s[3];
  const auto p = kept<Float>(kEighth * w(t[1])), r = kept<Float>(kEighth * w(t[3]));
  const Float minus = p - r, plus = p + r;
  const auto e = kept<Float>(kEighth * w(d[2])), f = kept<Float>(kEighth * w(d[6]));
  constexpr double h = 0.9238795325112867, c = 0.3826834323650898;
  const auto a = kept<Float>(h * w(d[1]) - c * w(d[5])), b = kept<Float>(c * w(d[1]) + h * w(d[5]));
  const auto cc = kept<Float>(c * w(d[3]) - h * w(d[7]));
  const auto dd = kept<Float>(h * w(d[3]) + c * w(d[7]));
  const Float ef = e - f, fe = e + f;
  const Float ee = ef + d[0], ff = d[0] - ef, gg = fe + d[4], hh = fe - d[4];
  const Float ac = a + cc, ca = a - cc, bd = b + dd, db = dd - b;
  return {sum(even + odd),        sum(ee + ac), minus_sum(gg + bd), sum(t[0] + minus),
          minus_sum(plus + t[2]), sum(ff - db), minus_sum(hh + ca), sum(s[0] - s[2]),
          minus_sum(s[1] - s[3]), sum(ff + db), sum(hh - ca),       sum(t[0] - minus),
          minus_sum(plus - t[2]), sum(ee - ac), minus_sum(bd - gg), sum(even - odd)};
}

// Inverse: results x[0], x[1], .. of the values R(0), R(1), I(1), ..

template <class Float>
Results inverse2(const Numbers<Float>& y) {
  return {sum(y[0] + y[1]), sum(y[0] - y[1])};
}

template <class Float>
Results inverse3(const Numbers<Float>& y) {
  const Float a = 2 * y[1];
  const auto c = kept<Float>(w(y[0]) - kHalf * w(a));
  const auto t = kept<Float>(1.7320508075688772 * w(y[2]));
  return {sum(y[0] + a), sum(c - t), sum(c + t)};
}

template <class Float>
Results inverse4(const Numbers<Float>& y) {
  const Float plus = y[0] + y[3], minus = y[0] - y[3], re = 2 * y[1], im = 2 * y[2];
  return {sum(plus + re), sum(minus - im), sum(plus - re), sum(minus + im)};
}

template <class Float>
Results inverse5(const Numbers<Float>& y) {
  constexpr double c1 = 0.30901699437494745, c2 = 0.8090169943749475;
  constexpr double s1 = 0.5877852522924731, s2 = 0.9510565162951535;
  const Float a1 = 2 * y[1], d1 = 2 * y[2], a2 = 2 * y[3], d2 = 2 * y[4];
  const Float first = y[0] + a1;
  const auto r1 = kept<Float>(c1 * w(a1) + w(y[0]) - c2 * w(a2));
  const auto r2 = kept<Float>(w(y[0]) - c2 * w(a1) + c1 * w(a2));
  const auto t1 = kept<Float>(s2 * w(d1) + s1 * w(d2)), t2 = kept<Float>(s1 * w(d1) - s2 * w(d2));
  return {sum(first + a2), sum(r1 - t1), sum(r2 - t2), sum(r2 + t2), sum(r1 + t1)};
}

template <class Float>
Results inverse7(const Numbers<Float>& y) {
  constexpr double c1 = 0.6234898018587335, c2 = 0.2225209339563144, c3 = 0.9009688679024191;
  constexpr double s1 = 0.7818314824680298, s2 = 0.9749279121818236, s3 = 0.4338837391175581;
  const Float a1 = 2 * y[1], d1 = 2 * y[2], a2 = 2 * y[3], d2 = 2 * y[4], a3 = 2 * y[5],
              d3 = 2 * y[6];
  const Float first = y[0] + a1, second = first + a2;
  const auto r1 = kept<Float>(c1 * w(a1) + w(y[0]) - c2 * w(a2) - c3 * w(a3));
  const auto r2 = kept<Float>(w(y[0]) - c2 * w(a1) - c3 * w(a2) + c1 * w(a3));
  const auto r3 = kept<Float>(w(y[0]) - c3 * w(a1) + c1 * w(a2) - c2 * w(a3));
  const auto t1 = kept<Float>(s1 * w(d1) + s2 * w(d2) + s3 * w(d3));
  const auto t2 = kept<Float>(s2 * w(d1) - s3 * w(d2) - s1 * w(d3));
  const auto t3 = kept<Float>(s3 * w(d1) - s1 * w(d2) + s2 * w(d3));
  return {sum(second + a3), sum(r1 - t1), sum(r2 - t2), sum(r3 - t3),
          sum(r3 + t3),     sum(r2 + t2), sum(r1 + t1)};
}

template <class Float>
Results inverse8(const Numbers<Float>& y) {
  const Float r1 = 2 * y[1], i1 = 2 * y[2], r2 = 2 * y[3], i2 = 2 * y[4], r3 = 2 * y[5],
              i3 = 2 * y[6];
  const Float plus = y[0] + y[7], minus = y[0] - y[7];
  const Float a = r1 - r3, b = i1 + i3;
  const auto p = kept<Float>(kEighth * w(a)), r = kept<Float>(kEighth * w(b));
  const Float even = plus + r2, odd = plus - r2, re = r1 + r3, im = i1 - i3;
  const Float lower = minus - i2, upper = minus + i2, pr = p - r, rp = p + r;
  return {sum(even + re), sum(lower + pr), sum(odd - im), sum(upper - rp),
          sum(even - re), sum(lower - pr), sum(odd + im), sum(upper + rp)};
}

template <class Float>
Results inverse11(const Numbers<Float>& y) {
  constexpr double c1 = 0.30901699437494745, c2 = 0.8090169943749475;
  constexpr double s1 = 0.5877852522924731, s2 = 0.9510565162951535;
  const auto re = [&](std::size_t k) { return 2 * y[2 * k - 1]; };
  const auto im = [&](std::size_t k) { return 2 * y[2 * k]; };
  const Float a = re(2) + re(5), b = re(3) + re(4), e = re(2) - re(5), f = re(3) - re(4);
  const Float ww = re(1), v = im(1);
  const Float g1 = im(5) - im(2), g2 = im(2) + im(5), g3 = im(3) - im(4), g4 = im(3) + im(4);
  const auto p1 = kept<Float>(c1 * w(a) + w(ww) - c2 * w(b));
  const auto p2 = kept<Float>(w(ww) - c2 * w(a) + c1 * w(b));
  const auto q1 = kept<Float>(s2 * w(e) - s1 * w(f)), q2 = kept<Float>(s1 * w(e) + s2 * w(f));
  const Float aw = a + ww, s = aw + b;
  const auto e1 = kept<Float>(c1 * w(g1) + w(v) - c2 * w(g4));
  const auto e2 = kept<Float>(w(v) - c2 * w(g1) + c1 * w(g4));
  const auto f1 = kept<Float>(s2 * w(g2) + s1 * w(g3)), f2 = kept<Float>(s2 * w(g3) - s1 * w(g2));
  const Float vg = v + g1, z = vg + g4;
  const auto t = kept<Float>(w(y[0]) - 0.1 * w(s)), u = kept<Float>(0.33166247903554 * w(z));
  const Float minus = t - u, plus = t + u;
  constexpr double a_c = 0.19106037559687397, a_s = 0.635213297150478;
  const auto a1 = kept<Float>(a_c * w(f2) - a_s * w(e2)),
             a2 = kept<Float>(a_c * w(e2) + a_s * w(f2));
  const auto [b1, b2] = turned(0.527221112864967, 0.4025393125514894, p1, q1);
  constexpr double c_c = 0.4262349587304204, c_s = 0.5082556049431003;
  const auto cc1 = kept<Float>(c_c * w(e1) - c_s * w(f1));
  const auto cc2 = kept<Float>(c_s * w(e1) + c_c * w(f1));
  const auto [d1, d2] = turned(0.4140324199662142, 0.5182443007085755, p2, q2);

  const Float m1 = b1 + cc1, m2 = a1 + d1, m3 = d2 - a2, m4 = b2 - cc2;
  const auto h1 = kept<Float>(c1 * w(m1) + w(minus) - c2 * w(m2));
  const auto h2 = kept<Float>(w(minus) - c2 * w(m1) + c1 * w(m2));
  const auto h3 = kept<Float>(s2 * w(m3) - s1 * w(m4)), h4 = kept<Float>(s2 * w(m4) + s1 * w(m3));
  const Float n1 = b1 - cc1, n2 = d1 - a1, n3 = b2 + cc2, n4 = a2 + d2;
  const auto l1 = kept<Float>(c1 * w(n1) + w(plus) - c2 * w(n2));
  const auto l2 = kept<Float>(w(plus) - c2 * w(n1) + c1 * w(n2));
  const auto l3 = kept<Float>(s2 * w(n3) + s1 * w(n4)), l4 = kept<Float>(s2 * w(n4) - s1 * w(n3));
  const Float mm = minus + m1, nn = plus + n1;
  return {sum(y[0] + s), sum(mm + m2), sum(l1 - l3), sum(h2 - h3), sum(h2 + h3), sum(h1 + h4),
          sum(l1 + l3),  sum(l2 + l4), sum(l2 - l4), sum(h1 - h4), sum(nn + n2)};
}

template <class Float>
void expect_transcribed(const std::string& word, std::size_t length,
                        Results (*transcription)(const Numbers<Float>&)) {
  const std::string name = "haldg" + word + "_" + std::to_string(length) +
                           (sizeof(Float) == sizeof(float) ? "_32f" : "_64f");
  const auto kernel = test::built_kernel(name);
  const bool forward = word.starts_with("DFTFwd");
  const auto by_length = static_cast<Float>(1.0L / static_cast<long double>(length));
  for (const auto& source : transcribed_inputs<Float>(length)) {
    const Results results = transcription(source);
    for (const bool divides : {false, true}) {
      std::vector<Float> expected;
      for (const Result& r : results) {
        expected.push_back(finished(r, divides ? by_length : Float{1}));
      }
      test::Floats<Float> src(source, 0);
      test::Floats<Float> dst(source, 0);
      const auto flag = divides == forward ? haldScaleFwdByN : haldScaleInvByN;
      ASSERT_EQ(kernel(src.data(), dst.data(), flag), haldStatusOk);
      ASSERT_TRUE(test::identical(dst.values(), expected))
          << name << " of " << testing::PrintToString(source) << " gives "
          << testing::PrintToString(dst.values()) << ", not " << testing::PrintToString(expected);
    }
  }
}

template <class Float>
void expect_all_transcribed() {
  const std::string forward = "DFTFwd_RToPack", inverse = "DFTInv_PackToR";
  expect_transcribed<Float>(forward, 2, forward2<Float>);
  expect_transcribed<Float>(forward, 3, forward3<Float>);
  expect_transcribed<Float>(forward, 4, forward4<Float>);
  expect_transcribed<Float>(forward, 5, forward5<Float>);
  expect_transcribed<Float>(forward, 6, forward6<Float>);
  expect_transcribed<Float>(forward, 7, forward7<Float>);
  expect_transcribed<Float>(forward, 8, forward8<Float>);
  expect_transcribed<Float>(forward, 9, forward9<Float>);
  expect_transcribed<Float>(forward, 13, forward13<Float>);
  expect_transcribed<Float>(forward, 16, forward16<Float>);
  expect_transcribed<Float>(inverse, 2, inverse2<Float>);
  expect_transcribed<Float>(inverse, 3, inverse3<Float>);
  expect_transcribed<Float>(inverse, 4, inverse4<Float>);
  expect_transcribed<Float>(inverse, 5, inverse5<Float>);
  expect_transcribed<Float>(inverse, 7, inverse7<Float>);
  expect_transcribed<Float>(inverse, 8, inverse8<Float>);
  expect_transcribed<Float>(inverse, 11, inverse11<Float>);
}

TEST(Transcription, KernelsOf32BitElements) { expect_all_transcribed<float>(); }
TEST(Transcription, KernelsOf64BitElements) { expect_all_transcribed<double>(); }

}  // namespace
}  // namespace haldgen::dft_real
