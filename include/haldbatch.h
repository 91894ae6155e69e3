/**
 * @file haldbatch.h
 * Many small transforms in one call: count transforms of one length, strided on both sides, with
 * the bits of as many calls of the functions in haldgen.h.
 *
 * The library is made for vectors of 128, 256 and 512 bits; the dynamic loader takes the build for
 * the best that the processor has. All of them give the same bits: those of the single transform,
 * for each of the transforms, wherever it lies and however many there are besides. What a NaN holds
 * besides being one is not promised.
 *
 * What holds for every function below:
 * - Steps and distances. Element n of transform t is src[n * srcStep + t * srcDist], and its result
 *   k goes to dst[k * dstStep + t * dstDist], where n and k count the elements of one transform as
 *   its single function has them in its arrays. An element is what src and dst point to: a complex
 *   number, a float; of an array in CCS format one bin, that is two floats, so bin k of transform t
 *   is dst[k * dstStep + t * dstDist]. Of arrays in Pack and Perm format it is one float.
 *   Steps and distances may have any value, negative ones included, and those of src may be zero.
 *   Different elements of dst must not overlap.
 *       step 1, distance N      rows: transforms one behind the other
 *       step M, distance 1      columns: M transforms side by side, or columns of a matrix
 * - dst may be the same array as src if neighbouring elements lie as many bytes apart in src as in
 *   dst, and neighbouring transforms, too. So samples that become a half spectrum in CCS format in
 *   place need rows with room for the bins. The arrays must not overlap in any other way.
 * - Nothing but the elements named is read or written, not even between them.
 * - Complex arrays need the alignment of their floats (4 bytes for Cplx32, 8 bytes for Cplx64).
 *   Real arrays, and with them those in Pack, Perm and CCS format, take any address at all.
 * - There is no planning, no hidden state, no thread and no lock. Nothing is allocated: what is no
 *   row and no column passes through the stack, of which a call takes up to 64 KiB. Any number of
 *   threads may call at once: a batch may be split into calls with smaller counts in any way, and
 *   its bits stay the same.
 * - A failure is only returned as a status, and then dst is not written. With more than one reason,
 *   the status is the first of
 *       haldStatusSizeError      length, or order, is none that the single functions have
 *       haldStatusBadArgument    count is negative
 *       haldStatusNullPointer    src or dst is null
 *       haldStatusFlagError      flag is none of the four values
 *   With a count of 0, which is haldStatusOk if nothing else is wrong, nothing is read or written.
 *
 * This file is written by haldgen-framegen; do not edit it.
 */
#ifndef HALDBATCH_H
#define HALDBATCH_H

#include <stddef.h>
#include <stdint.h>

#include "haldgen.h"

/* clang-format off */

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Bits of the vectors of the build that has been loaded: 128, 256 or 512.
 */
int32_t haldbGetVectorBits(void) HALDGEN_NOTHROW;

/**
 * @name Forward complex DFT, batch
 *
 *     X[k] = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k, n = 0..N-1
 *
 * @param src      of the first transform: the first of N complex numbers; only read.
 * @param srcStep  from an element of a transform to its next, in elements of src.
 * @param srcDist  from an element of a transform to that of the next transform, likewise.
 * @param dst      of the first transform: the first of N complex numbers.
 * @param dstStep  as srcStep, in elements of dst.
 * @param dstDist  as srcDist, likewise.
 * @param length   N: 2..64.
 * @param count    number of transforms, 0 or more.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError, haldStatusBadArgument, haldStatusNullPointer or
 *         haldStatusFlagError, in this order, as the head of this file says; else
 *         haldStatusOk.
 * @{
 */
