// Callers whose stack is 8 bytes off the 16 of the calling convention, as one of an interpreter or
// of another compiler may be: every function of the table does for them what it does for others.
#include <gtest/gtest.h>
#include <haldgen.h>

#include <array>
#include <cstdlib>
#include <stdexcept>
#include <vector>

#include "bits/linked.h"
#include "frame/families.h"
#include "tests/contract/memory.h"
#include "tests/contract/transform.h"

// A shift of 0 is as the calling convention has it.
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
  movq %rsi, %r10
  movq 0(%r10), %rdi
  movq 8(%r10), %rsi
  movq 16(%r10), %rdx
  movq 24(%r10), %rcx
  movq 32(%r10), %r8
  call *%rax
  leave
  .cfi_def_cfa %rsp, 8
  ret
  .cfi_endproc
  .size call_on_shifted_stack, . - call_on_shifted_stack
)");

namespace {

bool allocator_was_called_off;

// Behind the return address and the caller's frame pointer, the stack of a call is aligned.
void look_at_stack(const void* frame) {
  if (reinterpret_cast<std::uintptr_t>(frame) % 16 != 0) allocator_was_called_off = true;
}

}  // namespace

extern "C" {

std::uint64_t call_on_shifted_stack(void* function, const std::uint64_t* arguments,
                                    std::uint64_t shift);

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

using frame::Element;
using frame::Export;
using frame::Signature;

std::uint64_t word(std::int32_t value) { return static_cast<std::uint32_t>(value); }
std::uint64_t word(const void* pointer) { return reinterpret_cast<std::uintptr_t>(pointer); }

/// What calls wrote.
using Outcome = std::vector<std::vector<std::byte>>;

/// Calls exported functions on a shifted stack and keeps what they do.
class Caller {
 public:
  explicit Caller(std::uint64_t shift) : shift_(shift) {}

  /// A fault throws, as does a status other than haldStatusOk.
  template <class... Arguments>
  void operator()(const std::string& name, Arguments... arguments) {
    const auto status = static_cast<std::int32_t>(result_of(name, arguments...));
    if (status != haldStatusOk) throw std::runtime_error(name + " refuses a valid call");
  }

  template <class... Arguments>
  std::uint64_t result_of(const std::string& name, Arguments... arguments) const {
    const auto function = reinterpret_cast<void*>(bits::linked()(name));
    if (function == nullptr) throw std::runtime_error("the library has no " + name);
    const std::array<std::uint64_t, 5> words = {word(arguments)...};
    volatile std::uint64_t returned = 0;
    if (faults([&] { returned = call_on_shifted_stack(function, words.data(), shift_); })) {
      throw std::runtime_error(name + " faults");
    }
    return returned;
  }

  template <class Value>
  void keep(const Value* values, std::size_t count) {
    const auto* const bytes = reinterpret_cast<const std::byte*>(values);
    outcome_.emplace_back(bytes, bytes + count * sizeof(Value));
  }

  const Outcome& outcome() const { return outcome_; }

 private:
  std::uint64_t shift_;
  Outcome outcome_;
};

std::string name_of(Signature signature, Element element) {
  for (const Export& entry : frame::live_exports()) {
    if (entry.family->signature == signature && entry.element == element) return entry.name;
  }
  throw std::logic_error("no function has the signature");
}

/// A state is set up twice, in a buffer and in memory of the library's own, and runs.
template <class Float>
void call_planned(Caller& call, const Export& entry) {
  for (std::int32_t length = 2; length <= 1 << 17; length *= 2) {
    const auto points = static_cast<std::size_t>(length);
    const std::vector<Float> src = random_floats<Float>(points, 1);
    std::vector<Float> dst(points);
    std::int32_t size = 0;
    call(name_of(Signature::length_query, entry.element), length, &size);
    std::vector<std::uint8_t> buffer(static_cast<std::size_t>(size));
    Dct4State* state = nullptr;
    call(name_of(Signature::plan_init, entry.element), &state, length, buffer.data());
    call(entry.name, src.data(), dst.data(), state);
    call.keep(dst.data(), points);
    call(name_of(Signature::plan_init_alloc, entry.element), &state, length);
    call(entry.name, dst.data(), dst.data(), state);
    call.keep(dst.data(), points);
    call(name_of(Signature::plan_free, entry.element), state);
  }
}

/// Calls a function in all ways that differ in what it does: sizes, aligned arrays and others, with
/// and without a work area.
template <class Float>
void call_all_ways(Caller& call, const Export& entry) {
  constexpr std::size_t kRoom = std::size_t{1} << 13;
  const std::vector<Float> numbers = random_floats<Float>(kRoom + 1, 1);
  alignas(64) static Float src[kRoom + 1];
  alignas(64) static Float dst[kRoom + 1];
  alignas(64) static std::uint8_t area[1 << 18];
  std::copy(numbers.begin(), numbers.end(), src);
  const frame::Range sizes =
      entry.size == 0 ? entry.family->sizes : frame::Range{entry.size, entry.size};
  std::int32_t result = 0;
  for (const int offset : {0, 1}) {
    for (int size = sizes.first; size <= sizes.last; ++size) {
      std::fill(std::begin(dst), std::end(dst), Float{0});
      switch (entry.family->signature) {
        case Signature::transform:
          call(entry.name, src + offset, dst + offset, haldScaleNone);
          break;
        case Signature::sized_transform:
          call(entry.name, src + offset, dst + offset, size, haldScaleNone);
          break;
        case Signature::buffered_transform:
          call(entry.name, src + offset, dst + offset, haldScaleNone, area);
          call.keep(dst, kRoom + 1);
          call(entry.name, src + offset, dst + offset, haldScaleNone, nullptr);
          break;
        case Signature::sized_buffered_transform:
          call(entry.name, src + offset, dst + offset, size, haldScaleNone, nullptr);
          break;
        case Signature::order_query:
          for (std::int32_t order = 1; order <= 13; ++order) {
            call(entry.name, order, &result);
            call.keep(&result, 1);
          }
          break;
        case Signature::version:
          if (call.result_of(entry.name) == 0) throw std::runtime_error("there is no version");
          break;
        case Signature::planned_transform:
          if (offset == 0) call_planned<Float>(call, entry);
          break;
        case Signature::length_query:
        case Signature::plan_init:
        case Signature::plan_init_alloc:
        case Signature::plan_free:
          // Their planned transform calls them.
          break;
      }
      call.keep(dst, kRoom + 1);
    }
  }
}

Outcome outcome(const Export& entry, std::uint64_t shift) {
  Caller call(shift);
  if (entry.element == Element::f64 || entry.element == Element::c64) {
    call_all_ways<double>(call, entry);
  } else {
    call_all_ways<float>(call, entry);
  }
  return call.outcome();
}

TEST(Stack, EightBytesOffChangeNothing) {
  for (const Export& entry : frame::live_exports()) {
    try {
      const Outcome expected = outcome(entry, 0);
      allocator_was_called_off = false;
      EXPECT_TRUE(outcome(entry, 8) == expected) << entry.name;
      EXPECT_FALSE(allocator_was_called_off) << entry.name;
    } catch (const std::exception& error) {
      ADD_FAILURE() << error.what();
    }
  }
}

}  // namespace
}  // namespace haldgen::test
