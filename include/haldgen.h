/**
 * @file haldgen.h
 * Small numeric transforms, one function for each transform, length and element type.
 *
 * There is no planning, no set-up and no hidden state: each function is a kernel of its own, made
 * for its length, which can be called as soon as the library is loaded. The exception is the
 * DCT-IV, whose state is set up first.
 *
 * What holds for every transform below, unless its family says otherwise:
 * - Arrays are the caller's. src is only read. Any alignment of an element's own float type will
 *   do (4 bytes for Cplx32, 8 bytes for Cplx64), and the alignment changes no bit of a result.
 *   The transforms of real arrays take any address at all.
 * - dst may be the same array as src. The arrays must not overlap in any other way.
 * - Any number of threads may call at once, also with one src. Nothing is locked, and nothing is
 *   allocated, but for the work area of a large Walsh-Hadamard transform called without one.
 * - The same input gives the same bits on every call and on every machine.
 * - A failure is only returned as a status, and then dst is not written. Nothing is thrown; nor may
 *   a haldMalloc throw that a program puts in the place of haldcore's.
 *
 * haldgen.hpp is the same for C++20: lengths in types, std::complex, no status where nothing fails.
 *
 * This file is written by haldgen-framegen; do not edit it.
 */
#ifndef HALDGEN_H
#define HALDGEN_H

#include <stdint.h>

/** Major release of the library that this header belongs to. */
#define HALDGEN_VERSION_MAJOR 8
/** Minor release. */
#define HALDGEN_VERSION_MINOR 1
/** Update within the minor release. */
#define HALDGEN_VERSION_UPDATE 0
/** The three in one number that grows with them: 80100 is version 8.1.0. */
#define HALDGEN_VERSION \
  (HALDGEN_VERSION_MAJOR * 10000 + HALDGEN_VERSION_MINOR * 100 + HALDGEN_VERSION_UPDATE)

/**
 * Version of the bits. Libraries with the same number give the same results, to the bit and the
 * sign of a zero. What a NaN holds besides being one is not promised.
 */
#define HALDGEN_BITS_VERSION 1

/** On the functions of the library: no exception leaves them. Their types are as without it. */
#if defined(__GNUC__)
#define HALDGEN_NOTHROW __attribute__((nothrow))
#else
#define HALDGEN_NOTHROW
#endif

/** On the function whose body stands in this header. */
#if defined(__cplusplus)
#define HALDGEN_STATIC_INLINE inline
#elif defined(__STDC_VERSION__) && __STDC_VERSION__ >= 199901L
#define HALDGEN_STATIC_INLINE static inline
#elif defined(__GNUC__)
#define HALDGEN_STATIC_INLINE static __inline__
#else
#define HALDGEN_STATIC_INLINE static
#endif

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

/** What a status means, as a text to print: of any number, never null. */
HALDGEN_STATIC_INLINE const char* haldStatusText(int32_t status) {
  switch (status) {
    case haldStatusOk:
      return "success";
    case haldStatusBadArgument:
      return "not a state that was set up, or a negative count";
    case haldStatusSizeError:
      return "no function of this length or order";
    case haldStatusNullPointer:
      return "a null pointer, or no memory";
    case haldStatusFlagError:
      return "not one of the four scaling flags";
    default:
      return "not a status of haldgen";
  }
}

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

/**
 * Packed half spectra. The spectrum of N real samples is known from its bins k = 0..N/2, with the
 * parts R(k) and I(k); I(0) is zero, and for even N so is I(N/2). With q = (N-1)/2 rounded down,
 * the formats hold, from position 0:
 *
 *     format | elements      | N even                               | N odd
 *     -------|---------------|--------------------------------------|-------------------------
 *     CCS    | N+2, odd: N+1 | R(k), I(k) for k = 0..N/2            | R(k), I(k) for k = 0..q
 *     Pack   | N             | R(0), R(k), I(k) for 1..q, R(N/2)    | R(0), R(k), I(k) for 1..q
 *     Perm   | N             | R(0), R(N/2), R(k), I(k) for 1..q    | as Pack
 *
 * Forward transforms write +0 to the parts of CCS that are zero, inverse ones never read them.
 * The macros that follow are these numbers of elements, constant where n is.
 */

