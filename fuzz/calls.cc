#include "fuzz/calls.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <map>
#include <tuple>

#include "bits/linked.h"

namespace haldgen::fuzz {

using names::Element;

void fail(std::string_view name, std::string_view what) {
  std::cerr << "found: " << name << what << '\n';
  std::abort();
}

std::int32_t take_flag(Choices& choices) {
  if (choices.chance(8)) return choices.take<std::int32_t>();
  constexpr std::array<std::int32_t, 4> kFlags{haldScaleFwdByN, haldScaleInvByN, haldScaleBySqrtN,
                                               haldScaleNone};
  return kFlags[choices.below(4)];
}

bool valid(std::int32_t flag) {
  return flag == haldScaleFwdByN || flag == haldScaleInvByN || flag == haldScaleBySqrtN ||
         flag == haldScaleNone;
}

Place::Place(std::size_t kind, std::size_t bytes, Choices& choices, std::size_t step)
    : bytes_(bytes) {
  constexpr std::size_t kSlack = 64;
  // Pages are made once for each size that is a power of two, so that few bytes are looked at.
  static std::map<std::pair<std::size_t, std::size_t>, test::GuardedPages> pages;
  std::size_t size = 4096;
  while (size < bytes + kSlack) size *= 2;
  around_ = pages.try_emplace({kind, size}, size).first->second.bytes();
  const std::size_t distance = choices.below(kSlack) / step * step;
  const test::Placement placement{choices.chance(2), distance};
  data_ = around_.data() + placement.offset(bytes, size);
  std::memset(around_.data(), static_cast<int>(kKnown), around_.size());
}

namespace {
bool known(std::span<const std::byte> bytes) {
  // As one comparison with the same a byte further on.
  return bytes.empty() || (bytes.front() == Place::kKnown &&
                           std::memcmp(bytes.data(), bytes.data() + 1, bytes.size() - 1) == 0);
}
}  // namespace

void Place::expect_untouched(std::string_view name) const {
  const auto before = static_cast<std::size_t>(data_ - around_.data());
  expect(known(around_.first(before)) && known(around_.subspan(before + bytes_)), name,
         " wrote beside an array");
}

void Place::expect_unwritten(std::string_view name) const {
  expect(known(around_), name, " wrote although it failed");
}

void fill(std::span<std::byte> array, Bytes pattern) {
  if (pattern.empty()) {
    std::memset(array.data(), 0, array.size());
    return;
  }
  for (std::size_t done = 0; done < array.size(); done += pattern.size()) {
    std::memcpy(array.data() + done, pattern.data(), std::min(pattern.size(), array.size() - done));
  }
}

namespace {

template <class T>
std::int32_t call_as(bits::Address address, names::Signature signature, const void* src, void* dst,
                     std::int32_t size, std::int32_t flag, std::uint8_t* buffer) {
  return bits::flagged_call<T>(address, signature, size)(static_cast<const T*>(src),
                                                         static_cast<T*>(dst), flag, buffer);
}

/// By index in functions().
std::vector<bits::Address> addresses;

std::vector<Function> all_functions() {
  std::vector<Function> all;
  for (const registry::Export& e : registry::exports()) {
    if (e.word->usage.scaling == names::Scaling::none) continue;
    const bool narrow = e.element == Element::f32 || e.element == Element::c32;
    const bool real = e.element == Element::f32 || e.element == Element::f64;
    all.push_back({&e, narrow ? sizeof(float) : sizeof(double), narrow, is_general(*e.word), real});
    addresses.push_back(bits::linked()(e.name));
    expect(addresses.back() != nullptr, e.name, " is missing");
  }
  return all;
}

}  // namespace

std::int32_t Function::call(const void* src, void* dst, std::int32_t size, std::int32_t flag,
                            std::uint8_t* buffer) const {
  const bits::Address address = addresses[static_cast<std::size_t>(this - functions().data())];
  const auto signature = entry->word->signature;
  switch (entry->element) {
    case Element::f32:
      return call_as<float>(address, signature, src, dst, size, flag, buffer);
    case Element::f64:
      return call_as<double>(address, signature, src, dst, size, flag, buffer);
    case Element::c32:
      return call_as<Cplx32>(address, signature, src, dst, size, flag, buffer);
    default:
      return call_as<Cplx64>(address, signature, src, dst, size, flag, buffer);
  }
}

const std::vector<Function>& functions() {
  static const std::vector<Function> all = all_functions();
  return all;
}

const Function& fixed(const Function& function, int size) {
  using Key = std::tuple<std::string, Element, int>;
  static const auto by_size = [] {
    std::map<Key, const Function*> result;
    for (const Function& f : functions()) {
      if (!f.general) result[{f.entry->word->word, f.entry->element, f.entry->size}] = &f;
    }
    return result;
  }();
  return *by_size.at({function.entry->word->word, function.entry->element, size});
}

std::size_t work_bytes(const Function& function, int size) {
  const auto signature = function.entry->word->signature;
  if (signature != names::Signature::buffered_transform &&
      signature != names::Signature::sized_buffered_transform) {
    return 0;
  }
  std::uint32_t bytes = 0;
  const std::int32_t status = function.narrow ? haldgWHTGetBufferSize_32f(size, &bytes)
                                              : haldgWHTGetBufferSize_64f(size, &bytes);
  expect(status == haldStatusOk, "the work area has no size");
  return bytes;
}

}  // namespace haldgen::fuzz
