#include <haldbatch.h>
#include <stdio.h>

int main(void) {
  enum { kPoints = 12, kCount = 100 };
  static Cplx32 x[kPoints * kCount], X[kPoints * kCount];
  for (int t = 0; t < kCount; ++t) x[kPoints * t].re = (float)t; /* a pulse in each row */

  /* Element n of transform t is at step * n + dist * t: rows in, columns out. */
  haldbDFTFwd_CToC_32fc(x, 1, kPoints, X, kCount, 1, kPoints, kCount, haldScaleNone);

  printf("bin 3 of row 42: %.0f\n", X[3 * kCount + 42].re);
  return haldbGetVectorBits() < 128;
}
