// Calls that allocate, one after the other, while the allocator fails at any of them: statuses are
// those of the contract, a call that fails writes nothing, and all memory comes back.
#include <haldcore.h>
#include <haldgen.h>

#include <algorithm>
#include <cstdlib>
#include <set>

#include "fuzz/planned.h"

namespace haldgen::fuzz {
namespace {

/// The allocator of this program.
struct Allocator {
  std::set<void*> taken;
  std::int32_t last_size = 0;
  int calls = 0;
  int failing = 0;  ///< the call that fails, from 1
};
Allocator allocator;

}  // namespace
}  // namespace haldgen::fuzz

extern "C" {

void* haldMalloc(std::int32_t size) {
  using haldgen::fuzz::allocator;
  allocator.last_size = size;
  if (++allocator.calls == allocator.failing) return nullptr;
  void* memory = nullptr;
  // Exactly so many bytes, for the sanitizer to see what is beyond.
  if (posix_memalign(&memory, haldMallocAlignment, static_cast<std::size_t>(size)) != 0) {
    return nullptr;
  }
  allocator.taken.insert(memory);
  return memory;
}

void haldFree(void* memory) {
  using haldgen::fuzz::allocator;
  haldgen::fuzz::expect(memory == nullptr || allocator.taken.erase(memory) == 1,
                        "what was not taken is given back");
  std::free(memory);
}

}  // extern "C"

namespace haldgen::fuzz {
namespace {

constexpr std::int32_t kLongest = 1 << 11;

struct Held {
  const Planned* planned;
  Dct4State* state;
};

void set_up(Choices& choices, std::vector<Held>& held) {
  const Planned& planned = kPlanned[choices.below(2)];
  const std::int32_t length = take_length(choices);
  if (length > kLongest) return;
  const std::string name = planned.name + (" of " + std::to_string(length));
  const std::size_t taken = allocator.taken.size();
  const bool fails = allocator.calls + 1 == allocator.failing;
  auto* const untouched = reinterpret_cast<Dct4State*>(&allocator);
  Dct4State* state = untouched;
  const std::int32_t status = planned.init_alloc(&state, length);
  if (!planned.has(length)) {
    expect(status == haldStatusSizeError && state == untouched, name, ": set up");
    expect(allocator.taken.size() == taken, name, " keeps memory");
  } else if (fails) {
    expect(status == haldStatusNullPointer && state == untouched, name, " without memory");
    expect(allocator.taken.size() == taken, name, " keeps memory");
  } else {
    std::int32_t size = 0;
    planned.get_size(length, &size);
    expect(status == haldStatusOk && state != untouched, name, ": not set up");
    expect(allocator.last_size == size, name, " takes another size");
    expect(allocator.taken.size() == taken + 1, name, " takes no block");
    const auto points = static_cast<std::size_t>(length);
    std::vector<double> x(points), y(points);
    expect(planned.call(x.data(), y.data(), state) == haldStatusOk, name, " refuses arrays");
    held.push_back({&planned, state});
  }
}

/// Transforms that take a work area.
const std::vector<const Function*>& buffered() {
  static const auto found = [] {
    std::vector<const Function*> result;
    for (const Function& f : functions()) {
      const auto last = f.entry->word->sizes.last();
      if ((f.general || f.entry->size == last) && work_bytes(f, last) != 0) {
        for (const Function& other : functions()) {
          if (other.entry->word->word == f.entry->word->word) result.push_back(&other);
        }
      }
    }
    return result;
  }();
  return found;
}

void transform(Choices& choices) {
  const auto& all = buffered();
  const Function& function = *all[choices.below(static_cast<unsigned>(all.size()))];
  const auto& sizes = function.entry->word->sizes;
  const int size =
      function.general
          ? *(sizes.begin() + choices.below(static_cast<unsigned>(sizes.end() - sizes.begin())))
          : function.entry->size;
  const std::int32_t flag = take_flag(choices);
  const std::size_t bytes =
      names::arrays(*function.entry->word, size).dst_floats * function.float_bytes;
  const Place src(0, bytes, choices, 1), dst(1, bytes, choices, 1);
  fill({src.data(), bytes}, choices.rest());
  const std::vector<std::byte> before(src.data(), src.data() + bytes);
  const std::string& name = function.entry->name;
  const bool takes = work_bytes(function, size) != 0 && valid(flag);
  const bool fails = takes && allocator.calls + 1 == allocator.failing;
  const std::size_t taken = allocator.taken.size();
  const int calls = allocator.calls;
  volatile std::int32_t status = 1;
  const auto call = [&] { status = function.call(src.data(), dst.data(), size, flag, nullptr); };
  if (fails) {
    // There is no status for it: the first store faults.
    expect(test::faults(call), name, " goes on without memory");
    dst.expect_unwritten(name);
  } else {
    call();
    expect(status == (valid(flag) ? haldStatusOk : haldStatusFlagError), name, ": status");
    if (valid(flag)) {
      dst.expect_untouched(name);
    } else {
      dst.expect_unwritten(name);
    }
  }
  expect(allocator.calls == calls + (takes ? 1 : 0), name, ": number of allocations");
  expect(allocator.taken.size() == taken, name, " keeps memory");
  src.expect_untouched(name);
  expect(std::memcmp(before.data(), src.data(), bytes) == 0, name, " wrote its source");
}

void run(Choices choices) {
  std::vector<Held> held;
  allocator.calls = 0;
  allocator.failing = choices.take<std::uint8_t>() % 8;
  for (int step = 0; step < 6 && !choices.empty(); ++step) {
    switch (choices.below(4)) {
      case 0:
        if (held.empty()) break;
        expect(held.back().planned->release(held.back().state) == haldStatusOk, "release");
        held.pop_back();
        break;
      case 1:
        transform(choices);
        break;
      default:
        set_up(choices, held);
    }
  }
  for (const Held& one : held) expect(one.planned->release(one.state) == haldStatusOk, "release");
  expect(allocator.taken.empty(), "memory is kept");
}

}  // namespace
}  // namespace haldgen::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  haldgen::fuzz::run(haldgen::fuzz::Choices({data, size}));
  return 0;
}
