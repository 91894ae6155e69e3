// The default module: the complex DFT of 16 common lengths in 32-bit floats. To fit where a page is
// loaded, it has the forward kernels only: the mirror of a kernel, with real and imaginary part of
// each element exchanged on both sides, is the inverse one with the same bits.
#include <array>
#include <cstddef>
#include <span>

#include "haldgen.h"

namespace haldgen::web {
namespace {

using Transform = int32_t (*)(const Cplx32* src, Cplx32* dst, int32_t flag);

constexpr std::size_t kLongest = 64;

void exchange(const Cplx32* src, std::span<Cplx32> dst) {
  for (Cplx32& z : dst) {
    const Cplx32 element = *src++;
    z = {element.im, element.re};
  }
}

// The two directions share the numbers behind a flag, but for which of them divides.
int32_t mirrored_flag(int32_t flag) {
  if (flag == haldScaleFwdByN) return haldScaleInvByN;
  if (flag == haldScaleInvByN) return haldScaleFwdByN;
  return flag;
}

int32_t inverse(Transform forward, std::size_t length, const Cplx32* src, Cplx32* dst,
                int32_t flag) {
  if (src == nullptr || dst == nullptr) return haldStatusNullPointer;
  alignas(16) std::array<Cplx32, kLongest> exchanged;
  exchange(src, std::span(exchanged).first(length));
  const int32_t status = forward(exchanged.data(), dst, mirrored_flag(flag));
  if (status == haldStatusOk) exchange(dst, {dst, length});
  return status;
}

}  // namespace
}  // namespace haldgen::web

// Each length with its two entries.
#define HALDGEN_COMMON_LENGTH(n)                                                                 \
  static_assert(n <= haldgen::web::kLongest);                                                    \
  extern "C" int32_t haldgImpl_DFTFwd_CToC_##n##_32fc(const Cplx32*, Cplx32*, int32_t) noexcept; \
  HALDGEN_NOTHROW int32_t haldgDFTFwd_CToC_##n##_32fc(const Cplx32* src, Cplx32* dst,            \
                                                      int32_t flag) {                            \
    return haldgImpl_DFTFwd_CToC_##n##_32fc(src, dst, flag);                                     \
  }                                                                                              \
  HALDGEN_NOTHROW int32_t haldgDFTInv_CToC_##n##_32fc(const Cplx32* src, Cplx32* dst,            \
                                                      int32_t flag) {                            \
    return haldgen::web::inverse(haldgImpl_DFTFwd_CToC_##n##_32fc, n, src, dst, flag);           \
  }
HALDGEN_COMMON_LENGTHS