/** Forward complex DFT, batch, 32-bit floats; scaled as flag says. */
int32_t haldbDFTFwd_CToC_32fc(const Cplx32* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                              Cplx32* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                              int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT, batch, 64-bit floats; scaled as flag says. */
int32_t haldbDFTFwd_CToC_64fc(const Cplx64* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                              Cplx64* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                              int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Inverse complex DFT, batch
 *
 *     X[k] = s * sum over n of x[n] * exp(+2*pi*i*k*n/N),   k, n = 0..N-1
 *
 * @param src      of the first transform: the first of N complex numbers; only read.
 * @param srcStep  from an element of a transform to its next, in elements of src.
 * @param srcDist  from an element of a transform to that of the next transform, likewise.
 * @param dst      of the first transform: the first of N complex numbers.
 * @param dstStep  as srcStep, in elements of dst.
 * @param dstDist  as srcDist, likewise.
 * @param length   N: 2..64.
 * @param count    number of transforms, 0 or more.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError, haldStatusBadArgument, haldStatusNullPointer or
 *         haldStatusFlagError, in this order, as the head of this file says; else
 *         haldStatusOk.
 * @{
 */
/** Inverse complex DFT, batch, 32-bit floats; scaled as flag says. */
int32_t haldbDFTInv_CToC_32fc(const Cplx32* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                              Cplx32* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                              int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT, batch, 64-bit floats; scaled as flag says. */
int32_t haldbDFTInv_CToC_64fc(const Cplx64* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                              Cplx64* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                              int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Forward real DFT to CCS, batch
 *
 *     R(k) + i*I(k) = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k = 0..N/2
 *
 * @param src      of the first transform: the first of N floats of the type; only read.
 * @param srcStep  from an element of a transform to its next, in elements of src.
 * @param srcDist  from an element of a transform to that of the next transform, likewise.
 * @param dst      of the first transform: the first of N/2 + 1 bins, rounded down.
 * @param dstStep  as srcStep, in elements of dst.
 * @param dstDist  as srcDist, likewise.
 * @param length   N: 2..64.
 * @param count    number of transforms, 0 or more.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError, haldStatusBadArgument, haldStatusNullPointer or
 *         haldStatusFlagError, in this order, as the head of this file says; else
 *         haldStatusOk.
 * @{
 */
/** Forward real DFT to CCS, batch, 32-bit floats; scaled as flag says. */
int32_t haldbDFTFwd_RToCCS_32f(const float* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                               Cplx32* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                               int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS, batch, 64-bit floats; scaled as flag says. */
int32_t haldbDFTFwd_RToCCS_64f(const double* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                               Cplx64* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                               int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Forward real DFT to Pack, batch
 *
 *     R(k) + i*I(k) = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k = 0..N/2
 *
 * @param src      of the first transform: the first of N floats of the type; only read.
 * @param srcStep  from an element of a transform to its next, in elements of src.
 * @param srcDist  from an element of a transform to that of the next transform, likewise.
 * @param dst      of the first transform: the first of N floats of the type.
 * @param dstStep  as srcStep, in elements of dst.
 * @param dstDist  as srcDist, likewise.
 * @param length   N: 2..64.
 * @param count    number of transforms, 0 or more.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError, haldStatusBadArgument, haldStatusNullPointer or
 *         haldStatusFlagError, in this order, as the head of this file says; else
 *         haldStatusOk.
 * @{
 */
/** Forward real DFT to Pack, batch, 32-bit floats; scaled as flag says. */
int32_t haldbDFTFwd_RToPack_32f(const float* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                                float* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                                int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack, batch, 64-bit floats; scaled as flag says. */
int32_t haldbDFTFwd_RToPack_64f(const double* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                                double* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                                int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Forward real DFT to Perm, batch
 *
 *     R(k) + i*I(k) = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k = 0..N/2
 *
 * @param src      of the first transform: the first of N floats of the type; only read.
 * @param srcStep  from an element of a transform to its next, in elements of src.
 * @param srcDist  from an element of a transform to that of the next transform, likewise.
 * @param dst      of the first transform: the first of N floats of the type.
 * @param dstStep  as srcStep, in elements of dst.
 * @param dstDist  as srcDist, likewise.
 * @param length   N: 2..64.
 * @param count    number of transforms, 0 or more.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError, haldStatusBadArgument, haldStatusNullPointer or
 *         haldStatusFlagError, in this order, as the head of this file says; else
 *         haldStatusOk.
 * @{
 */
/** Forward real DFT to Perm, batch, 32-bit floats; scaled as flag says. */
int32_t haldbDFTFwd_RToPerm_32f(const float* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                                float* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                                int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm, batch, 64-bit floats; scaled as flag says. */
int32_t haldbDFTFwd_RToPerm_64f(const double* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                                double* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                                int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Inverse real DFT from CCS, batch
 *
 *     x[n] = s * (R(0) + (-1)^n * R(N/2) + 2 * sum over k = 1..q of (R(k) * cos(2*pi*k*n/N)
 *                                                                   - I(k) * sin(2*pi*k*n/N)))
 *
 * The term of R(N/2) is there for even N only. Whatever the numbers, they are taken as half of a
 * conjugate-symmetric spectrum.
 *
 * @param src      of the first transform: the first of N/2 + 1 bins, rounded down; only read.
 * @param srcStep  from an element of a transform to its next, in elements of src.
 * @param srcDist  from an element of a transform to that of the next transform, likewise.
 * @param dst      of the first transform: the first of N floats of the type.
 * @param dstStep  as srcStep, in elements of dst.
 * @param dstDist  as srcDist, likewise.
 * @param length   N: 2..64.
 * @param count    number of transforms, 0 or more.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError, haldStatusBadArgument, haldStatusNullPointer or
 *         haldStatusFlagError, in this order, as the head of this file says; else
 *         haldStatusOk.
 * @{
 */
/** Inverse real DFT from CCS, batch, 32-bit floats; scaled as flag says. */
int32_t haldbDFTInv_CCSToR_32f(const Cplx32* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                               float* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                               int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS, batch, 64-bit floats; scaled as flag says. */
int32_t haldbDFTInv_CCSToR_64f(const Cplx64* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                               double* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                               int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Inverse real DFT from Pack, batch
 *
 *     x[n] = s * (R(0) + (-1)^n * R(N/2) + 2 * sum over k = 1..q of (R(k) * cos(2*pi*k*n/N)
 *                                                                   - I(k) * sin(2*pi*k*n/N)))
 *
 * The term of R(N/2) is there for even N only. Whatever the numbers, they are taken as half of a
 * conjugate-symmetric spectrum.
 *
 * @param src      of the first transform: the first of N floats of the type; only read.
 * @param srcStep  from an element of a transform to its next, in elements of src.
 * @param srcDist  from an element of a transform to that of the next transform, likewise.
 * @param dst      of the first transform: the first of N floats of the type.
 * @param dstStep  as srcStep, in elements of dst.
 * @param dstDist  as srcDist, likewise.
 * @param length   N: 2..64.
 * @param count    number of transforms, 0 or more.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError, haldStatusBadArgument, haldStatusNullPointer or
 *         haldStatusFlagError, in this order, as the head of this file says; else
 *         haldStatusOk.
 * @{
 */
/** Inverse real DFT from Pack, batch, 32-bit floats; scaled as flag says. */
int32_t haldbDFTInv_PackToR_32f(const float* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                                float* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                                int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack, batch, 64-bit floats; scaled as flag says. */
int32_t haldbDFTInv_PackToR_64f(const double* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                                double* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                                int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Inverse real DFT from Perm, batch
 *
 *     x[n] = s * (R(0) + (-1)^n * R(N/2) + 2 * sum over k = 1..q of (R(k) * cos(2*pi*k*n/N)
 *                                                                   - I(k) * sin(2*pi*k*n/N)))
 *
 * The term of R(N/2) is there for even N only. Whatever the numbers, they are taken as half of a
 * conjugate-symmetric spectrum.
 *
 * @param src      of the first transform: the first of N floats of the type; only read.
 * @param srcStep  from an element of a transform to its next, in elements of src.
 * @param srcDist  from an element of a transform to that of the next transform, likewise.
 * @param dst      of the first transform: the first of N floats of the type.
 * @param dstStep  as srcStep, in elements of dst.
 * @param dstDist  as srcDist, likewise.
 * @param length   N: 2..64.
 * @param count    number of transforms, 0 or more.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError, haldStatusBadArgument, haldStatusNullPointer or
 *         haldStatusFlagError, in this order, as the head of this file says; else
 *         haldStatusOk.
 * @{
 */
/** Inverse real DFT from Perm, batch, 32-bit floats; scaled as flag says. */
int32_t haldbDFTInv_PermToR_32f(const float* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                                float* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                                int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm, batch, 64-bit floats; scaled as flag says. */
int32_t haldbDFTInv_PermToR_64f(const double* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                                double* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                                int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Hartley transform, batch
 *
 *     H[k] = s * sum over n of x[n] * (cos(2*pi*k*n/N) + sin(2*pi*k*n/N)),   k, n = 0..N-1
 *
 * @param src      of the first transform: the first of N floats of the type; only read.
 * @param srcStep  from an element of a transform to its next, in elements of src.
 * @param srcDist  from an element of a transform to that of the next transform, likewise.
 * @param dst      of the first transform: the first of N floats of the type.
 * @param dstStep  as srcStep, in elements of dst.
 * @param dstDist  as srcDist, likewise.
 * @param length   N: 2..64.
 * @param count    number of transforms, 0 or more.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError, haldStatusBadArgument, haldStatusNullPointer or
 *         haldStatusFlagError, in this order, as the head of this file says; else
 *         haldStatusOk.
 * @{
 */
/** Hartley transform, batch, 32-bit floats; scaled as flag says. */
int32_t haldbHartley_32f(const float* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                         float* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                         int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform, batch, 64-bit floats; scaled as flag says. */
int32_t haldbHartley_64f(const double* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                         double* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                         int32_t length, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Walsh-Hadamard transform, batch
 *
 *     Y[k] = s * sum over n of (-1)^popcount(k & n) * x[n],   k, n = 0..N-1,   N = 2^order
 *
 * There is no work area: orders from 8 on are two passes, between which values rest in dst.
 *
 * @param src      of the first transform: the first of N floats of the type; only read.
 * @param srcStep  from an element of a transform to its next, in elements of src.
 * @param srcDist  from an element of a transform to that of the next transform, likewise.
 * @param dst      of the first transform: the first of N floats of the type.
 * @param dstStep  as srcStep, in elements of dst.
 * @param dstDist  as srcDist, likewise.
 * @param order    N is two to its power: 1 to 13.
 * @param count    number of transforms, 0 or more.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError, haldStatusBadArgument, haldStatusNullPointer or
 *         haldStatusFlagError, in this order, as the head of this file says; else
 *         haldStatusOk.
 * @{
 */
/** Walsh-Hadamard transform, batch, 32-bit floats; scaled as flag says. */
int32_t haldbWHT_32f(const float* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                     float* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                     int32_t order, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** Walsh-Hadamard transform, batch, 64-bit floats; scaled as flag says. */
int32_t haldbWHT_64f(const double* src, ptrdiff_t srcStep, ptrdiff_t srcDist,
                     double* dst, ptrdiff_t dstStep, ptrdiff_t dstDist,
                     int32_t order, ptrdiff_t count, int32_t flag) HALDGEN_NOTHROW;
/** @} */

#ifdef __cplusplus
}
#endif

#endif /* HALDBATCH_H */
