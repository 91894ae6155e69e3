// What must not compile, case by case; first in each what the one error of the compiler must say.
#include <haldbatch.hpp>
#include <vector>

using namespace haldgen;
using Complex = std::complex<float>;

void refused(std::vector<Complex>& x) {
  const auto sixteen = block<16>(x.data());
  [[maybe_unused]] std::array<float, 1024> reals;
#if CASE == 0
  // nothing
  dft(sixteen);
#elif CASE == 1
  // no transform of this length. Forward complex DFT: 2..64 points
  dft(block<65>(x.data()));
#elif CASE == 2
  // no transform of this length. Walsh-Hadamard transform: 2 to the power of 1..13 points
  wht(block<1000>(reals.data()));
#elif CASE == 3
  // no transform of this length. Forward real DFT to CCS: 2..64 points
  half_spectrum<float, 65> spectrum;
#elif CASE == 4
  // a length is not in its type
  dft(x);
#elif CASE == 5
  // the lengths of source and destination do not belong together
  dft(sixteen, block<15>(x.data()));
#elif CASE == 6
  // source or destination has elements of another type
  inverse_dft(sixteen, block<16>(reals.data()));
#elif CASE == 7
  // elements are float, double or std::complex
  hartley(std::array{1, 2, 3});
#elif CASE == 8
  // from 256 points on pass a wht_work<T, N>
  wht(reals);
#elif CASE == 9
  // for another float type or for fewer points
  wht_work<float, 512> work;
  wht(reals, work);
#elif CASE == 10
  // the half spectrum is one of another number of samples
  inverse_real_dft(half_spectrum<float, 17>{}, block<16>(reals.data()));
#elif CASE == 11
  // no match
  dct4<double> transform(1024);
  transform(reals, reals);
#elif CASE == 12
  // no matching function
  dft(sixteen, 1);
#elif CASE == 13
  // nodiscard
  dct4<float>().set_up(1024);
#elif CASE == 14
  // no transform of this length. Forward complex DFT: 2..64 points
  dft(rows<65>(x));
#endif
}
