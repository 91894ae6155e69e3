// Any transform with any size, flag, null pointer and placement: the status is that of the
// contract, what is refused writes nothing, and what is done gives the bits of an aligned call,
// wherever the arrays lie.
#include <algorithm>

#include "fuzz/calls.h"

namespace haldgen::fuzz {
namespace {

std::int32_t take_size(const Function& function, Choices& choices) {
  if (!function.general) return function.entry->size;
  if (choices.chance(8)) return choices.take<std::int32_t>();
  const auto& sizes = function.entry->word->sizes;
  return *(sizes.begin() + choices.below(static_cast<unsigned>(sizes.end() - sizes.begin())));
}

void run(Choices choices) {
  const auto& all = functions();
  const Function& function = all[choices.below(static_cast<unsigned>(all.size()))];
  const names::Word& word = *function.entry->word;
  const std::int32_t wanted = take_size(function, choices);
  const bool has_size = word.sizes.contains(wanted) || !function.general;
  const int size = has_size ? wanted : 0;
  const std::int32_t flag = take_flag(choices);
  const bool null_src = choices.chance(16), null_dst = choices.chance(16);
  const bool in_place = choices.chance(2), has_work = choices.chance(2);
  std::int32_t expected = haldStatusOk;
  if (!has_size) {
    expected = haldStatusSizeError;
  } else if (null_src || null_dst) {
    expected = haldStatusNullPointer;
  } else if (!valid(flag)) {
    expected = haldStatusFlagError;
  }

  const names::Arrays arrays = has_size ? names::arrays(word, size) : names::Arrays{1, 1, 1, {}};
  const std::size_t src_bytes = arrays.src_floats * function.float_bytes;
  const std::size_t dst_bytes = arrays.dst_floats * function.float_bytes;
  const std::size_t step = function.real ? 1 : function.float_bytes;
  const Place src_place(0, in_place ? std::max(src_bytes, dst_bytes) : src_bytes, choices, step);
  const Place dst_place(1, dst_bytes, choices, step);
  const std::size_t work_size = has_size ? work_bytes(function, size) : 0;
  const Place work(2, work_size, choices, 16);
  std::byte* const src = src_place.data();
  std::byte* const dst = in_place ? src : dst_place.data();
  auto* const buffer = has_work ? reinterpret_cast<std::uint8_t*>(work.data()) : nullptr;
  const auto call = [&] {
    return function.call(null_src ? nullptr : src, null_dst ? nullptr : dst, wanted, flag, buffer);
  };
  const std::string& name = function.entry->name;

  if (expected != haldStatusOk) {
    expect(call() == expected, name, " answers with another status");
    src_place.expect_unwritten(name);
    dst_place.expect_unwritten(name);
    work.expect_unwritten(name);
    return;
  }
  // What is behind the floats of the source in the longer array of a call in place is not read.
  fill({src, src_bytes}, choices.rest());
  static std::vector<std::max_align_t> memory(3 << 14);
  auto* const aligned = reinterpret_cast<std::byte*>(memory.data());
  constexpr std::size_t kThird = sizeof(std::max_align_t) << 14;
  std::byte *const from = aligned, *const to = aligned + kThird;
  std::memcpy(from, src, src_bytes);
  expect(fixed(function, size)
                 .call(from, to, size, flag,
                       reinterpret_cast<std::uint8_t*>(aligned + 2 * kThird)) == haldStatusOk,
         name, " refuses aligned arrays");
  expect(call() == haldStatusOk, name, " refuses valid arguments");
  const bool equal = function.narrow ? same<float>(dst, to, arrays.dst_floats)
                                     : same<double>(dst, to, arrays.dst_floats);
  expect(equal, name, " has other bits there");
  src_place.expect_untouched(name);
  dst_place.expect_untouched(name);
  work.expect_untouched(name);
  // In place, what is longer than the result keeps its end.
  const std::size_t written = in_place ? dst_bytes : 0;
  if (written < src_bytes) {
    expect(std::memcmp(src + written, from + written, src_bytes - written) == 0, name,
           " wrote its source");
  }
  if (in_place) dst_place.expect_unwritten(name);
}

}  // namespace
}  // namespace haldgen::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  haldgen::fuzz::run(haldgen::fuzz::Choices({data, size}));
  return 0;
}
