#include <fftw3.h>
#include <haldgen.h>
#include <math.h>
#include <stdio.h>

/* Each pair of calls computes the same numbers; the largest difference is printed. */
static double differ(const double* a, const double* b, int n) {
  double most = 0;
  for (int i = 0; i < n; ++i) most = fmax(most, fabs(a[i] - b[i]));
  return most;
}

static void run(fftw_plan plan) {
  fftw_execute(plan);
  fftw_destroy_plan(plan);
}

int main(void) {
  enum { N = 8 };
  double x[2 * N], a[2 * N], b[2 * N], worst[7];
  for (int n = 0; n < 2 * N; ++n) x[n] = n * n % 7 - 2.5;
  fftw_complex* const in = (fftw_complex*)x;
  fftw_complex* const out = (fftw_complex*)a;

  run(fftw_plan_dft_1d(N, in, out, FFTW_FORWARD, FFTW_ESTIMATE));
  haldgDFTFwd_CToC_8_64fc((const Cplx64*)x, (Cplx64*)b, haldScaleNone);
  worst[0] = differ(a, b, 2 * N);

  run(fftw_plan_dft_1d(N, in, out, FFTW_BACKWARD, FFTW_ESTIMATE));
  haldgDFTInv_CToC_8_64fc((const Cplx64*)x, (Cplx64*)b, haldScaleNone);
  worst[1] = differ(a, b, 2 * N);

  run(fftw_plan_dft_r2c_1d(N, x, out, FFTW_ESTIMATE));
  haldgDFTFwd_RToCCS_8_64f(x, b, haldScaleNone);
  worst[2] = differ(a, b, HALDGEN_CCS_SIZE(N));

  run(fftw_plan_r2r_1d(N, x, a, FFTW_DHT, FFTW_ESTIMATE));
  haldgHartley_8_64f(x, b, haldScaleNone);
  worst[3] = differ(a, b, N);

  /* FFTW_R2HC has r0 r1 .. r4 i3 i2 i1; Pack has r0 r1 i1 r2 i2 r3 i3 r4. */
  run(fftw_plan_r2r_1d(N, x, a, FFTW_R2HC, FFTW_ESTIMATE));
  double pack[N];
  haldgDFTFwd_RToPack_8_64f(x, pack, haldScaleNone);
  b[0] = pack[0];
  for (int k = 1; k < N; ++k) b[k] = k <= N / 2 ? pack[2 * k - 1] : pack[2 * (N - k)];
  worst[4] = differ(a, b, N);

  /* REDFT11 is twice our DCT-IV. */
  run(fftw_plan_r2r_1d(N, x, a, FFTW_REDFT11, FFTW_ESTIMATE));
  Dct4State* state;
  if (haldgDCT4InitAlloc_64f(&state, N) != haldStatusOk) return 1;
  haldgDCT4_64f(x, b, state);
  haldgDCT4Free_64f(state);
  for (int k = 0; k < N; ++k) b[k] *= 2;
  worst[5] = differ(a, b, N);

  /* c2r destroys its input, so it comes last. */
  haldgDFTInv_CCSToR_8_64f(x, b, haldScaleNone);
  run(fftw_plan_dft_c2r_1d(N, in, a, FFTW_ESTIMATE));
  worst[6] = differ(a, b, N);

  for (int i = 0; i < 7; ++i) puts(worst[i] < 1e-13 ? "the same" : "different");
}
