#include <haldgen.h>
#include <stdalign.h>
#include <stdio.h>

int main(void) {
  Cplx32 block[12] = {{1, 0}};
  haldgDFTFwd_CToC_12_32fc(block, block, haldScaleNone); /* in place: dst is src */

  /* A large Walsh-Hadamard transform: bring the work area, and nothing is allocated. */
  static double x[1024] = {1};
  alignas(16) static uint8_t work[8192];
  uint32_t work_bytes;
  haldgWHTGetBufferSize_64f(10, &work_bytes); /* by order: 2^10 points */
  if (work_bytes > sizeof work) return 1;
  haldgWHT_10_64f(x, x, haldScaleNone, work);

  /* The DCT-IV: a state in memory of yours, one for each thread. */
  static float y[256] = {1};
  static uint8_t memory[16384];
  Dct4State* state;
  int32_t state_bytes;
  haldgDCT4GetSize_32f(256, &state_bytes);
  if (state_bytes > (int32_t)sizeof memory) return 1;
  if (haldgDCT4Init_32f(&state, 256, memory) != haldStatusOk) return 1;
  haldgDCT4_32f(y, y, state);

  printf("%.0f %.0f %.4f\n", block[7].re, x[1023], y[0]);

  /* What goes wrong is a status, and nothing is written. */
  puts(haldStatusText(haldgDFTFwd_CToC_32fc(block, block, 65, haldScaleNone)));
}