/** Bins of a half spectrum of n samples, the first and the last included. */
#define HALDGEN_BINS(n) ((n) / 2 + 1)
/** Floats of a half spectrum of n samples in CCS format. */
#define HALDGEN_CCS_SIZE(n) (2 * HALDGEN_BINS(n))
/** Floats of a half spectrum of n samples in Pack format. */
#define HALDGEN_PACK_SIZE(n) (n)
/** Floats of a half spectrum of n samples in Perm format. */
#define HALDGEN_PERM_SIZE(n) (n)

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
/** Forward complex DFT of 2 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_2_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 3 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_3_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 4 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_4_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 5 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_5_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 6 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_6_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 7 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_7_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 8 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_8_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 9 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_9_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 10 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_10_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 11 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_11_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 12 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_12_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 13 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_13_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 14 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_14_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 15 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_15_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 16 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_16_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 17 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_17_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 18 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_18_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 19 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_19_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 20 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_20_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 21 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_21_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 22 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_22_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 23 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_23_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 24 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_24_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 25 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_25_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 26 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_26_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 27 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_27_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 28 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_28_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 29 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_29_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 30 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_30_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 31 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_31_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 32 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_32_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 33 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_33_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 34 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_34_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 35 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_35_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 36 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_36_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 37 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_37_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 38 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_38_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 39 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_39_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 40 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_40_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 41 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_41_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 42 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_42_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 43 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_43_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 44 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_44_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 45 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_45_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 46 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_46_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 47 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_47_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 48 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_48_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 49 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_49_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 50 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_50_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 51 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_51_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 52 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_52_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 53 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_53_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 54 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_54_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 55 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_55_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 56 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_56_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 57 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_57_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 58 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_58_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 59 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_59_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 60 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_60_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 61 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_61_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 62 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_62_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 63 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_63_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 64 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_64_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 2 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_2_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 3 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_3_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 4 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_4_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 5 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_5_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 6 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_6_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 7 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_7_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 8 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_8_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 9 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_9_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 10 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_10_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 11 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_11_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 12 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_12_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 13 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_13_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 14 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_14_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 15 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_15_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 16 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_16_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 17 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_17_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 18 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_18_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 19 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_19_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 20 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_20_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 21 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_21_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 22 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_22_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 23 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_23_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 24 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_24_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 25 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_25_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 26 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_26_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 27 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_27_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 28 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_28_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 29 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_29_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 30 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_30_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 31 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_31_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 32 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_32_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 33 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_33_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 34 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_34_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 35 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_35_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 36 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_36_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 37 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_37_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 38 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_38_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 39 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_39_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 40 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_40_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 41 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_41_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 42 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_42_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 43 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_43_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 44 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_44_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 45 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_45_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 46 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_46_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 47 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_47_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 48 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_48_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 49 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_49_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 50 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_50_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 51 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_51_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 52 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_52_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 53 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_53_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 54 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_54_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 55 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_55_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 56 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_56_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 57 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_57_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 58 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_58_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 59 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_59_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 60 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_60_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 61 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_61_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 62 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_62_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 63 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_63_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward complex DFT of 64 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_64_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
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
/** Forward complex DFT of a length known at run time, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_32fc(const Cplx32* src, Cplx32* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** Forward complex DFT of a length known at run time, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_CToC_64fc(const Cplx64* src, Cplx64* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
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
/** Inverse complex DFT of 2 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_2_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 3 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_3_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 4 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_4_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 5 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_5_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 6 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_6_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 7 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_7_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 8 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_8_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 9 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_9_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 10 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_10_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 11 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_11_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 12 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_12_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 13 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_13_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 14 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_14_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 15 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_15_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 16 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_16_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 17 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_17_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 18 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_18_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 19 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_19_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 20 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_20_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 21 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_21_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 22 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_22_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 23 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_23_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 24 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_24_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 25 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_25_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 26 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_26_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 27 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_27_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 28 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_28_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 29 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_29_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 30 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_30_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 31 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_31_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 32 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_32_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 33 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_33_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 34 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_34_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 35 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_35_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 36 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_36_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 37 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_37_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 38 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_38_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 39 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_39_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 40 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_40_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 41 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_41_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 42 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_42_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 43 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_43_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 44 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_44_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 45 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_45_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 46 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_46_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 47 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_47_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 48 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_48_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 49 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_49_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 50 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_50_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 51 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_51_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 52 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_52_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 53 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_53_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 54 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_54_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 55 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_55_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 56 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_56_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 57 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_57_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 58 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_58_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 59 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_59_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 60 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_60_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 61 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_61_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 62 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_62_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 63 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_63_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 64 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_64_32fc(const Cplx32* src, Cplx32* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 2 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_2_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 3 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_3_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 4 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_4_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 5 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_5_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 6 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_6_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 7 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_7_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 8 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_8_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 9 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_9_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 10 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_10_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 11 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_11_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 12 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_12_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 13 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_13_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 14 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_14_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 15 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_15_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 16 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_16_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 17 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_17_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 18 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_18_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 19 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_19_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 20 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_20_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 21 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_21_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 22 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_22_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 23 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_23_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 24 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_24_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 25 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_25_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 26 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_26_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 27 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_27_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 28 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_28_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 29 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_29_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 30 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_30_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 31 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_31_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 32 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_32_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 33 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_33_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 34 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_34_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 35 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_35_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 36 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_36_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 37 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_37_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 38 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_38_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 39 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_39_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 40 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_40_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 41 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_41_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 42 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_42_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 43 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_43_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 44 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_44_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 45 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_45_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 46 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_46_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 47 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_47_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 48 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_48_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 49 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_49_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 50 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_50_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 51 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_51_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 52 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_52_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 53 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_53_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 54 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_54_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 55 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_55_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 56 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_56_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 57 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_57_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 58 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_58_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 59 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_59_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 60 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_60_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 61 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_61_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 62 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_62_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 63 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_63_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse complex DFT of 64 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_64_64fc(const Cplx64* src, Cplx64* dst, int32_t flag) HALDGEN_NOTHROW;
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
/** Inverse complex DFT of a length known at run time, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_32fc(const Cplx32* src, Cplx32* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** Inverse complex DFT of a length known at run time, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CToC_64fc(const Cplx64* src, Cplx64* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** @} */

/**
 * @name Forward real DFT to CCS, fixed length
 *
 *     R(k) + i*I(k) = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k = 0..N/2
 *
 * The length N is the number in the name.
 *
 * @param src     N real samples x[0..N-1]; only read.
 * @param dst     Half spectrum in CCS format: N+2 elements for even N, N+1 for odd N.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
 *         the four values; else haldStatusOk. dst is written only if haldStatusOk is returned.
 * @{
 */
