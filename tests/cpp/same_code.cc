// Calls through haldgen.hpp, and with C defined through haldgen.h: both must become the same code.
#include <haldgen.hpp>

using namespace haldgen;
using Complex = std::complex<float>;

#ifdef C
#define EITHER(c, cpp) c
#else
#define EITHER(c, cpp) cpp
#endif

namespace {
template <class T>
auto c(std::complex<T>* x) {
  return reinterpret_cast<std::conditional_t<std::is_same_v<T, float>, Cplx32, Cplx64>*>(x);
}
}  // namespace

extern "C" {

using Complexes = std::array<Complex, 12>;
void in_place(Complexes& x) {
  EITHER(haldgDFTFwd_CToC_12_32fc(c(x.data()), c(x.data()), haldScaleFwdByN),
         dft(x, scale::forward_by_n));
}

void inverse(std::complex<double>* x, std::complex<double>* X) {
  EITHER(haldgDFTInv_CToC_61_64fc(c(x), c(X), haldScaleInvByN),
         inverse_dft(block<61>(x), block<61>(X)));
}

void packed(const float* x, half_spectrum<float, 25, packing::perm>& X) {
  EITHER(haldgDFTFwd_RToPerm_25_32f(x, X.elements().data(), haldScaleNone),
         real_dft(block<25>(x), X, scale::none));
}

void bins(double* x, std::complex<double>* X) {
  EITHER(haldgDFTInv_CCSToR_16_64f(reinterpret_cast<double*>(X), x, haldScaleInvByN),
         inverse_real_dft(block<9>(X), block<16>(x)));
}

void hadamard(const double* x, double* Y, wht_work<double, 1024>& work) {
  EITHER(haldgWHT_10_64f(x, Y, haldScaleNone, work.area()),
         wht(block<1024>(x), block<1024>(Y), work));
}

void looked_up(kernel<float>::Dft transform, Complex* x, Complex* X) {
  struct Pair {
    std::int32_t (*function)(const Cplx32*, Cplx32*, std::int32_t);
    std::size_t size;
  };
  EITHER(std::bit_cast<Pair>(transform).function(c(x), c(X), haldScaleNone),
         transform(x, X, scale::none));
}
}
