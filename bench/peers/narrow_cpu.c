/* The processor as the copy of FFTW held to 128-bit vectors sees it: nothing beyond SSE2. FFTW
 * asks these functions before it offers a codelet to its planner. */

#define NO_FEATURE(function) \
  int function(void);        \
  int function(void) { return 0; }

NO_FEATURE(narrow_fftw_have_simd_avx)
NO_FEATURE(narrow_fftw_have_simd_avx_128_fma)
NO_FEATURE(narrow_fftw_have_simd_avx2)
NO_FEATURE(narrow_fftw_have_simd_avx2_128)
NO_FEATURE(narrow_fftw_have_simd_avx512)
NO_FEATURE(narrow_fftwf_have_simd_avx)
NO_FEATURE(narrow_fftwf_have_simd_avx_128_fma)
NO_FEATURE(narrow_fftwf_have_simd_avx2)
NO_FEATURE(narrow_fftwf_have_simd_avx2_128)
NO_FEATURE(narrow_fftwf_have_simd_avx512)