/** Forward real DFT to CCS of 2 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_2_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 3 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_3_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 4 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_4_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 5 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_5_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 6 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_6_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 7 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_7_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 8 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_8_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 9 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_9_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 10 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_10_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 11 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_11_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 12 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_12_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 13 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_13_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 14 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_14_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 15 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_15_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 16 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_16_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 17 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_17_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 18 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_18_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 19 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_19_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 20 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_20_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 21 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_21_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 22 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_22_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 23 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_23_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 24 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_24_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 25 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_25_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 26 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_26_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 27 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_27_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 28 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_28_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 29 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_29_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 30 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_30_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 31 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_31_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 32 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_32_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 33 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_33_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 34 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_34_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 35 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_35_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 36 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_36_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 37 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_37_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 38 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_38_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 39 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_39_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 40 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_40_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 41 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_41_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 42 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_42_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 43 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_43_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 44 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_44_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 45 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_45_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 46 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_46_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 47 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_47_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 48 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_48_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 49 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_49_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 50 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_50_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 51 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_51_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 52 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_52_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 53 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_53_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 54 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_54_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 55 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_55_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 56 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_56_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 57 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_57_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 58 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_58_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 59 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_59_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 60 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_60_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 61 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_61_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 62 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_62_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 63 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_63_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 64 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_64_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 2 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_2_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 3 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_3_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 4 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_4_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 5 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_5_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 6 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_6_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 7 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_7_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 8 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_8_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 9 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_9_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 10 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_10_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 11 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_11_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 12 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_12_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 13 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_13_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 14 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_14_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 15 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_15_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 16 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_16_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 17 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_17_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 18 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_18_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 19 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_19_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 20 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_20_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 21 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_21_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 22 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_22_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 23 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_23_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 24 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_24_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 25 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_25_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 26 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_26_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 27 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_27_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 28 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_28_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 29 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_29_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 30 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_30_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 31 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_31_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 32 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_32_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 33 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_33_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 34 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_34_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 35 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_35_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 36 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_36_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 37 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_37_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 38 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_38_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 39 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_39_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 40 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_40_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 41 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_41_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 42 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_42_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 43 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_43_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 44 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_44_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 45 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_45_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 46 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_46_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 47 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_47_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 48 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_48_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 49 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_49_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 50 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_50_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 51 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_51_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 52 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_52_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 53 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_53_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 54 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_54_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 55 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_55_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 56 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_56_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 57 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_57_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 58 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_58_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 59 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_59_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 60 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_60_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 61 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_61_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 62 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_62_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 63 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_63_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to CCS of 64 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_64_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Forward real DFT to CCS, general
 *
 *     R(k) + i*I(k) = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k = 0..N/2
 *
 * @param src     N real samples x[0..N-1]; only read.
 * @param dst     Half spectrum in CCS format: N+2 elements for even N, N+1 for odd N.
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
/** Forward real DFT to CCS of a length known at run time, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_32f(const float* src, float* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** Forward real DFT to CCS of a length known at run time, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToCCS_64f(const double* src, double* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** @} */

/**
 * @name Forward real DFT to Pack, fixed length
 *
 *     R(k) + i*I(k) = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k = 0..N/2
 *
 * The length N is the number in the name.
 *
 * @param src     N real samples x[0..N-1]; only read.
 * @param dst     Half spectrum in Pack format: N elements.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
 *         the four values; else haldStatusOk. dst is written only if haldStatusOk is returned.
 * @{
 */
/** Forward real DFT to Pack of 2 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_2_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 3 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_3_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 4 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_4_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 5 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_5_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 6 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_6_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 7 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_7_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 8 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_8_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 9 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_9_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 10 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_10_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 11 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_11_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 12 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_12_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 13 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_13_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 14 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_14_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 15 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_15_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 16 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_16_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 17 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_17_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 18 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_18_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 19 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_19_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 20 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_20_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 21 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_21_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 22 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_22_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 23 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_23_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 24 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_24_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 25 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_25_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 26 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_26_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 27 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_27_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 28 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_28_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 29 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_29_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 30 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_30_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 31 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_31_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 32 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_32_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 33 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_33_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 34 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_34_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 35 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_35_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 36 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_36_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 37 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_37_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 38 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_38_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 39 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_39_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 40 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_40_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 41 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_41_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 42 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_42_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 43 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_43_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 44 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_44_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 45 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_45_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 46 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_46_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 47 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_47_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 48 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_48_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 49 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_49_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 50 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_50_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 51 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_51_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 52 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_52_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 53 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_53_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 54 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_54_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 55 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_55_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 56 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_56_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 57 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_57_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 58 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_58_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 59 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_59_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 60 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_60_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 61 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_61_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 62 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_62_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 63 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_63_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 64 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_64_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 2 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_2_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 3 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_3_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 4 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_4_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 5 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_5_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 6 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_6_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 7 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_7_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 8 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_8_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 9 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_9_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 10 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_10_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 11 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_11_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 12 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_12_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 13 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_13_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 14 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_14_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 15 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_15_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 16 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_16_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 17 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_17_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 18 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_18_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 19 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_19_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 20 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_20_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 21 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_21_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 22 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_22_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 23 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_23_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 24 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_24_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 25 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_25_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 26 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_26_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 27 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_27_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 28 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_28_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 29 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_29_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 30 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_30_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 31 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_31_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 32 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_32_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 33 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_33_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 34 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_34_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 35 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_35_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 36 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_36_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 37 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_37_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 38 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_38_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 39 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_39_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 40 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_40_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 41 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_41_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 42 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_42_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 43 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_43_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 44 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_44_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 45 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_45_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 46 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_46_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 47 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_47_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 48 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_48_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 49 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_49_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 50 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_50_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 51 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_51_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 52 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_52_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 53 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_53_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 54 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_54_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 55 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_55_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 56 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_56_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 57 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_57_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 58 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_58_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 59 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_59_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 60 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_60_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 61 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_61_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 62 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_62_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 63 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_63_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Pack of 64 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_64_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Forward real DFT to Pack, general
 *
 *     R(k) + i*I(k) = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k = 0..N/2
 *
 * @param src     N real samples x[0..N-1]; only read.
 * @param dst     Half spectrum in Pack format: N elements.
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
/** Forward real DFT to Pack of a length known at run time, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_32f(const float* src, float* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** Forward real DFT to Pack of a length known at run time, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPack_64f(const double* src, double* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** @} */

