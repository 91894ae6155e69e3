/* Uses the public headers; compiled in each standard of C and as C++ under the names in USER. */
#include <haldbatch.h>
#include <haldcore.h>
#include <haldgen.h>

/* Also in a standard without assertions. */
#define ASSERT(name, condition) typedef char assert_##name[(condition) ? 1 : -1]

ASSERT(elements, sizeof(Cplx32) == 8 && sizeof(Cplx64) == 16);
ASSERT(statuses, haldStatusOk == 0 && haldStatusBadArgument == -5 && haldStatusSizeError == -6 &&
                     haldStatusNullPointer == -8 && haldStatusFlagError == -16);
ASSERT(scales,
       haldScaleFwdByN == 1 && haldScaleInvByN == 2 && haldScaleBySqrtN == 4 && haldScaleNone == 8);
ASSERT(even, HALDGEN_CCS_SIZE(2 + 4) == 8 && HALDGEN_BINS(2 + 4) == 4);
ASSERT(odd, HALDGEN_CCS_SIZE(2 + 5) == 8 && HALDGEN_PACK_SIZE(7) == 7 && HALDGEN_PERM_SIZE(7) == 7);
#if HALDGEN_VERSION / 10000 != HALDGEN_VERSION_MAJOR || HALDGEN_VERSION < 80100
#error "HALDGEN_VERSION"
#endif

#ifdef __cplusplus
extern "C" {
#endif

const char* USER(const Cplx32* src, Cplx32* dst);

/* The forward transform of two points without scale, and the text of its status. */
const char* USER(const Cplx32* src, Cplx32* dst) {
  return haldStatusText(haldgDFTFwd_CToC_2_32fc(src, dst, haldScaleNone));
}

#ifdef __cplusplus
}
#endif
