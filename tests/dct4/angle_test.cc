// Cosines and sines of the rotation tables, and the steps that they are made with, against
// double-double arithmetic.
#include "dct4/angle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <sstream>
#include <string>

#include "dct4/steps.h"
#include "kernelgen/wide.h"

namespace haldgen::dct4 {
namespace {

using kernelgen::Wide;
using kernelgen::WideComplex;

/// exp(i y) for y in [0, pi].
WideComplex turned_by(double y) {
  constexpr Wide kQuarter{1.5707963267948966, 6.123233995736766e-17};
  const int quarters = y < 0.7 ? 0 : y < 2.3 ? 1 : 2;
  const Wide rest = Wide(y) - Wide(quarters) * kQuarter;
  return turned({cos(rest), sin(rest)}, static_cast<kernelgen::Turn>(quarters));
}

/// Distance in units in the last place of the true value.
double error(double value, Wide truth) {
  int exponent = 0;
  std::frexp(truth.hi, &exponent);
  return std::ldexp(abs(Wide(value) - truth).hi, std::numeric_limits<double>::digits - exponent);
}

struct Worst {
  double error = 0;
  double angle = 0;
  void take(double x) {
    const double y = x * 3.141592653589793;
    const CosineSine value = cosine_sine(y);
    const WideComplex truth = turned_by(y);
    const double here =
        std::max(dct4::error(value.cosine, truth.re), dct4::error(value.sine, truth.im));
    if (here > error) *this = {here, y};
  }
};

TEST(Angle, RotationsAreAccurate) {
  Worst worst;
  for (int length = 64; length <= 1 << 20; length *= 2) {
    const int radix = length < 128 ? 8 : length < 1024 ? 16 : 32;
    for (int b = 0; b < length / (2 * radix); ++b) {
      for (int j = 0; j < radix; ++j) worst.take((4.0 * b + 2) * (2 * j + 1) / (8.0 * length));
    }
  }
  EXPECT_LE(worst.error, 0.51) << worst.angle;
}

// pi a (2b+1) / m for any a: all multiples of pi/m, the ends and the middle included.
TEST(Angle, InnerRotationsAreAccurate) {
  Worst worst;
  for (int k = 1; k < 1 << 15; ++k) worst.take(k / 32768.0);
  EXPECT_LE(worst.error, 0.51) << worst.angle;
}

TEST(Angle, ZeroIsExact) {
  EXPECT_EQ(cosine_sine(0).cosine, 1);
  EXPECT_EQ(cosine_sine(0).sine, 0);
}

// Each step is the one before, turned by 1/32.
TEST(Angle, StepsFollowFromOneAnother) {
  const WideComplex turn{{0.9995117584851364, -3.418806487972947e-17},
                         {0.03124491398532608, -1.562781562225433e-18}};
  WideComplex truth{{0.7100338835660797, 1.505272211891291e-17},  // exp(-25i/32)
                    {-0.7041675114545337, 3.94095700584825e-17}};
  std::istringstream lines(angle_steps());
  std::string line;
  std::getline(lines, line);  // who wrote it
  int steps = 0;
  for (; std::getline(lines, line); truth = truth * turn, ++steps) {
    double sine, sine_rest, cosine, cosine_rest;
    ASSERT_EQ(std::sscanf(line.c_str(), "{%lf, %lf, %lf, %lf},", &sine, &sine_rest, &cosine,
                          &cosine_rest),
              4);
    EXPECT_EQ(sine, static_cast<float>(sine)) << line;
    EXPECT_EQ(cosine, static_cast<float>(cosine)) << line;
    // Half a unit in the last place of the rest, which is below 2^-25.
    EXPECT_LE(abs(Wide(sine) + Wide(sine_rest) - truth.im).hi, 0x1p-79) << line;
    EXPECT_LE(abs(Wide(cosine) + Wide(cosine_rest) - truth.re).hi, 0x1p-79) << line;
  }
  EXPECT_EQ(steps, 51);
}

}  // namespace
}  // namespace haldgen::dct4
