#include <haldgen.h>
#include <stdio.h>

int main(void) {
  Cplx32 x[16] = {{0, 0}}, X[16];
  for (int n = 0; n < 16; n += 4) x[n].re = 1; /* a pulse every 4 samples */

  if (haldgDFTFwd_CToC_16_32fc(x, X, haldScaleFwdByN) != haldStatusOk) return 1;

  for (int k = 0; k < 16; ++k) {
    if (X[k].re > 0.01f) printf("bin %2d: %.2f\n", k, X[k].re);
  }
}
