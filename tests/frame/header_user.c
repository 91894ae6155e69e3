/* Uses the public headers; compiled as C and as C++ under two names of USER. */
#include <haldcore.h>
#include <haldgen.h>

#ifdef __cplusplus
extern "C" {
#else
#define static_assert _Static_assert
#endif

static_assert(sizeof(Cplx32) == 8 && sizeof(Cplx64) == 16, "elements are packed");
static_assert(haldStatusOk == 0 && haldStatusBadArgument == -5 && haldStatusSizeError == -6 &&
                  haldStatusNullPointer == -8 && haldStatusFlagError == -16,
              "statuses");
static_assert(haldScaleFwdByN == 1 && haldScaleInvByN == 2 && haldScaleBySqrtN == 4 &&
                  haldScaleNone == 8,
              "scaling flags");

int32_t USER(const Cplx32* src, Cplx32* dst);

/* The forward transform of two points without scale. */
int32_t USER(const Cplx32* src, Cplx32* dst) {
  return haldgDFTFwd_CToC_2_32fc(src, dst, haldScaleNone);
}

#ifdef __cplusplus
}
#endif
