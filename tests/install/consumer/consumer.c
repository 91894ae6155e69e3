/* Transforms a complex exponential with the installed library: all of it must land in one bin. */
#include <haldcore.h>
#include <haldgen.h>
#include <math.h>
#include <stdio.h>

enum { length = 8, bin = 3 };

int main(void) {
  Cplx64* x = haldMalloc(length * (int32_t)sizeof(Cplx64));
  if (x == NULL) return 1;
  for (int n = 0; n < length; ++n) {
    const double phase = 2 * 3.14159265358979324 * bin * n / length;
    x[n].re = cos(phase);
    x[n].im = sin(phase);
  }
  const int32_t status = haldgDFTFwd_CToC_64fc(x, x, length, haldScaleFwdByN);
  int wrong = 0;
  for (int k = 0; k < length; ++k) {
    wrong += fabs(x[k].re - (k == bin)) > 1e-14 || fabs(x[k].im) > 1e-14;
  }
  haldFree(x);
  printf("%s: status %d, %d wrong bins\n", haldgenGetLibVersion()->name, (int)status, wrong);
  return status == haldStatusOk && wrong == 0 ? 0 : 1;
}
