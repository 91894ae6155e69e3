#include <haldgen.h>
#include <stdio.h>

static const int32_t flags[] = {haldScaleFwdByN, haldScaleInvByN, haldScaleBySqrtN, haldScaleNone};
static const char* const names[] = {"haldScaleFwdByN ", "haldScaleInvByN ", "haldScaleBySqrtN",
                                    "haldScaleNone   "};

int main(void) {
  for (int i = 0; i < 4; ++i) {
    Cplx64 x[4] = {{1, 0}, {1, 0}, {1, 0}, {1, 0}};
    haldgDFTFwd_CToC_4_64fc(x, x, flags[i]);
    const double forward = x[0].re; /* s times the sum of four ones */
    haldgDFTInv_CToC_4_64fc(x, x, flags[i]);
    printf("%s X[0] = %g, there and back %g\n", names[i], forward, x[0].re);
  }
}
