// What the examples of batches transform: rows of noise.
#pragma once

#include <haldgen.h>

#include <cstddef>
#include <random>
#include <vector>

inline std::vector<Cplx32> noise(std::size_t count) {
  std::vector<Cplx32> values(count);
  std::mt19937 random(1);
  std::uniform_real_distribution<float> next(-1, 1);
  for (Cplx32& value : values) value = {next(random), next(random)};
  return values;
}
