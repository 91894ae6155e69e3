/* Kernels written into this project: a length that the library has, and one that it has not. */
#include "haldgen_kernels.h"

#include <math.h>
#include <stdio.h>

int main(void) {
  static Cplx32 x[120];
  static double samples[15], spectrum[16];
  const double turn = 2 * 3.14159265358979324;
  int wrong = 0;
  for (int n = 0; n < 120; ++n) {
    x[n].re = (float)cos(turn * 7 * n / 120);
    x[n].im = (float)sin(turn * 7 * n / 120);
  }
  for (int n = 0; n < 15; ++n) samples[n] = cos(turn * 4 * n / 15);
  wrong += haldgDFTFwd_CToC_120_32fc(x, x, haldScaleFwdByN) != haldStatusOk;
  wrong += haldgDFTFwd_RToCCS_15_64f(samples, spectrum, haldScaleNone) != haldStatusOk;
  for (int k = 0; k < 120; ++k) wrong += fabs(x[k].re - (k == 7)) > 1e-6 || fabs(x[k].im) > 1e-6;
  for (int k = 0; k < 8; ++k) {
    wrong +=
        fabs(spectrum[2 * k] - (k == 4 ? 7.5 : 0)) > 1e-13 || fabs(spectrum[2 * k + 1]) > 1e-13;
  }
  wrong += haldgDFTInv_CToC_120_32fc(x, 0, haldScaleNone) != haldStatusNullPointer;
  wrong += haldgDFTFwd_RToPerm_15_64f(samples, spectrum, 3) != haldStatusFlagError;
  printf("kernels to go: %d wrong\n", wrong);
  return wrong != 0;
}
