// The sizes of the work buffers.
#include <cstdint>

#include "haldgen.h"
#include "wht/blocking.h"

namespace haldgen::wht {
namespace {

template <class Float>
std::int32_t buffer_size(std::int32_t order, std::uint32_t* size) {
  if (size == nullptr) return haldStatusNullPointer;
  const std::uint32_t index = static_cast<std::uint32_t>(order) - 1;
  if (index >= kBufferBytes<Float>.size()) return haldStatusSizeError;
  *size = static_cast<std::uint32_t>(kBufferBytes<Float>[index]);
  return haldStatusOk;
}

}  // namespace
}  // namespace haldgen::wht

extern "C" {

std::int32_t haldgImpl_WHTGetBufferSize_32f(std::int32_t order, std::uint32_t* size) {
  return haldgen::wht::buffer_size<float>(order, size);
}

std::int32_t haldgImpl_WHTGetBufferSize_64f(std::int32_t order, std::uint32_t* size) {
  return haldgen::wht::buffer_size<double>(order, size);
}

}  // extern "C"
