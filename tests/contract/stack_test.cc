// Callers whose stack is 4 or 8 bytes off the 16 of the calling convention, as one of an
// interpreter or of another compiler may be: every function of the table does for them what it does
// for others.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "tests/contract/memory.h"
#include "tests/contract/transform.h"
#include "tests/dct4/functions.h"

// A shift of 0 is as the calling convention has it. Functions that keep vectors on their stack
// apart, all code below the one that is called passes the shift on to those that it calls.
#if defined(__x86_64__)
constexpr std::size_t shifts[] = {0, 8};
asm(R"(
  .text
  .type call_on_shifted_stack, @function
call_on_shifted_stack:
  .cfi_startproc
  pushq %rbp
  .cfi_def_cfa_offset 16
  .cfi_offset %rbp, -16
  movq %rsp, %rbp
  .cfi_def_cfa_register %rbp
  subq %rdx, %rsp
  movq %rdi, %rax
  movq %rsi, %rdi
  call *%rax
  leave
  .cfi_def_cfa %rsp, 8
  ret
  .cfi_endproc
  .size call_on_shifted_stack, . - call_on_shifted_stack
)");
#else
constexpr std::size_t shifts[] = {0, 4, 8, 12};
asm(R"(
  .text
  .type call_on_shifted_stack, @function
call_on_shifted_stack:
  .cfi_startproc
  pushl %ebp
  .cfi_def_cfa_offset 8
  .cfi_offset %ebp, -8
  movl %esp, %ebp
  .cfi_def_cfa_register %ebp
  subl $4, %esp
  subl 16(%ebp), %esp
  pushl 12(%ebp)
  call *8(%ebp)
  leave
  .cfi_def_cfa %esp, 4
  ret
  .cfi_endproc
  .size call_on_shifted_stack, . - call_on_shifted_stack
)");
#endif

namespace {

bool allocator_was_called_off;

// Behind the return address and the caller's frame pointer, the stack of a call is aligned.
void look_at_stack(const void* frame) {
  const auto behind = reinterpret_cast<std::uintptr_t>(frame) + 2 * sizeof(void*);
  if (behind % 16 != 0) allocator_was_called_off = true;
}

}  // namespace

extern "C" {

void call_on_shifted_stack(void (*function)(void*), void* argument, std::size_t shift);

// Instead of haldcore's.
void* haldMalloc(std::int32_t size) {
  look_at_stack(__builtin_frame_address(0));
  return std::aligned_alloc(64, (static_cast<std::size_t>(size) + 63) / 64 * 64);
}
void haldFree(void* memory) {
  look_at_stack(__builtin_frame_address(0));
  std::free(memory);
}

}  // extern "C"

namespace haldgen::test {
namespace {

/// Runs what calls the library, as the convention has it and off; whether both answer
/// haldStatusOk and leave the same floats. Anything else that `call` does must keep no vectors.
template <class Float, class Call>
void expect_same(const std::string& name, std::vector<Float>& dst, Call call) {
  std::vector<std::vector<Float>> results;
  for (const std::size_t shift : shifts) {
    allocator_was_called_off = false;
    std::ranges::fill(dst, Float{0});
    volatile std::int32_t status = 1;
    const auto run = [&] { status = call(); };
    using Run = decltype(run);
    ASSERT_FALSE(faults([&] {
      call_on_shifted_stack([](void* action) { (*static_cast<Run*>(action))(); },
                            const_cast<void*>(static_cast<const void*>(&run)), shift);
    })) << name
        << " faults";
    ASSERT_EQ(status, haldStatusOk) << name;
    EXPECT_FALSE(allocator_was_called_off) << name;
    results.push_back(dst);
  }
  for (const auto& result : results) EXPECT_TRUE(identical(results[0], result)) << name;
}

template <class Float>
void check_transforms() {
  for (const auto* transforms : {&live<Float>().fixed, &live<Float>().through_general}) {
    for (const Transform<Float>& transform : *transforms) {
      const auto src = random_floats<Float>(transform.src_floats + 1, 1);
      std::vector<Float> dst(transform.dst_floats + 1);
      for (const int offset : {0, 1}) {
        expect_same(transform.name, dst, [&] {
          return transform.call(src.data() + offset, dst.data() + offset, haldScaleNone);
        });
      }
    }
  }
}

/// A state is set up twice, in a buffer and in memory of the library's own, and runs.
template <class Float>
void check_planned() {
  using F = dct4::test::Functions<Float>;
  for (std::int32_t length = 2; length <= 1 << 17; length *= 2) {
    const auto points = static_cast<std::size_t>(length);
    const auto src = random_floats<Float>(points, 1);
    std::vector<Float> dst(2 * points);
    std::int32_t size = 0;
    ASSERT_EQ(F::get_size(length, &size), haldStatusOk);
    std::vector<std::uint8_t> buffer(static_cast<std::size_t>(size));
    expect_same("DCT-IV of " + std::to_string(length), dst, [&] {
      Dct4State* state = nullptr;
      std::int32_t status = F::get_size(length, &size);
      status |= F::init(&state, length, buffer.data());
      status |= F::transform(src.data(), dst.data(), state);
      status |= F::init_alloc(&state, length);
      status |= F::transform(dst.data(), dst.data() + points, state);
      return status | F::release(state);
    });
  }
}

TEST(Stack, BytesOffChangeNothing) {
  check_transforms<float>();
  check_transforms<double>();
  check_planned<float>();
  check_planned<double>();
  std::vector<float> none;
  expect_same("queries", none, [] {
    std::uint32_t size = 0;
    return haldgenGetLibVersion() == nullptr || haldgWHTGetBufferSize_32f(9, &size) != 0 ||
           haldgWHTGetBufferSize_64f(9, &size) != 0;
  });
}

}  // namespace
}  // namespace haldgen::test