/**
 * @name Forward real DFT to Perm, fixed length
 *
 *     R(k) + i*I(k) = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k = 0..N/2
 *
 * The length N is the number in the name.
 *
 * @param src     N real samples x[0..N-1]; only read.
 * @param dst     Half spectrum in Perm format: N elements.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
 *         the four values; else haldStatusOk. dst is written only if haldStatusOk is returned.
 * @{
 */
/** Forward real DFT to Perm of 2 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_2_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 3 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_3_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 4 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_4_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 5 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_5_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 6 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_6_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 7 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_7_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 8 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_8_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 9 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_9_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 10 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_10_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 11 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_11_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 12 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_12_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 13 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_13_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 14 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_14_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 15 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_15_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 16 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_16_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 17 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_17_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 18 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_18_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 19 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_19_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 20 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_20_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 21 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_21_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 22 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_22_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 23 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_23_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 24 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_24_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 25 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_25_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 26 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_26_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 27 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_27_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 28 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_28_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 29 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_29_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 30 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_30_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 31 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_31_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 32 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_32_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 33 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_33_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 34 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_34_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 35 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_35_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 36 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_36_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 37 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_37_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 38 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_38_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 39 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_39_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 40 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_40_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 41 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_41_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 42 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_42_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 43 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_43_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 44 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_44_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 45 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_45_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 46 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_46_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 47 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_47_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 48 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_48_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 49 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_49_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 50 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_50_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 51 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_51_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 52 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_52_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 53 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_53_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 54 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_54_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 55 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_55_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 56 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_56_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 57 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_57_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 58 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_58_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 59 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_59_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 60 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_60_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 61 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_61_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 62 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_62_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 63 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_63_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 64 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_64_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 2 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_2_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 3 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_3_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 4 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_4_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 5 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_5_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 6 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_6_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 7 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_7_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 8 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_8_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 9 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_9_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 10 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_10_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 11 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_11_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 12 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_12_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 13 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_13_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 14 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_14_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 15 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_15_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 16 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_16_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 17 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_17_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 18 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_18_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 19 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_19_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 20 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_20_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 21 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_21_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 22 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_22_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 23 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_23_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 24 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_24_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 25 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_25_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 26 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_26_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 27 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_27_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 28 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_28_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 29 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_29_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 30 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_30_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 31 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_31_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 32 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_32_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 33 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_33_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 34 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_34_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 35 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_35_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 36 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_36_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 37 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_37_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 38 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_38_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 39 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_39_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 40 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_40_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 41 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_41_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 42 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_42_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 43 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_43_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 44 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_44_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 45 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_45_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 46 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_46_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 47 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_47_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 48 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_48_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 49 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_49_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 50 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_50_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 51 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_51_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 52 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_52_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 53 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_53_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 54 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_54_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 55 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_55_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 56 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_56_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 57 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_57_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 58 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_58_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 59 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_59_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 60 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_60_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 61 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_61_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 62 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_62_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 63 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_63_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Forward real DFT to Perm of 64 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_64_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Forward real DFT to Perm, general
 *
 *     R(k) + i*I(k) = s * sum over n of x[n] * exp(-2*pi*i*k*n/N),   k = 0..N/2
 *
 * @param src     N real samples x[0..N-1]; only read.
 * @param dst     Half spectrum in Perm format: N elements.
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
/** Forward real DFT to Perm of a length known at run time, 32-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_32f(const float* src, float* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** Forward real DFT to Perm of a length known at run time, 64-bit floats; scaled as flag says. */
int32_t haldgDFTFwd_RToPerm_64f(const double* src, double* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** @} */

/**
 * @name Inverse real DFT from CCS, fixed length
 *
 *     x[n] = s * (R(0) + (-1)^n * R(N/2) + 2 * sum over k = 1..q of (R(k) * cos(2*pi*k*n/N)
 *                                                                   - I(k) * sin(2*pi*k*n/N)))
 *
 * The term of R(N/2) is there for even N only. Whatever the numbers, they are taken as half of a
 * conjugate-symmetric spectrum.
 *
 * The length N is the number in the name.
 *
 * @param src     Half spectrum in CCS format: N+2 elements for even N, N+1 for odd N; only read.
 * @param dst     N real samples x[0..N-1].
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
 *         the four values; else haldStatusOk. dst is written only if haldStatusOk is returned.
 * @{
 */
