/**
 * @file haldgen.h
 * Small numeric transforms, one function for each transform, length and element type.
 *
 * There is no planning, no set-up and no hidden state: each function is a kernel of its own, made
 * for its length, which can be called as soon as the library is loaded.
 *
 * What holds for every transform below, unless its family says otherwise:
 * - Arrays are the caller's. src is only read. Any alignment of an element's own float type will
 *   do (4 bytes for Cplx32, 8 bytes for Cplx64), and the alignment changes no bit of a result.
 * - dst may be the same array as src. The arrays must not overlap in any other way.
 * - Any number of threads may call at once, also with one src. Nothing is allocated or locked.
 * - The same input gives the same bits on every call and on every machine.
 * - A failure is only returned as a status, and then dst is not written.
 *
 * This file is written from frame/families.cc by haldgen-framegen; do not edit it.
 */
#ifndef HALDGEN_H
#define HALDGEN_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Complex element of two 32-bit floats. */
typedef struct {
  float re; /**< real part */
  float im; /**< imaginary part */
} Cplx32;

/** Complex element of two 64-bit floats. */
typedef struct {
  double re; /**< real part */
  double im; /**< imaginary part */
} Cplx64;

/** The statuses: the library returns no others. */
enum {
  haldStatusOk = 0,           /**< success */
  haldStatusBadArgument = -5, /**< a state that no set-up function has made */
  haldStatusSizeError = -6,   /**< a length or order that the function does not have */
  haldStatusNullPointer = -8, /**< a required pointer is null */
  haldStatusFlagError = -16   /**< a scaling flag that is none of the four values */
};

/**
 * The scaling flags: a transform takes exactly one of them; sums of flags are refused. They select
 * the scale s, which multiplies every output, in a transform of N points:
 *
 *     flag              | forward DFT | inverse DFT | no direction
 *     ------------------|-------------|-------------|-------------
 *     haldScaleFwdByN   | 1/N         | 1           | 1/N
 *     haldScaleInvByN   | 1           | 1/N         | 1/N
 *     haldScaleBySqrtN  | 1/sqrt(N)   | 1/sqrt(N)   | 1/sqrt(N)
 *     haldScaleNone     | 1           | 1           | 1
 *
 * A forward and an inverse DFT with the same one of the first three flags undo each other.
 */
enum {
  haldScaleFwdByN = 1,  /**< the forward transform divides by N */
  haldScaleInvByN = 2,  /**< the inverse transform divides by N */
  haldScaleBySqrtN = 4, /**< both transforms divide by the square root of N */
  haldScaleNone = 8     /**< neither transform scales */
};

/** Which build of the library this is. */
typedef struct {
  int32_t majorVersion;    /**< major release */
  int32_t minorVersion;    /**< minor release */
  int32_t updateLevel;     /**< update within the minor release */
  int32_t sourceRevision;  /**< revision of the sources */
  char processorTag[4];    /**< processor class of the kernels, padded with zero bytes */
  const char* name;        /**< library, instruction set and processor class */
  const char* versionText; /**< the four numbers as text */
  const char* buildDate;   /**< date of the build */
} LibraryVersion;

/** A planned DCT-IV; what is in it concerns the library alone. */
typedef struct Dct4State Dct4State;

/**
 * @name Forward complex DFT, fixed length
 *
 *     X[k] = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k, n = 0..N-1
 *
 * The length N is the number in the name.
 *
 * @param src     N complex elements x[0..N-1]; only read.
 * @param dst     N complex elements X[0..N-1].
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
 *         the four values; else haldStatusOk. dst is written only if haldStatusOk is returned.
 * @{
 */
