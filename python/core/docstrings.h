/* What help() shows. The first line of each is read by inspect.signature. */
#ifndef HALDGEN_PYTHON_DOCSTRINGS_H
#define HALDGEN_PYTHON_DOCSTRINGS_H

#define COMMON_PARAMETERS                                                                         \
  "norm : {\"backward\", \"ortho\", \"forward\"}, optional\n"                                     \
  "    Scale, as below; None is \"backward\".\n"                                                  \
  "out : ndarray, optional\n"                                                                     \
  "    Array for the result, of its shape and of a type that it can be cast to. May be `a`, or\n" \
  "    overlap it.\n"

#define ONE_AXIS           \
  "axis : int, optional\n" \
  "    Axis to transform, the last by default.\n"

#define PRECISION                                                                                  \
  "\nfloat16, float32 and complex64 are computed in 32 bits, all others in 64; long doubles are\n" \
  "refused. Lengths that are not in haldgen.lengths() raise ValueError.\n"

#define FFT_DOC                                                                          \
  "fft(a, n=None, axis=-1, norm=None, out=None)\n--\n\n"                                 \
  "Discrete Fourier transform: s * sum over n of a[n] * exp(-2*pi*i*k*n/N).\n\n"         \
  "Parameters\n----------\n"                                                             \
  "a : array_like\n    Real or complex numbers.\n"                                       \
  "n : int, optional\n    Length: `a` is cut to it, or filled up with zeros.\n" ONE_AXIS \
      COMMON_PARAMETERS                                                                  \
  "\nThe scale s is 1 (\"backward\"), 1/sqrt(N) (\"ortho\") or 1/N (\"forward\").\n" PRECISION

#define IFFT_DOC                                                                         \
  "ifft(a, n=None, axis=-1, norm=None, out=None)\n--\n\n"                                \
  "Inverse discrete Fourier transform: s * sum over k of a[k] * exp(2*pi*i*k*n/N).\n\n"  \
  "Parameters\n----------\n"                                                             \
  "a : array_like\n    Real or complex numbers.\n"                                       \
  "n : int, optional\n    Length: `a` is cut to it, or filled up with zeros.\n" ONE_AXIS \
      COMMON_PARAMETERS                                                                  \
  "\nThe scale s is 1/N (\"backward\"), 1/sqrt(N) (\"ortho\") or 1 (\"forward\").\n" PRECISION

#define RFFT_DOC                                                                         \
  "rfft(a, n=None, axis=-1, norm=None, out=None)\n--\n\n"                                \
  "Discrete Fourier transform of real numbers: its bins 0 to N/2.\n\n"                   \
  "Parameters\n----------\n"                                                             \
  "a : array_like\n    Real numbers.\n"                                                  \
  "n : int, optional\n    Length: `a` is cut to it, or filled up with zeros.\n" ONE_AXIS \
      COMMON_PARAMETERS                                                                  \
  "\nThe scale is 1 (\"backward\"), 1/sqrt(N) (\"ortho\") or 1/N (\"forward\").\n" PRECISION

#define IRFFT_DOC                                                                           \
  "irfft(a, n=None, axis=-1, norm=None, out=None)\n--\n\n"                                  \
  "Inverse of rfft. Imaginary parts of bin 0 and, for even n, of bin n/2 are not read.\n\n" \
  "Parameters\n----------\n"                                                                \
  "a : array_like\n    Bins 0 to n/2; cut to them, or filled up with zeros.\n"              \
  "n : int, optional\n    Length of the result; 2*(m-1) for m bins by default.\n" ONE_AXIS  \
      COMMON_PARAMETERS                                                                     \
  "\nThe scale is 1/n (\"backward\"), 1/sqrt(n) (\"ortho\") or 1 (\"forward\").\n" PRECISION