/** Inverse real DFT from CCS of 2 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_2_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 3 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_3_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 4 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_4_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 5 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_5_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 6 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_6_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 7 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_7_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 8 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_8_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 9 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_9_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 10 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_10_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 11 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_11_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 12 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_12_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 13 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_13_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 14 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_14_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 15 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_15_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 16 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_16_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 17 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_17_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 18 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_18_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 19 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_19_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 20 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_20_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 21 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_21_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 22 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_22_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 23 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_23_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 24 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_24_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 25 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_25_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 26 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_26_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 27 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_27_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 28 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_28_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 29 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_29_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 30 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_30_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 31 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_31_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 32 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_32_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 33 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_33_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 34 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_34_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 35 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_35_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 36 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_36_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 37 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_37_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 38 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_38_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 39 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_39_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 40 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_40_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 41 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_41_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 42 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_42_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 43 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_43_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 44 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_44_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 45 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_45_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 46 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_46_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 47 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_47_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 48 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_48_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 49 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_49_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 50 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_50_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 51 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_51_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 52 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_52_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 53 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_53_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 54 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_54_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 55 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_55_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 56 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_56_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 57 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_57_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 58 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_58_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 59 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_59_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 60 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_60_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 61 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_61_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 62 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_62_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 63 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_63_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 64 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_64_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 2 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_2_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 3 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_3_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 4 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_4_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 5 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_5_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 6 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_6_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 7 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_7_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 8 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_8_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 9 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_9_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 10 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_10_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 11 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_11_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 12 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_12_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 13 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_13_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 14 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_14_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 15 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_15_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 16 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_16_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 17 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_17_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 18 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_18_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 19 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_19_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 20 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_20_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 21 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_21_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 22 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_22_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 23 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_23_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 24 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_24_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 25 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_25_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 26 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_26_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 27 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_27_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 28 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_28_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 29 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_29_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 30 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_30_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 31 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_31_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 32 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_32_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 33 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_33_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 34 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_34_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 35 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_35_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 36 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_36_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 37 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_37_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 38 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_38_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 39 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_39_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 40 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_40_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 41 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_41_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 42 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_42_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 43 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_43_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 44 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_44_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 45 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_45_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 46 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_46_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 47 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_47_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 48 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_48_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 49 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_49_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 50 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_50_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 51 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_51_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 52 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_52_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 53 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_53_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 54 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_54_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 55 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_55_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 56 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_56_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 57 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_57_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 58 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_58_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 59 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_59_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 60 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_60_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 61 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_61_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 62 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_62_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 63 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_63_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of 64 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_64_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Inverse real DFT from CCS, general
 *
 *     x[n] = s * (R(0) + (-1)^n * R(N/2) + 2 * sum over k = 1..q of (R(k) * cos(2*pi*k*n/N)
 *                                                                   - I(k) * sin(2*pi*k*n/N)))
 *
 * The term of R(N/2) is there for even N only. Whatever the numbers, they are taken as half of a
 * conjugate-symmetric spectrum.
 *
 * @param src     Half spectrum in CCS format: N+2 elements for even N, N+1 for odd N; only read.
 * @param dst     N real samples x[0..N-1].
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
/** Inverse real DFT from CCS of a length known at run time, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_32f(const float* src, float* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** Inverse real DFT from CCS of a length known at run time, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_CCSToR_64f(const double* src, double* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** @} */

/**
 * @name Inverse real DFT from Pack, fixed length
 *
 *     x[n] = s * (R(0) + (-1)^n * R(N/2) + 2 * sum over k = 1..q of (R(k) * cos(2*pi*k*n/N)
 *                                                                   - I(k) * sin(2*pi*k*n/N)))
 *
 * The term of R(N/2) is there for even N only. Whatever the numbers, they are taken as half of a
 * conjugate-symmetric spectrum.
 *
 * The length N is the number in the name.
 *
 * @param src     Half spectrum in Pack format: N elements; only read.
 * @param dst     N real samples x[0..N-1].
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
 *         the four values; else haldStatusOk. dst is written only if haldStatusOk is returned.
 * @{
 */
/** Inverse real DFT from Pack of 2 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_2_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 3 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_3_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 4 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_4_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 5 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_5_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 6 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_6_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 7 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_7_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 8 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_8_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 9 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_9_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 10 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_10_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 11 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_11_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 12 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_12_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 13 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_13_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 14 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_14_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 15 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_15_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 16 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_16_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 17 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_17_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 18 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_18_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 19 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_19_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 20 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_20_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 21 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_21_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 22 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_22_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 23 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_23_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 24 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_24_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 25 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_25_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 26 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_26_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 27 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_27_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 28 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_28_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 29 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_29_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 30 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_30_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 31 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_31_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 32 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_32_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 33 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_33_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 34 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_34_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 35 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_35_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 36 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_36_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 37 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_37_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 38 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_38_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 39 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_39_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 40 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_40_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 41 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_41_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 42 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_42_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 43 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_43_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 44 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_44_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 45 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_45_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 46 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_46_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 47 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_47_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 48 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_48_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 49 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_49_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 50 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_50_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 51 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_51_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 52 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_52_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 53 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_53_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 54 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_54_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 55 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_55_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 56 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_56_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 57 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_57_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 58 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_58_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 59 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_59_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 60 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_60_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 61 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_61_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 62 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_62_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 63 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_63_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 64 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_64_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 2 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_2_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 3 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_3_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 4 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_4_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 5 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_5_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 6 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_6_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 7 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_7_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 8 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_8_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 9 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_9_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 10 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_10_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 11 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_11_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 12 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_12_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 13 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_13_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 14 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_14_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 15 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_15_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 16 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_16_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 17 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_17_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 18 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_18_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 19 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_19_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 20 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_20_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 21 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_21_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 22 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_22_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 23 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_23_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 24 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_24_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 25 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_25_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 26 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_26_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 27 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_27_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 28 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_28_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 29 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_29_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 30 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_30_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 31 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_31_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 32 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_32_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 33 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_33_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 34 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_34_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 35 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_35_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 36 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_36_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 37 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_37_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 38 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_38_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 39 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_39_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 40 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_40_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 41 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_41_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 42 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_42_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 43 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_43_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 44 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_44_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 45 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_45_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 46 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_46_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 47 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_47_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 48 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_48_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 49 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_49_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 50 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_50_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 51 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_51_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 52 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_52_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 53 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_53_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 54 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_54_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 55 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_55_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 56 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_56_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 57 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_57_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 58 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_58_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 59 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_59_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 60 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_60_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 61 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_61_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 62 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_62_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 63 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_63_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of 64 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_64_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Inverse real DFT from Pack, general
 *
 *     x[n] = s * (R(0) + (-1)^n * R(N/2) + 2 * sum over k = 1..q of (R(k) * cos(2*pi*k*n/N)
 *                                                                   - I(k) * sin(2*pi*k*n/N)))
 *
 * The term of R(N/2) is there for even N only. Whatever the numbers, they are taken as half of a
 * conjugate-symmetric spectrum.
 *
 * @param src     Half spectrum in Pack format: N elements; only read.
 * @param dst     N real samples x[0..N-1].
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
/** Inverse real DFT from Pack of a length known at run time, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_32f(const float* src, float* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** Inverse real DFT from Pack of a length known at run time, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PackToR_64f(const double* src, double* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** @} */

