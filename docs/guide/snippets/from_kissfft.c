#include <haldgen.h>
#include <kiss_fft.h>
#include <kiss_fftr.h>
#include <math.h>
#include <stdio.h>

static const char* verdict(const float* a, const float* b, int n) {
  for (int i = 0; i < n; ++i) {
    if (!(fabsf(a[i] - b[i]) < 1e-4f)) return "different";
  }
  return "the same";
}

int main(void) {
  enum { N = 12 };
  float x[2 * N], a[2 * N], b[2 * N];
  for (int n = 0; n < 2 * N; ++n) x[n] = (float)(n * n % 7) - 2.5f;

  kiss_fft_cfg plan = kiss_fft_alloc(N, 0, NULL, NULL);
  kiss_fft(plan, (const kiss_fft_cpx*)x, (kiss_fft_cpx*)a);
  kiss_fft_free(plan);
  haldgDFTFwd_CToC_12_32fc((const Cplx32*)x, (Cplx32*)b, haldScaleNone);
  puts(verdict(a, b, 2 * N));

  kiss_fftr_cfg real = kiss_fftr_alloc(N, 0, NULL, NULL);
  kiss_fftr(real, x, (kiss_fft_cpx*)a);
  kiss_fft_free(real);
  haldgDFTFwd_RToCCS_12_32f(x, b, haldScaleNone);
  puts(verdict(a, b, HALDGEN_CCS_SIZE(N)));

  kiss_fftr_cfg back = kiss_fftr_alloc(N, 1, NULL, NULL);
  kiss_fftri(back, (const kiss_fft_cpx*)b, a); /* N times the samples */
  kiss_fft_free(back);
  haldgDFTInv_CCSToR_12_32f(b, b, haldScaleInvByN); /* the samples, in place */
  for (int n = 0; n < N; ++n) a[n] /= N;
  puts(verdict(a, b, N));
}
