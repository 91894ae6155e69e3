// Block by block and, where batches are installed, at once: the same numbers.
#include <haldgen.hpp>
#if __has_include(<haldbatch.hpp>)
#include <haldbatch.hpp>
#endif
#include <cstdio>

int main() {
  std::array<std::complex<double>, 5 * 12> x, one_by_one;
  for (std::size_t i = 0; i < x.size(); ++i) x[i] = {1.0 / static_cast<double>(i + 1), 0.5};
  one_by_one = x;
  for (std::size_t i = 0; i < x.size(); i += 12) haldgen::dft(haldgen::block<12>(&one_by_one[i]));
#ifdef HALDBATCH_HPP
  haldgen::dft(haldgen::rows<12>(x));
  const bool same = x == one_by_one;
#else
  const bool same = haldgen::kernel<double>::dft(12).size() == 12;
#endif
  std::printf("C++, haldgen %d: %s\n", HALDGEN_VERSION, same ? "as expected" : "wrong");
  return same ? 0 : 1;
}