#define FFT2_DOC                                                                              \
  "fft2(a, s=None, axes=(-2, -1), norm=None, out=None)\n--\n\n"                               \
  "Discrete Fourier transform in two dimensions: fft along axes[1], then along axes[0].\n\n"  \
  "Parameters\n----------\n"                                                                  \
  "a : array_like\n    Real or complex numbers.\n"                                            \
  "s : pair of ints, optional\n    Lengths along the axes: `a` is cut to them, or filled up " \
  "with zeros.\n"                                                                             \
  "axes : pair of ints, optional\n    Axes to transform.\n" COMMON_PARAMETERS                 \
  "\nThe scales of fft along both axes are multiplied.\n" PRECISION

#define IFFT2_DOC                                                                             \
  "ifft2(a, s=None, axes=(-2, -1), norm=None, out=None)\n--\n\n"                              \
  "Inverse of fft2: ifft along axes[1], then along axes[0].\n\n"                              \
  "Parameters\n----------\n"                                                                  \
  "a : array_like\n    Real or complex numbers.\n"                                            \
  "s : pair of ints, optional\n    Lengths along the axes: `a` is cut to them, or filled up " \
  "with zeros.\n"                                                                             \
  "axes : pair of ints, optional\n    Axes to transform.\n" COMMON_PARAMETERS                 \
  "\nThe scales of ifft along both axes are multiplied.\n" PRECISION

#define HARTLEY_DOC                                                                              \
  "hartley(a, axis=-1, norm=None, out=None)\n--\n\n"                                             \
  "Hartley transform: s * sum over n of a[n] * (cos(2*pi*k*n/N) + sin(2*pi*k*n/N)).\n\n"         \
  "Parameters\n----------\n"                                                                     \
  "a : array_like\n    Real numbers.\n" ONE_AXIS COMMON_PARAMETERS                               \
  "\nThe scale s is 1 (\"backward\"), 1/sqrt(N) (\"ortho\") or 1/N (\"forward\"): \"forward\"\n" \
  "undoes \"backward\", and \"ortho\" itself.\n" PRECISION

#define WHT_DOC                                                                                 \
  "wht(a, axis=-1, norm=None, out=None, *, order='natural')\n--\n\n"                            \
  "Walsh-Hadamard transform: s * sum over n of (-1)**popcount(k & n) * a[n].\n\n"               \
  "Parameters\n----------\n"                                                                    \
  "a : array_like\n    Real numbers.\n" ONE_AXIS COMMON_PARAMETERS                              \
  "order : {\"natural\", \"sequency\"}, optional\n"                                             \
  "    Order of the results: as in the sum, or by the number of sign changes of the row.\n"     \
  "\nThe scale s is 1 (\"backward\"), 1/sqrt(N) (\"ortho\") or 1/N (\"forward\"): in natural\n" \
  "order \"forward\" undoes \"backward\", and \"ortho\" itself; so they do in that of "         \
  "sequencies.\n" PRECISION

#define DCT4_DOC                                                                                 \
  "dct4(a, axis=-1, norm=None, out=None)\n--\n\n"                                                \
  "Cosine transform of type IV: s * sum over n of a[n] * cos(pi/N * (n + 1/2) * (k + 1/2)).\n\n" \
  "Parameters\n----------\n"                                                                     \
  "a : array_like\n    Real numbers.\n" ONE_AXIS COMMON_PARAMETERS                               \
  "\nThe scale s is that of scipy.fft.dct: 2 (\"backward\"), sqrt(2/N) (\"ortho\") or 1/N\n"     \
  "(\"forward\"). \"forward\" undoes \"backward\", and \"ortho\" itself.\n" PRECISION

#define LENGTHS_DOC                  \
  "lengths(function, dtype)\n--\n\n" \
  "The lengths of a function, by its name, for arrays of a type."

#define VECTOR_BITS_DOC   \
  "vector_bits()\n--\n\n" \
  "Bits of the vectors that are computed with: 128, 256 or 512. Results are the same."

#endif
