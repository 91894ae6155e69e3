#include <haldgen.h>
#include <stdio.h>

int main(void) {
  const float x[8] = {1, 2, 3, 4, 5, 6, 7, 9};
  float ccs[HALDGEN_CCS_SIZE(8)]; /* 10 floats */
  float perm[HALDGEN_PERM_SIZE(8)];

  haldgDFTFwd_RToCCS_8_32f(x, ccs, haldScaleNone);
  haldgDFTFwd_RToPerm_8_32f(x, perm, haldScaleNone);

  for (int k = 0; k < HALDGEN_BINS(8); ++k) { /* bins 0 to 4 */
    printf("X[%d] = %6.2f %+.2fi\n", k, ccs[2 * k], ccs[2 * k + 1]);
  }
  printf("Perm holds the last bin at 1: %.2f\n", perm[1]);

  float back[8]; /* and back to samples */
  haldgDFTInv_CCSToR_8_32f(ccs, back, haldScaleInvByN);
  printf("sample 7: %.2f\n", back[7]);
}
