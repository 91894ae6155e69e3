#include "dct4/steps.h"

#include "kernelgen/emit.h"
#include "kernelgen/wide.h"

namespace haldgen::dct4 {
namespace {

using kernelgen::Wide;

std::string two_parts(Wide value) {
  const double lead = kernelgen::to_float(value);
  const double rest = kernelgen::to_double(value - Wide(lead));
  const auto text = [](double part) { return kernelgen::literal(part, kernelgen::FloatType::f64); };
  return text(lead) + ", " + text(rest);
}

}  // namespace

std::string angle_steps() {
  constexpr int kLast = 25;  // 26/32 is beyond pi/4
  std::string lines = "// Written by haldgen-generate.\n";
  for (int m = -kLast; m <= kLast; ++m) {
    const Wide angle = m / 32.0;
    lines += "{" + two_parts(sin(angle)) + ", " + two_parts(cos(angle)) + "},\n";
  }
  return lines;
}

}  // namespace haldgen::dct4
