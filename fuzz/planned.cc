// The DCT-IV's size query, set-up and transform with any length, alignment and element type: a
// buffer of the queried size suffices wherever it lies, and neither its place nor that of the
// arrays changes a bit.
#include "fuzz/planned.h"

#include <map>

namespace haldgen::fuzz {
namespace {

/// Longer states would be slow to set up.
constexpr std::int32_t kLongest = 1 << 14;

/// A state in memory of its own, made once.
Dct4State* reference(const Planned& planned, std::int32_t length, std::int32_t size) {
  struct State {
    std::vector<std::uint8_t> memory;
    Dct4State* state = nullptr;
  };
  static std::map<std::pair<const char*, std::int32_t>, State> states;
  State& found = states[{planned.name, length}];
  if (found.state == nullptr) {
    found.memory.resize(static_cast<std::size_t>(size));
    expect(planned.init(&found.state, length, found.memory.data()) == haldStatusOk, planned.name,
           " refuses its length");
  }
  return found.state;
}

void run(Choices choices) {
  const Planned& planned = kPlanned[choices.below(2)];
  const std::int32_t length = take_length(choices);
  const std::string name = planned.name + (" of " + std::to_string(length));
  constexpr std::int32_t kKnown = 12345;
  std::int32_t size = kKnown;
  expect(planned.get_size(length, nullptr) == haldStatusNullPointer, name, ": null size");
  const std::int32_t answer = planned.get_size(length, &size);
  if (!planned.has(length)) expect(answer == haldStatusSizeError, name, ": size of no length");
  if (planned.has(length) && length <= planned.longest) {
    expect(answer == haldStatusOk && size > 0, name, ": no size");
  }
  if (answer != haldStatusOk) expect(size == kKnown, name, ": the refusal writes a size");

  Dct4State* const untouched = reinterpret_cast<Dct4State*>(&size);
  Dct4State* state = untouched;
  if (!planned.has(length) || length > planned.longest) {
    const Place place(0, 1, choices, 1);
    auto* const buffer = reinterpret_cast<std::uint8_t*>(place.data());
    expect(planned.init(&state, length, buffer) == haldStatusSizeError, name, ": set up");
    place.expect_unwritten(name);
    expect(state == untouched, name, ": the refusal writes a state");
    return;
  }
  expect(planned.init(nullptr, length, nullptr) == haldStatusNullPointer, name, ": null state");
  expect(planned.init(&state, length, nullptr) == haldStatusNullPointer, name, ": null buffer");
  expect(state == untouched, name, ": the refusal writes a state");
  if (length > kLongest) return;

  const auto points = static_cast<std::size_t>(length);
  const std::size_t bytes = points * planned.float_bytes;
  const Place buffer(0, static_cast<std::size_t>(size), choices, 1);
  const Place src_place(1, bytes, choices, 1), dst_place(2, bytes, choices, 1);
  const bool in_place = choices.chance(2);
  std::byte* const src = src_place.data();
  std::byte* const dst = in_place ? src : dst_place.data();
  fill({src, bytes}, choices.rest());
  expect(
      planned.init(&state, length, reinterpret_cast<std::uint8_t*>(buffer.data())) == haldStatusOk,
      name, ": not set up");

  static std::vector<std::max_align_t> memory(1 << 14);
  auto* const from = reinterpret_cast<std::byte*>(memory.data());
  std::byte* const to = from + memory.size() / 2 * sizeof(std::max_align_t);
  std::memcpy(from, src, bytes);
  std::memset(to, 0, bytes);
  expect(planned.call(from, to, reference(planned, length, size)) == haldStatusOk, name,
         " refuses aligned arrays");
  expect(planned.call(nullptr, dst, state) == haldStatusNullPointer &&
             planned.call(src, nullptr, state) == haldStatusNullPointer &&
             planned.call(src, dst, nullptr) == haldStatusNullPointer,
         name, " takes null");
  dst_place.expect_unwritten(name);
  expect(planned.call(src, dst, state) == haldStatusOk, name, " refuses valid arguments");
  // The last output of 2^k + 1 points is never written.
  const std::size_t written = points - points % 2;
  expect(planned.same_bits(dst, to, written), name, " has other bits there");
  buffer.expect_untouched(name);
  src_place.expect_untouched(name);
  if (in_place) {
    dst_place.expect_unwritten(name);
  } else {
    dst_place.expect_untouched(name);
    expect(std::memcmp(src, from, bytes) == 0, name, " wrote its source");
  }
}

}  // namespace
}  // namespace haldgen::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  haldgen::fuzz::run(haldgen::fuzz::Choices({data, size}));
  return 0;
}
