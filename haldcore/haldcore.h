/**
 * @file haldcore.h
 * Memory and processor features for haldgen.
 *
 * haldgen calls these three functions through the dynamic linker. An application that defines
 * functions of the same names (in the executable, or in a library loaded before libhaldcore)
 * replaces them: so it can bring its own allocator. Replace haldMalloc and haldFree together; they
 * must not throw.
 */
#ifndef HALDCORE_H
#define HALDCORE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Alignment in bytes of all memory from haldMalloc. */
enum { haldMallocAlignment = 64 };

/**
 * Allocates memory.
 *
 * @param size  number of bytes.
 * @return Uninitialised memory at a multiple of haldMallocAlignment, to be released by haldFree;
 *         null if there is no memory or size is not positive.
 */
void* haldMalloc(int32_t size);

/**
 * Releases memory from haldMalloc.
 *
 * @param memory  what haldMalloc returned; null does nothing.
 */
void haldFree(void* memory);

/** Features in the mask of haldGetEnabledCpuFeatures. */
enum {
  haldCpuSse = 0x04,   /**< SSE */
  haldCpuSse2 = 0x08,  /**< SSE2: 128-bit vectors of 64-bit floats */
  haldCpuSse3 = 0x10,  /**< SSE3: alternating addition and subtraction; haldgen needs it */
  haldCpuSsse3 = 0x20, /**< SSSE3: byte shuffles; haldgen needs it */
  haldCpuSse41 = 0x40, /**< SSE4.1 */
  haldCpuSse42 = 0x80, /**< SSE4.2 */
  haldCpuAvx = 0x100,  /**< AVX, its registers being saved by the operating system */
  haldCpuAvx2 = 0x200, /**< AVX2, likewise */
  haldCpuFma = 0x400   /**< fused multiply-add, likewise */
};

/**
 * Tells what the processor can do and the operating system lets it do.
 *
 * @return Sum of the features above; bits without a name here are 0. Processors other than x86 have
 *         none of them.
 */
uint64_t haldGetEnabledCpuFeatures(void);

#ifdef __cplusplus
}
#endif

#endif /* HALDCORE_H */
