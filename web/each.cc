// Many transforms in one call from JavaScript, which costs about as much as a small kernel does.
#include <cstddef>
#include <cstdint>

#include "haldgen.h"

namespace haldgen::web {
namespace {

/// Calls `transform(src, dst)` for each place; distances are in bytes. Stops at the first failure.
template <class Transform>
int32_t each(const std::byte* src, std::ptrdiff_t src_distance, std::byte* dst,
             std::ptrdiff_t dst_distance, int32_t count, Transform transform) {
  for (int32_t k = 0; k < count; ++k, src += src_distance, dst += dst_distance) {
    const int32_t status = transform(src, dst);
    if (status != haldStatusOk) return status;
  }
  return haldStatusOk;
}

}  // namespace
}  // namespace haldgen::web

extern "C" {

// A function's place in the module's table, as the loader has put it there. All addresses and the
// flag are numbers of 32 bits in WebAssembly, so the DCT-IV, whose last argument is its state, has
// the same type.
using Transform = int32_t (*)(const std::byte* src, std::byte* dst, int32_t flag);
using BufferedTransform = int32_t (*)(const std::byte* src, std::byte* dst, int32_t flag,
                                      std::byte* buffer);

int32_t haldwEach(Transform transform, const std::byte* src, std::ptrdiff_t src_distance,
                  std::byte* dst, std::ptrdiff_t dst_distance, int32_t count, int32_t flag);
int32_t haldwEachBuffered(BufferedTransform transform, const std::byte* src,
                          std::ptrdiff_t src_distance, std::byte* dst, std::ptrdiff_t dst_distance,
                          int32_t count, int32_t flag, std::byte* buffer);

int32_t haldwEach(Transform transform, const std::byte* src, std::ptrdiff_t src_distance,
                  std::byte* dst, std::ptrdiff_t dst_distance, int32_t count, int32_t flag) {
  return haldgen::web::each(
      src, src_distance, dst, dst_distance, count,
      [=](const std::byte* from, std::byte* to) { return transform(from, to, flag); });
}

int32_t haldwEachBuffered(BufferedTransform transform, const std::byte* src,
                          std::ptrdiff_t src_distance, std::byte* dst, std::ptrdiff_t dst_distance,
                          int32_t count, int32_t flag, std::byte* buffer) {
  return haldgen::web::each(
      src, src_distance, dst, dst_distance, count,
      [=](const std::byte* from, std::byte* to) { return transform(from, to, flag, buffer); });
}

}  // extern "C"