int32_t haldgDFTFwd_CToC_2_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_3_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_4_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_5_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_6_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_7_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_8_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_9_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_10_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_11_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_12_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_13_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_14_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_15_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_16_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_17_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_18_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_19_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_20_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_21_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_22_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_23_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_24_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_25_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_26_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_27_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_28_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_29_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_30_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_31_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_32_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_33_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_34_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_35_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_36_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_37_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_38_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_39_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_40_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_41_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_42_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_43_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_44_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_45_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_46_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_47_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_48_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_49_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_50_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_51_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_52_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_53_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_54_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_55_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_56_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_57_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_58_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_59_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_60_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_61_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_62_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_63_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_64_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_2_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_3_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_4_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_5_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_6_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_7_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_8_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_9_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_10_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_11_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_12_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_13_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_14_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_15_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_16_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_17_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_18_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_19_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_20_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_21_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_22_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_23_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_24_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_25_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_26_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_27_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_28_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_29_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_30_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_31_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_32_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_33_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_34_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_35_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_36_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_37_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_38_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_39_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_40_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_41_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_42_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_43_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_44_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_45_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_46_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_47_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_48_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_49_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_50_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_51_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_52_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_53_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_54_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_55_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_56_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_57_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_58_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_59_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_60_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_61_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_62_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_63_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTFwd_CToC_64_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
/** @} */

/**
 * @name Forward complex DFT, general
 *
 *     X[k] = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k, n = 0..N-1
 *
 * @param src     N complex elements x[0..N-1]; only read.
 * @param dst     N complex elements X[0..N-1].
 * @param length  N, for lengths known at run time only: any length that has a function of its own.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError if no function has this length, whatever the other arguments are;
 *         else what the function of this length returns.
 * @{
 */
int32_t haldgDFTFwd_CToC_32fc(const Cplx32* src, Cplx32* dst, int32_t length, int32_t flag);
int32_t haldgDFTFwd_CToC_64fc(const Cplx64* src, Cplx64* dst, int32_t length, int32_t flag);
/** @} */

/**
 * @name Inverse complex DFT, fixed length
 *
 *     X[k] = s * sum over n of x[n] * exp(+2*pi*i*k*n/N),   k, n = 0..N-1
 *
 * The length N is the number in the name.
 *
 * @param src     N complex elements x[0..N-1]; only read.
 * @param dst     N complex elements X[0..N-1].
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
 *         the four values; else haldStatusOk. dst is written only if haldStatusOk is returned.
 * @{
 */
int32_t haldgDFTInv_CToC_2_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_3_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_4_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_5_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_6_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_7_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_8_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_9_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_10_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_11_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_12_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_13_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_14_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_15_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_16_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_17_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_18_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_19_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_20_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_21_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_22_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_23_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_24_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_25_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_26_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_27_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_28_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_29_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_30_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_31_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_32_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_33_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_34_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_35_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_36_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_37_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_38_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_39_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_40_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_41_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_42_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_43_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_44_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_45_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_46_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_47_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_48_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_49_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_50_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_51_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_52_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_53_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_54_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_55_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_56_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_57_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_58_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_59_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_60_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_61_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_62_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_63_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_64_32fc(const Cplx32* src, Cplx32* dst, int32_t flag);
int32_t haldgDFTInv_CToC_2_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_3_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_4_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_5_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_6_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_7_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_8_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_9_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_10_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_11_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_12_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_13_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_14_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_15_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_16_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_17_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_18_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_19_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_20_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_21_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_22_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_23_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_24_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_25_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_26_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_27_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_28_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_29_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_30_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_31_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_32_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_33_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_34_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_35_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_36_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_37_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_38_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_39_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_40_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_41_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_42_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_43_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_44_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_45_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_46_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_47_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_48_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_49_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_50_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_51_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_52_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_53_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_54_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_55_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_56_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_57_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_58_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_59_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_60_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_61_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_62_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_63_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
int32_t haldgDFTInv_CToC_64_64fc(const Cplx64* src, Cplx64* dst, int32_t flag);
/** @} */

/**
 * @name Inverse complex DFT, general
 *
 *     X[k] = s * sum over n of x[n] * exp(+2*pi*i*k*n/N),   k, n = 0..N-1
 *
 * @param src     N complex elements x[0..N-1]; only read.
 * @param dst     N complex elements X[0..N-1].
 * @param length  N, for lengths known at run time only: any length that has a function of its own.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError if no function has this length, whatever the other arguments are;
 *         else what the function of this length returns.
 * @{
 */