/**
 * @name Inverse real DFT from Perm, fixed length
 *
 *     x[n] = s * (R(0) + (-1)^n * R(N/2) + 2 * sum over k = 1..q of (R(k) * cos(2*pi*k*n/N)
 *                                                                   - I(k) * sin(2*pi*k*n/N)))
 *
 * The term of R(N/2) is there for even N only. Whatever the numbers, they are taken as half of a
 * conjugate-symmetric spectrum.
 *
 * The length N is the number in the name.
 *
 * @param src     Half spectrum in Perm format: N elements; only read.
 * @param dst     N real samples x[0..N-1].
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
 *         the four values; else haldStatusOk. dst is written only if haldStatusOk is returned.
 * @{
 */
/** Inverse real DFT from Perm of 2 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_2_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 3 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_3_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 4 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_4_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 5 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_5_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 6 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_6_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 7 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_7_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 8 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_8_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 9 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_9_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 10 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_10_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 11 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_11_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 12 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_12_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 13 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_13_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 14 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_14_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 15 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_15_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 16 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_16_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 17 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_17_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 18 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_18_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 19 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_19_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 20 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_20_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 21 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_21_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 22 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_22_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 23 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_23_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 24 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_24_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 25 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_25_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 26 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_26_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 27 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_27_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 28 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_28_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 29 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_29_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 30 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_30_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 31 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_31_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 32 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_32_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 33 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_33_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 34 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_34_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 35 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_35_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 36 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_36_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 37 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_37_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 38 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_38_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 39 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_39_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 40 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_40_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 41 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_41_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 42 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_42_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 43 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_43_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 44 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_44_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 45 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_45_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 46 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_46_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 47 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_47_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 48 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_48_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 49 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_49_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 50 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_50_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 51 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_51_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 52 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_52_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 53 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_53_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 54 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_54_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 55 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_55_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 56 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_56_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 57 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_57_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 58 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_58_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 59 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_59_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 60 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_60_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 61 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_61_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 62 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_62_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 63 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_63_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 64 points, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_64_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 2 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_2_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 3 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_3_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 4 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_4_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 5 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_5_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 6 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_6_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 7 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_7_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 8 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_8_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 9 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_9_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 10 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_10_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 11 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_11_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 12 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_12_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 13 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_13_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 14 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_14_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 15 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_15_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 16 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_16_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 17 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_17_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 18 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_18_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 19 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_19_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 20 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_20_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 21 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_21_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 22 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_22_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 23 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_23_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 24 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_24_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 25 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_25_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 26 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_26_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 27 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_27_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 28 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_28_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 29 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_29_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 30 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_30_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 31 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_31_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 32 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_32_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 33 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_33_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 34 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_34_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 35 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_35_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 36 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_36_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 37 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_37_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 38 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_38_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 39 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_39_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 40 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_40_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 41 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_41_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 42 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_42_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 43 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_43_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 44 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_44_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 45 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_45_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 46 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_46_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 47 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_47_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 48 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_48_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 49 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_49_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 50 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_50_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 51 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_51_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 52 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_52_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 53 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_53_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 54 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_54_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 55 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_55_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 56 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_56_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 57 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_57_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 58 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_58_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 59 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_59_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 60 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_60_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 61 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_61_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 62 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_62_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 63 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_63_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of 64 points, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_64_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Inverse real DFT from Perm, general
 *
 *     x[n] = s * (R(0) + (-1)^n * R(N/2) + 2 * sum over k = 1..q of (R(k) * cos(2*pi*k*n/N)
 *                                                                   - I(k) * sin(2*pi*k*n/N)))
 *
 * The term of R(N/2) is there for even N only. Whatever the numbers, they are taken as half of a
 * conjugate-symmetric spectrum.
 *
 * @param src     Half spectrum in Perm format: N elements; only read.
 * @param dst     N real samples x[0..N-1].
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
/** Inverse real DFT from Perm of a length known at run time, 32-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_32f(const float* src, float* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** Inverse real DFT from Perm of a length known at run time, 64-bit floats; scaled as flag says. */
int32_t haldgDFTInv_PermToR_64f(const double* src, double* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** @} */

/**
 * @name Hartley transform, fixed length
 *
 *     H[k] = s * sum over n of x[n] * (cos(2*pi*k*n/N) + sin(2*pi*k*n/N)),   k, n = 0..N-1
 *
 * (R. V. L. Hartley, Proc. IRE 30 (1942)). Applied twice, it gives N times the input for s = 1.
 * The length N is the number in the name.
 *
 * @param src     N real elements x[0..N-1]; only read.
 * @param dst     N real elements H[0..N-1].
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
 *         the four values; else haldStatusOk. dst is written only if haldStatusOk is returned.
 * @{
 */
