#include "haldgen_kernels.h"

int main(void) {
  static Cplx32 x[66];
  return haldgDFTFwd_CToC_66_32fc(x, x, haldScaleNone);
}
