// A table of steps and short polynomials, after P. T. P. Tang, "Table-lookup algorithms for
// elementary functions and their error analysis", Proc. 10th IEEE Symposium on Computer Arithmetic
// (1991). With S and C the sine and cosine of a step, an angle y is taken apart as
//
//     y = q pi/2 + r,     |r| <= pi/4
//     r = m/32 + t + d,   |t| <= 1/64,   d what a double lacks of r
//     sin r = S + C t + (C (sin t - t + d) + S (cos t - 1 - t d))
//     cos r = C - S t + (C (cos t - 1 - t d) - S (sin t - t + d))
//
// but for terms in d^2 and d t^2. The sum of the first two terms keeps its error. The rest is below
// 2^-12 of the result, so the roundings in it, and the ends of the series (2^-66 of the result),
// add less than a hundredth of a unit in the last place to the half unit of the last addition. Next
// to a multiple of pi/2 m is 0 and the small result t + d.
#include "dct4/angle.h"

namespace haldgen::dct4 {
namespace {

/// Sine and cosine, each in a part of 24 bits, whose product with a number of 26 is exact, and what
/// that lacks.
struct Step {
  double sine, sine_rest;
  double cosine, cosine_rest;
};

/// Of m/32 for m = -kLastStep..kLastStep (steps.cc).
constexpr Step kSteps[] = {
#include "angle_steps.inc"
};
constexpr int kLastStep = sizeof(kSteps) / sizeof(Step) / 2;

/// pi/2, and what it lacks.
constexpr double kQuarter = 1.5707963267948966;
constexpr double kQuarterRest = 6.123233995736766e-17;

/// The nearest integer of a small number: the sum has no bits below 1.
double nearest_integer(double x) {
  constexpr double kShift = 0x1.8p52;
  return (x + kShift) - kShift;
}

/// The leading 26 bits (Veltkamp's splitting).
double leading(double x) {
  const double product = 0x8000001p0 * x;
  return product - (product - x);
}

}  // namespace

CosineSine cosine_sine(double angle) {
  const double quarters = nearest_integer(angle * (2 / 3.141592653589793));
  const double near = angle - quarters * kQuarter;  // exact, both being close or 0
  const double correction = quarters * kQuarterRest;
  const double r = near - correction;
  const double r_rest = (near - r) - correction;

  const double m = nearest_integer(32 * r);
  const Step& step = kSteps[static_cast<int>(m) + kLastStep];
  const double t = r - m / 32;  // exact
  const double t_lead = leading(t);
  const double t_rest = (t - t_lead) + r_rest;
  const double square = t * t;
  const double sine_tail = t * square * (-1.0 / 6 + square * (1.0 / 120 - square * (1.0 / 5040)));
  const double cosine_tail =
      square * (-0.5 + square * (1.0 / 24 + square * (square * (1.0 / 40320) - 1.0 / 720))) -
      t * r_rest;

  // Fast two-sums (Dekker): the first term is the larger one, or is 0.
  const double sine_change = step.cosine * t_lead;
  const double sine = step.sine + sine_change;
  const double sine_error = sine_change - (sine - step.sine);
  const double cosine_change = step.sine * t_lead;
  const double cosine = step.cosine - cosine_change;
  const double cosine_error = (step.cosine - cosine) - cosine_change;

  const double full_sine = step.sine + step.sine_rest;
  const double full_cosine = step.cosine + step.cosine_rest;
  const double sine_rest = (full_cosine * sine_tail + full_sine * cosine_tail) +
                           (step.cosine * t_rest + (step.sine_rest + step.cosine_rest * t));
  const double cosine_rest = (full_cosine * cosine_tail - full_sine * sine_tail) -
                             (step.sine * t_rest - (step.cosine_rest - step.sine_rest * t));
  const double sine_of_r = sine + (sine_error + sine_rest);
  const double cosine_of_r = cosine + (cosine_error + cosine_rest);

  // A quarter turn more makes a sine of a cosine, and the negative cosine of a sine.
  const double turned[] = {sine_of_r, cosine_of_r, -sine_of_r, -cosine_of_r};
  const double* const quadrant = turned + static_cast<int>(quarters);
  return {quadrant[1], quadrant[0]};
}

}  // namespace haldgen::dct4