/** Hartley transform of 2 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_2_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 3 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_3_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 4 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_4_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 5 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_5_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 6 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_6_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 7 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_7_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 8 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_8_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 9 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_9_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 10 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_10_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 11 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_11_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 12 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_12_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 13 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_13_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 14 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_14_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 15 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_15_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 16 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_16_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 17 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_17_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 18 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_18_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 19 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_19_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 20 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_20_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 21 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_21_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 22 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_22_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 23 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_23_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 24 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_24_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 25 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_25_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 26 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_26_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 27 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_27_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 28 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_28_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 29 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_29_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 30 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_30_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 31 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_31_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 32 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_32_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 33 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_33_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 34 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_34_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 35 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_35_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 36 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_36_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 37 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_37_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 38 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_38_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 39 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_39_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 40 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_40_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 41 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_41_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 42 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_42_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 43 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_43_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 44 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_44_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 45 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_45_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 46 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_46_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 47 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_47_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 48 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_48_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 49 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_49_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 50 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_50_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 51 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_51_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 52 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_52_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 53 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_53_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 54 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_54_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 55 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_55_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 56 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_56_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 57 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_57_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 58 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_58_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 59 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_59_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 60 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_60_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 61 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_61_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 62 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_62_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 63 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_63_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 64 points, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_64_32f(const float* src, float* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 2 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_2_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 3 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_3_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 4 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_4_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 5 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_5_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 6 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_6_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 7 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_7_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 8 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_8_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 9 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_9_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 10 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_10_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 11 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_11_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 12 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_12_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 13 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_13_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 14 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_14_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 15 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_15_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 16 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_16_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 17 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_17_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 18 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_18_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 19 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_19_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 20 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_20_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 21 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_21_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 22 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_22_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 23 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_23_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 24 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_24_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 25 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_25_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 26 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_26_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 27 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_27_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 28 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_28_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 29 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_29_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 30 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_30_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 31 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_31_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 32 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_32_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 33 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_33_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 34 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_34_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 35 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_35_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 36 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_36_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 37 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_37_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 38 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_38_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 39 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_39_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 40 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_40_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 41 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_41_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 42 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_42_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 43 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_43_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 44 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_44_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 45 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_45_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 46 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_46_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 47 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_47_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 48 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_48_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 49 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_49_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 50 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_50_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 51 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_51_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 52 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_52_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 53 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_53_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 54 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_54_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 55 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_55_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 56 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_56_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 57 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_57_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 58 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_58_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 59 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_59_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 60 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_60_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 61 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_61_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 62 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_62_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 63 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_63_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** Hartley transform of 64 points, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_64_64f(const double* src, double* dst, int32_t flag) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Hartley transform, general
 *
 *     H[k] = s * sum over n of x[n] * (cos(2*pi*k*n/N) + sin(2*pi*k*n/N)),   k, n = 0..N-1
 *
 * @param src     N real elements x[0..N-1]; only read.
 * @param dst     N real elements H[0..N-1].
 * @param length  N, for lengths known at run time only: any length that has a function of its own.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @return haldStatusSizeError if no function has this length, whatever the other arguments are;
 *         else what the function of this length returns.
 * @{
 */