int32_t haldgDFTInv_CToC_32fc(const Cplx32* src, Cplx32* dst, int32_t length, int32_t flag);
int32_t haldgDFTInv_CToC_64fc(const Cplx64* src, Cplx64* dst, int32_t length, int32_t flag);
/** @} */

/**
 * @name DCT-IV, size of the state
 *
 * Lengths are the powers of two from 2 to 2^26 (_32f) or 2^25 (_64f). Accepted as well, but no
 * DCT-IV, are numbers 2^k + 1 from 33 (_32f) or 9 (_64f) to one more than those limits: their
 * transform writes 2^k outputs. Beyond, set-up refuses every length; sizes are then sums that wrap
 * around in 32 bits, and are refused only where they come out negative.
 *
 * @param length  N.
 * @param size    receives the number of bytes of a state of this length.
 * @return haldStatusNullPointer if size is null, whatever the length is; else haldStatusSizeError
 *         if there is no such length; else haldStatusOk. size is written only if haldStatusOk is
 *         returned.
 * @{
 */
int32_t haldgDCT4GetSize_32f(int32_t length, int32_t* size);
int32_t haldgDCT4GetSize_64f(int32_t length, int32_t* size);
/** @} */

/**
 * @name DCT-IV, set-up in a buffer of the caller
 *
 * Builds a state, with all its tables. The state lies in the buffer, generally not at its start,
 * and lasts until the buffer is dropped; there is nothing to release besides.
 *
 * @param state   receives the state.
 * @param length  N.
 * @param buffer  at least as many bytes as the size query says for this length and element type,
 *                at any alignment.
 * @return haldStatusNullPointer if state or buffer is null; else haldStatusSizeError if there is no
 *         such length; else haldStatusOk. Nothing is written unless haldStatusOk is returned.
 * @{
 */
int32_t haldgDCT4Init_32f(Dct4State** state, int32_t length, uint8_t* buffer);
int32_t haldgDCT4Init_64f(Dct4State** state, int32_t length, uint8_t* buffer);
/** @} */

/**
 * @name DCT-IV, set-up with allocation
 *
 * The same in memory from haldMalloc; the state must be released.
 *
 * @param state   receives the state.
 * @param length  N.
 * @return haldStatusNullPointer if state is null; else haldStatusSizeError if there is no such
 *         length; else haldStatusNullPointer if there is no memory; else haldStatusOk. state is
 *         written only if haldStatusOk is returned.
 * @{
 */
int32_t haldgDCT4InitAlloc_32f(Dct4State** state, int32_t length);
int32_t haldgDCT4InitAlloc_64f(Dct4State** state, int32_t length);
/** @} */

/**
 * @name DCT-IV, release
 *
 * Releases a state that was set up with allocation. Not for states in a buffer of the caller.
 *
 * @param state   the state.
 * @return haldStatusNullPointer if state is null; else haldStatusOk.
 * @{
 */
int32_t haldgDCT4Free_32f(Dct4State* state);
int32_t haldgDCT4Free_64f(Dct4State* state);
/** @} */

/**
 * @name DCT-IV, transform
 *
 *     y[k] = sum over n of x[n] * cos(pi/N * (n + 1/2) * (k + 1/2)),   k, n = 0..N-1
 *
 * There is no scale: applied twice, the transform multiplies by N/2. From length 64 up a state
 * holds scratch memory and can serve one call at a time; different states are independent.
 *
 * @param src     N elements x[0..N-1]; only read.
 * @param dst     N elements y[0..N-1].
 * @param state   a state of length N for this element type.
 * @return haldStatusNullPointer if state, src or dst is null; else haldStatusBadArgument if state
 *         is not a state; else haldStatusOk. dst is written only if haldStatusOk is returned.
 * @{
 */
int32_t haldgDCT4_32f(const float* src, float* dst, Dct4State* state);
int32_t haldgDCT4_64f(const double* src, double* dst, Dct4State* state);
/** @} */

/**
 * @name Version of the library
 *
 * @return The record of this build: always the same pointer, never null. It belongs to the library;
 *         do not change or free it.
 * @{
 */
const LibraryVersion* haldgenGetLibVersion(void);
/** @} */

#ifdef __cplusplus
}
#endif

#endif /* HALDGEN_H */
