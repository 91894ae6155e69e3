// The algorithms of some kernels written down once more from their formulas: the compiled kernels
// must give the same bits, signs of exact zeros included.
#include <gtest/gtest.h>

#include "haldgen.h"
#include "tests/built/library.h"
#include "tests/built/statements.h"

namespace haldgen::hartley {
namespace {

using namespace test::statements;  // NOLINT(google-build-using-namespace): formulas are in it

template <class Float>
Numbers<Float> hartley2(const Numbers<Float>& x) {
  return {x[0] + x[1], x[0] - x[1]};
}

template <class Float>
Numbers<Float> hartley3(const Numbers<Float>& x) {
  const Float s = x[1] + x[2], d = x[1] - x[2];
  const auto a = kept<Float>(w(x[0]) - kHalf * w(s)), b = kept<Float>(kSine3 * w(d));
  return {x[0] + s, b + a, a - b};
}

template <class Float>
Numbers<Float> hartley4(const Numbers<Float>& x) {
  const Float a = x[0] + x[2], b = x[0] - x[2], p = x[1] + x[3], q = x[1] - x[3];
  return {a + p, b + q, a - p, b - q};
}

template <class Float>
Numbers<Float> hartley5(const Numbers<Float>& x) {
  constexpr double c1 = 0.30901699437494745, c2 = 0.8090169943749475;
  constexpr double t1 = 0.9510565162951535, t2 = 0.5877852522924731;
  const Float s1 = x[1] + x[4], d1 = x[1] - x[4], s2 = x[3] + x[2], d2 = x[3] - x[2];
  const auto a1 = kept<Float>(c1 * w(s1) + w(x[0]) - c2 * w(s2));
  const auto a2 = kept<Float>(w(x[0]) - c2 * w(s1) + c1 * w(s2));
  const auto b1 = kept<Float>(t1 * w(d1) - t2 * w(d2)), b2 = kept<Float>(t2 * w(d1) + t1 * w(d2));
  const Float first = x[0] + s1;
  return {first + s2, a1 + b1, a2 + b2, a2 - b2, a1 - b1};
}

template <class Float>
Numbers<Float> hartley6(const Numbers<Float>& x) {
  const Block3<Float> a(x[0], x[2], x[4]), b(x[3], x[5], x[1]);
  const Float p = a.cosine + b.cosine, q = a.cosine - b.cosine;
  const Float t = a.sine + b.sine, z = b.sine - a.sine;
  return {a.total + b.total, q - z, p - t, a.total - b.total, p + t, q + z};
}

template <class Float>
Numbers<Float> hartley7(const Numbers<Float>& x) {
  constexpr double a = 0.2225209339563144, b = 0.6234898018587335, c = 0.9009688679024191;
  constexpr double u = 0.9749279121818236, v = 0.7818314824680298, ww = 0.4338837391175581;
  const Float s1 = x[1] + x[6], s2 = x[5] + x[2], s3 = x[4] + x[3];
  const Float d1 = x[1] - x[6], d2 = x[5] - x[2], d3 = x[4] - x[3];
  const auto a1 = kept<Float>(b * w(s1) + w(x[0]) - a * w(s2) - c * w(s3));
  const auto a2 = kept<Float>(w(x[0]) - a * w(s1) - c * w(s2) + b * w(s3));
  const auto a3 = kept<Float>(w(x[0]) - c * w(s1) + b * w(s2) - a * w(s3));
  const auto b1 = kept<Float>(v * w(d1) - u * w(d2) - ww * w(d3));
  const auto b2 = kept<Float>(u * w(d1) + ww * w(d2) + v * w(d3));
  const auto b3 = kept<Float>(ww * w(d1) + v * w(d2) - u * w(d3));
  const Float first = x[0] + s1, second = first + s2;
  return {second + s3, a1 + b1, a2 + b2, a3 + b3, a3 - b3, a2 - b2, a1 - b1};
}

template <class Float>
Numbers<Float> hartley8(const Numbers<Float>& x) {
  const Float a = x[0] + x[4], b = x[0] - x[4], f = x[2] + x[6], e = x[2] - x[6];
  const Float g = x[1] + x[5], h = x[3] + x[7], d1 = x[1] - x[5], d3 = x[3] - x[7];
  const auto m1 = kept<Float>(kEighth * w(d1)), m2 = kept<Float>(kEighth * w(d3));
  const Float t1 = m1 - m2, t2 = m1 + m2;
  const Float af = a + f, gh = g + h, amf = a - f, gmh = g - h;
  const Float bp = b + t1, ep = e + t2, bm = b - t1, em = e - t2;
  return {af + gh, bp + ep, amf + gmh, bm - em, af - gh, bm + em, amf - gmh, bp - ep};
}

/// Pairs in the order of the powers of 6, which is 1, 6, 3, 7, 9 up to sign.
template <class Float>
Numbers<Float> hartley11(const Numbers<Float>& x) {
  constexpr double cosine[] = {1.0,
                               0.8412535328311812,
                               0.41541501300188644,
                               -0.14231483827328514,
                               -0.6548607339452851,
                               -0.9594929736144974};
  constexpr double sine[] = {0.0,
                             0.5406408174555976,
                             0.9096319953545183,
                             0.9898214418809327,
                             0.7557495743542583,
                             0.28173255684142967};
  Float total = x[0];
  for (const std::size_t p : {1U, 6U, 3U, 7U, 9U}) total = total + (x[p] + x[11 - p]);
  Numbers<Float> y(11, total);
  for (std::size_t k = 1; k <= 5; ++k) {
    double a = w(x[0]), b = 0;
    for (const std::size_t p : {1U, 6U, 3U, 7U, 9U}) {
      const std::size_t turn = k * p % 11;
      const bool upper = turn > 5;
      const double c = cosine[upper ? 11 - turn : turn];
      const double s = upper ? -sine[11 - turn] : sine[turn];
      const Float sum = x[p] + x[11 - p], difference = x[p] - x[11 - p];
      a = a + c * w(sum);
      b = p == 1 ? s * w(difference) : b + s * w(difference);
    }
    const auto even = kept<Float>(a), odd = kept<Float>(b);
    y[k] = even + odd;
    y[11 - k] = even - odd;
  }
  return y;
}

template <class Float>
Numbers<Float> hartley12(const Numbers<Float>& x) {
  const Block3<Float> a(x[0], x[4], x[8]), b(x[6], x[2], x[10]);
  const Float p = x[1] + x[11], q = x[5] + x[7], r = x[3] + x[9];
  const Float u = x[1] - x[11], v = x[5] - x[7], z = x[3] - x[9];
  const Float pq = p + q, qp = q - p, uv = u + v, umv = u - v;
  const Float c0 = r + pq, c1 = kept<Float>(w(r) - kHalf * w(pq)), c2 = kept<Float>(kSine3 * w(qp));
  const Float d0 = z - uv, d1 = kept<Float>(w(z) + kHalf * w(uv)),
              d2 = kept<Float>(kSine3 * w(umv));
  const Float sum = a.total + b.total, difference = a.total - b.total;
  const Float ap = a.cosine + a.sine, am = a.cosine - a.sine;
  const Float bp = b.cosine + b.sine, bm = b.cosine - b.sine;
  const Float e1 = ap - bm, e2 = ap + bm, e3 = am + bp, e4 = am - bp;
  const Float dc = d1 - c2, cd = c1 + d2, cmd = c1 - d2, dpc = d1 + c2;
  return {sum + c0, e1 + dc, e3 - cmd, difference - d0, e2 + cd, e4 + dpc,
          sum - c0, e1 - dc, e3 + cmd, difference + d0, e2 - cd, e4 - dpc};
}

template <class Float>
void expect_transcribed(std::size_t length,
                        Numbers<Float> (*transcription)(const Numbers<Float>&)) {
  const auto kernel = test::built_kernel("haldgHartley_" + std::to_string(length) +
                                         (sizeof(Float) == sizeof(float) ? "_32f" : "_64f"));
  const auto by_length = static_cast<Float>(1.0L / static_cast<long double>(length));
  for (const auto& source : transcribed_inputs<Float>(length)) {
    for (const bool divides : {false, true}) {
      Numbers<Float> expected = transcription(source);
      for (Float& v : expected) v *= divides ? by_length : Float{1};
      test::Floats<Float> src(source, 0);
      test::Floats<Float> dst(source, 0);
      const auto flag = divides ? haldScaleFwdByN : haldScaleNone;
      ASSERT_EQ(kernel(src.data(), dst.data(), flag), haldStatusOk);
      ASSERT_TRUE(test::identical(dst.values(), expected))
          << length << " of " << testing::PrintToString(source) << " gives "
          << testing::PrintToString(dst.values()) << ", not " << testing::PrintToString(expected);
    }
  }
}

template <class Float>
void expect_all_transcribed() {
  expect_transcribed<Float>(2, hartley2<Float>);
  expect_transcribed<Float>(3, hartley3<Float>);
  expect_transcribed<Float>(4, hartley4<Float>);
  expect_transcribed<Float>(5, hartley5<Float>);
  expect_transcribed<Float>(6, hartley6<Float>);
  expect_transcribed<Float>(7, hartley7<Float>);
  expect_transcribed<Float>(8, hartley8<Float>);
  expect_transcribed<Float>(11, hartley11<Float>);
  expect_transcribed<Float>(12, hartley12<Float>);
}

TEST(Transcription, KernelsOf32BitElements) { expect_all_transcribed<float>(); }
TEST(Transcription, KernelsOf64BitElements) { expect_all_transcribed<double>(); }

}  // namespace
}  // namespace haldgen::hartley