/** Hartley transform of a length known at run time, 32-bit floats; scaled as flag says. */
int32_t haldgHartley_32f(const float* src, float* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** Hartley transform of a length known at run time, 64-bit floats; scaled as flag says. */
int32_t haldgHartley_64f(const double* src, double* dst, int32_t length, int32_t flag)
    HALDGEN_NOTHROW;
/** @} */

/**
 * @name Walsh-Hadamard transform, fixed order
 *
 *     Y[k] = s * sum over n of (-1)^popcount(k & n) * x[n],   k, n = 0..N-1
 *
 * N is two to the power of the order, which is the number in the name. Outputs are in the natural
 * (Hadamard) order of k. The transform is its own inverse: two calls with haldScaleBySqrtN give the
 * input back, and so do one with haldScaleNone and one with a flag that divides by N.
 *
 * The results are those of sums and differences taken in place, first of neighbours x[n], x[n+1],
 * then of elements 2, 4, .. N/2 apart, each rounded to the element type, and of one multiplication
 * by s at the end.
 *
 * @param src     N elements x[0..N-1]; only read. Need not even be aligned to an element.
 * @param dst     N elements Y[0..N-1]; likewise.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @param buffer  work area of as many bytes as haldgWHTGetBufferSize tells for the order and the
 *         element type, at a multiple of 16 bytes, apart from src and dst. It needs no contents,
 *         and nothing is kept in it. Orders 1 to 7 pass over this argument.
 *         If it is null, orders 8 to 13 take the area from haldMalloc and give it back to haldFree
 *         before they return. There is no status for a haldMalloc that fails: the call crashes.
 * @return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
 *         the four values; else haldStatusOk. Only if haldStatusOk is returned is dst written or
 *         memory taken.
 * @{
 */
/** Walsh-Hadamard transform of 2 points, order 1, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_1_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer) HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 4 points, order 2, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_2_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer) HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 8 points, order 3, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_3_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer) HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 16 points, order 4, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_4_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer) HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 32 points, order 5, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_5_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer) HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 64 points, order 6, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_6_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer) HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 128 points, order 7, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_7_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer) HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 256 points, order 8, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_8_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer) HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 512 points, order 9, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_9_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer) HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 1024 points, order 10, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_10_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 2048 points, order 11, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_11_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 4096 points, order 12, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_12_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 8192 points, order 13, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_13_32f(const float* src, float* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 2 points, order 1, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_1_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 4 points, order 2, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_2_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 8 points, order 3, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_3_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 16 points, order 4, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_4_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 32 points, order 5, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_5_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 64 points, order 6, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_6_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 128 points, order 7, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_7_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 256 points, order 8, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_8_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 512 points, order 9, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_9_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 1024 points, order 10, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_10_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 2048 points, order 11, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_11_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 4096 points, order 12, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_12_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of 8192 points, order 13, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_13_64f(const double* src, double* dst, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** @} */

/**
 * @name Walsh-Hadamard transform, general
 *
 *     Y[k] = s * sum over n of (-1)^popcount(k & n) * x[n],   k, n = 0..N-1,   N = 2^order
 *
 * @param src     N elements x[0..N-1]; only read. Need not even be aligned to an element.
 * @param dst     N elements Y[0..N-1]; likewise.
 * @param order   1 to 13, for orders known at run time only.
 * @param flag    selects the scale s:
 *     - haldScaleFwdByN:  s = 1/N
 *     - haldScaleInvByN:  s = 1/N
 *     - haldScaleBySqrtN: s = 1/sqrt(N)
 *     - haldScaleNone:    s = 1
 * @param buffer  as for the function of this order.
 * @return haldStatusSizeError if no function has this order, whatever the other arguments are; else
 *         what the function of this order returns.
 * @{
 */
/** Walsh-Hadamard transform of an order known at run time, 32-bit floats; scaled as flag says. */
int32_t haldgWHT_32f(const float* src, float* dst, int32_t order, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** Walsh-Hadamard transform of an order known at run time, 64-bit floats; scaled as flag says. */
int32_t haldgWHT_64f(const double* src, double* dst, int32_t order, int32_t flag, uint8_t* buffer)
    HALDGEN_NOTHROW;
/** @} */

/**
 * @name Walsh-Hadamard transform, size of the work buffer
 *
 * Bytes that the buffer of a Walsh-Hadamard transform needs: 0 for orders 1 to 7.
 *
 * @param order   1 to 13.
 * @param size    where to store the number of bytes.
 * @return haldStatusNullPointer if size is null; else haldStatusSizeError if no function has this
 *         order, and nothing is stored; else haldStatusOk.
 * @{
 */
/** Walsh-Hadamard transform, size of the work buffer, 32-bit floats. */
int32_t haldgWHTGetBufferSize_32f(int32_t order, uint32_t* size) HALDGEN_NOTHROW;
/** Walsh-Hadamard transform, size of the work buffer, 64-bit floats. */
int32_t haldgWHTGetBufferSize_64f(int32_t order, uint32_t* size) HALDGEN_NOTHROW;
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
/** DCT-IV, size of the state, 32-bit floats. */
int32_t haldgDCT4GetSize_32f(int32_t length, int32_t* size) HALDGEN_NOTHROW;
/** DCT-IV, size of the state, 64-bit floats. */
int32_t haldgDCT4GetSize_64f(int32_t length, int32_t* size) HALDGEN_NOTHROW;
/** @} */

/**
 * @name DCT-IV, set-up in a buffer of the caller
 *
 * Builds a state for this element type, with all its tables. The state lies in the buffer,
 * generally not at its start, and lasts until the buffer is dropped; there is nothing to release
 * besides.
 *
 * @param state   receives the state.
 * @param length  N.
 * @param buffer  at least as many bytes as the size query says for this length and element type,
 *                at any alignment.
 * @return haldStatusNullPointer if state or buffer is null; else haldStatusSizeError if there is no
 *         such length; else haldStatusOk. Nothing is written unless haldStatusOk is returned.
 * @{
 */
/** DCT-IV, set-up in a buffer of the caller, 32-bit floats. */
int32_t haldgDCT4Init_32f(Dct4State** state, int32_t length, uint8_t* buffer) HALDGEN_NOTHROW;
/** DCT-IV, set-up in a buffer of the caller, 64-bit floats. */
int32_t haldgDCT4Init_64f(Dct4State** state, int32_t length, uint8_t* buffer) HALDGEN_NOTHROW;
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
/** DCT-IV, set-up with allocation, 32-bit floats. */
int32_t haldgDCT4InitAlloc_32f(Dct4State** state, int32_t length) HALDGEN_NOTHROW;
/** DCT-IV, set-up with allocation, 64-bit floats. */
int32_t haldgDCT4InitAlloc_64f(Dct4State** state, int32_t length) HALDGEN_NOTHROW;
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
/** DCT-IV, release, 32-bit floats. */
int32_t haldgDCT4Free_32f(Dct4State* state) HALDGEN_NOTHROW;
/** DCT-IV, release, 64-bit floats. */
int32_t haldgDCT4Free_64f(Dct4State* state) HALDGEN_NOTHROW;
/** @} */

/**
 * @name DCT-IV, transform
 *
 *     y[k] = sum over n of x[n] * cos(pi/N * (n + 1/2) * (k + 1/2)),   k, n = 0..N-1
 *
 * There is no scale: applied twice, the transform multiplies by N/2. FFTW's REDFT11 is twice this
 * transform. From length 64 up a state holds scratch memory and can serve one call at a time;
 * different states are independent.
 *
 * States of both element types have one C type, and a state of the other one is not detected: the
 * results are wrong, or the call crashes. (haldgen.hpp has a type for each.)
 *
 * @param src     N elements x[0..N-1]; only read.
 * @param dst     N elements y[0..N-1].
 * @param state   a state of length N for this element type.
 * @return haldStatusNullPointer if state, src or dst is null; else haldStatusBadArgument if state
 *         is not a state; else haldStatusOk. dst is written only if haldStatusOk is returned.
 * @{
 */
/** DCT-IV, transform, 32-bit floats. */
int32_t haldgDCT4_32f(const float* src, float* dst, Dct4State* state) HALDGEN_NOTHROW;
/** DCT-IV, transform, 64-bit floats. */
int32_t haldgDCT4_64f(const double* src, double* dst, Dct4State* state) HALDGEN_NOTHROW;
/** @} */

/**
 * @name Version of the library
 *
 * @return The record of this build: always the same pointer, never null. It belongs to the library;
 *         do not change or free it.
 * @{
 */
/** Version of the library. */
const LibraryVersion* haldgenGetLibVersion(void) HALDGEN_NOTHROW;
/** @} */

#ifdef __cplusplus
}
#endif

#endif /* HALDGEN_H */
