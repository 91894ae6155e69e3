// The table behind the angles of plans (angle.cc), as source.
#pragma once

#include <string>

namespace haldgen::dct4 {

/// A line for each step m/32 between -pi/4 and pi/4, in ascending order: sine and cosine, each as a
/// number of 24 bits and the double nearest to what that lacks.
std::string angle_steps();

}  // namespace haldgen::dct4
