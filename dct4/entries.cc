// The implementations behind the exported functions: checks in their order, then plan or transform.
#include <haldcore.h>

#include <limits>

#include "dct4/execution.h"
#include "dct4/size.h"
#include "implementations.h"
#include "lanes/stack.h"

namespace haldgen::dct4 {
namespace {

template <class Float>
int32_t get_size(int32_t length, int32_t* size) {
  const std::optional<int32_t> bytes = state_size(length, static_cast<int32_t>(sizeof(Float)));
  if (size == nullptr) return haldStatusNullPointer;
  if (!bytes) return haldStatusSizeError;
  *size = *bytes;
  return haldStatusOk;
}

/// Whether a state of this length can be built. Where only the wrapped size is in range, no buffer
/// that a caller can have asked for holds the state.
template <class Float>
bool buildable(int32_t length) {
  return accept_length(length, kLanes<Float>) &&
         exact_state_size(length, static_cast<int32_t>(sizeof(Float))) <=
             std::numeric_limits<int32_t>::max();
}

/// A refused length is refused before anything is written.
template <class Float>
int32_t init(Dct4State** state, int32_t length, uint8_t* buffer) {
  if (state == nullptr || buffer == nullptr) return haldStatusNullPointer;
  if (!buildable<Float>(length)) return haldStatusSizeError;
  *state = build_state<Float>(length, reinterpret_cast<Arena*>(buffer));
  return haldStatusOk;
}

template <class Float>
int32_t init_alloc(Dct4State** state, int32_t length) {
  if (state == nullptr) return haldStatusNullPointer;
  int32_t size = 0;
  int32_t status = get_size<Float>(length, &size);
  if (status != haldStatusOk) return status;
  // Null where there is no memory, which init() refuses.
  auto* const buffer = static_cast<uint8_t*>(haldMalloc(size));
  status = init<Float>(state, length, buffer);
  if (status != haldStatusOk) haldFree(buffer);
  return status;
}

int32_t release(Dct4State* state) {
  if (state == nullptr) return haldStatusNullPointer;
  Arena* const buffer = state->arena.get();
  release_state(state);
  haldFree(buffer);
  return haldStatusOk;
}

template <class Float>
int32_t transform(const Float* src, Float* dst, const Dct4State* state) {
  if (state == nullptr || src == nullptr || dst == nullptr) [[unlikely]]
    return haldStatusNullPointer;
  return run_state(src, dst, *state);
}

}  // namespace
}  // namespace haldgen::dct4

namespace dct4 = haldgen::dct4;

// Set-up and release call other libraries, which may rely on a stack aligned to 16 bytes.
extern "C" {

HALDGEN_REALIGNED int32_t haldgImpl_DCT4GetSize_32f(int32_t length, int32_t* size) {
  return dct4::get_size<float>(length, size);
}
HALDGEN_REALIGNED int32_t haldgImpl_DCT4GetSize_64f(int32_t length, int32_t* size) {
  return dct4::get_size<double>(length, size);
}

HALDGEN_REALIGNED int32_t haldgImpl_DCT4Init_32f(Dct4State** state, int32_t length,
                                                 uint8_t* buffer) {
  return dct4::init<float>(state, length, buffer);
}
HALDGEN_REALIGNED int32_t haldgImpl_DCT4Init_64f(Dct4State** state, int32_t length,
                                                 uint8_t* buffer) {
  return dct4::init<double>(state, length, buffer);
}

HALDGEN_REALIGNED int32_t haldgImpl_DCT4InitAlloc_32f(Dct4State** state, int32_t length) {
  return dct4::init_alloc<float>(state, length);
}
HALDGEN_REALIGNED int32_t haldgImpl_DCT4InitAlloc_64f(Dct4State** state, int32_t length) {
  return dct4::init_alloc<double>(state, length);
}

HALDGEN_REALIGNED int32_t haldgImpl_DCT4Free_32f(Dct4State* state) { return dct4::release(state); }
HALDGEN_REALIGNED int32_t haldgImpl_DCT4Free_64f(Dct4State* state) { return dct4::release(state); }

int32_t haldgImpl_DCT4_32f(const float* src, float* dst, Dct4State* state) {
  return dct4::transform(src, dst, state);
}
int32_t haldgImpl_DCT4_64f(const double* src, double* dst, Dct4State* state) {
  return dct4::transform(src, dst, state);
}

}  // extern "C"
