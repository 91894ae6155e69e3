#include "bits/planned.h"

#include <haldgen.h>

#include <limits>

#include "bits/taker.h"

namespace haldgen::bits {
namespace {

using names::Element;
using names::Signature;
using Status = std::int32_t;

/// Transforms are called up to here.
constexpr std::int32_t longest = 65536;

/// Sizes to ask for: all small ones, and those around the powers of two.
std::vector<std::int32_t> sizes_to_ask() {
  std::vector<std::int32_t> all = {std::numeric_limits<std::int32_t>::min()};
  constexpr int small = 12;
  for (std::int32_t size = -2; size <= 1 << small; ++size) all.push_back(size);
  for (int power = small + 1; power < 31; ++power) {
    for (const std::int32_t beside : {-1, 0, 1}) all.push_back((1 << power) + beside);
  }
  all.push_back(std::numeric_limits<std::int32_t>::max());
  return all;
}

/// Sizes are 32-bit words on every machine.
template <class Size>
Finding take_query(const Find& find, const LinkedFunction& f) {
  Library library(find);
  auto* const query = library.function<Status(std::int32_t, Size*)>(f.name);
  if (!library.complete()) return library.lack();
  Checksum checksum;
  for (const std::int32_t asked : sizes_to_ask()) {
    Size size = 77;
    checksum.add_status(query(asked, &size));
    checksum.add_number(static_cast<std::uint32_t>(size));
    checksum.add_status(query(asked, nullptr));
  }
  return {checksum.value(), {}};
}

/// The functions of a planned transform.
template <class Float>
struct Planned {
  Planned(const Find& find, Element element)
      : library(find),
        get_size(library.function<Status(std::int32_t, std::int32_t*)>(Signature::length_query,
                                                                       element)),
        init(library.function<Status(Dct4State**, std::int32_t, std::uint8_t*)>(
            Signature::plan_init, element)),
        init_alloc(library.function<Status(Dct4State**, std::int32_t)>(Signature::plan_init_alloc,
                                                                       element)),
        release(library.function<Status(Dct4State*)>(Signature::plan_free, element)),
        transform(library.function<Status(const Float*, Float*, Dct4State*)>(
            Signature::planned_transform, element)) {}

  Library library;
  Status (*get_size)(std::int32_t, std::int32_t*);
  Status (*init)(Dct4State**, std::int32_t, std::uint8_t*);
  Status (*init_alloc)(Dct4State**, std::int32_t);
  Status (*release)(Dct4State*);
  Status (*transform)(const Float*, Float*, Dct4State*);
};

template <class Float>
Finding take_transform(const Find& find, Element element, std::int32_t length) {
  const Planned<Float> f(find, element);
  if (!f.library.complete()) return f.library.lack();
  std::int32_t bytes = 0;
  if (f.get_size(length, &bytes) != haldStatusOk || bytes < 0) return {0, "no size of a state"};
  Room<std::uint8_t> buffer(static_cast<std::size_t>(bytes));
  Dct4State* state = nullptr;
  Dct4State* allocated = nullptr;
  f.init(&state, length, buffer.at(1));
  f.init_alloc(&allocated, length);
  const auto call = [&f](Dct4State* of) {
    return [&f, of](const Float* src, Float* dst) { return f.transform(src, dst, of); };
  };
  const auto count = static_cast<std::size_t>(length);
  const Ways<Float> ways = {
      {{"state in a buffer, ", call(state)}, {"state allocated, ", call(allocated)}}};
  Finding result = Taker<Float>({length, count, count}, ways).take();
  f.release(allocated);
  return result;
}

/// Statuses for all lengths, and results with the states of those that are not too long. Lengths
/// that are no powers of two have states as well, with rotations of their own.
template <class Float>
Finding take_set_up(const Find& find, Element element, bool allocates) {
  const Planned<Float> f(find, element);
  if (!f.library.complete()) return f.library.lack();
  Checksum checksum;
  const auto set_up = [&](Dct4State** state, std::int32_t length, std::uint8_t* buffer) {
    const Status status = allocates ? f.init_alloc(state, length) : f.init(state, length, buffer);
    checksum.add_status(status);
    return status;
  };
  for (const std::int32_t length : sizes_to_ask()) {
    std::int32_t bytes = 0;
    const bool has_size = f.get_size(length, &bytes) == haldStatusOk && bytes >= 0;
    if (has_size && length > longest + 1) continue;
    Room<std::uint8_t> buffer(static_cast<std::size_t>(has_size ? bytes : 0));
    Dct4State* state = nullptr;
    const Status status = set_up(&state, length, buffer.at(1));
    checksum.add_number(static_cast<std::uint32_t>(state != nullptr));
    if (status != haldStatusOk || state == nullptr) continue;
    const auto count = static_cast<std::size_t>(length);
    constexpr int full = std::numeric_limits<Float>::digits;
    const std::vector<Float> src = numbers<Float>({full, -full, -full}, count, count);
    std::vector<Float> dst(count);
    checksum.add_status(f.transform(src.data(), dst.data(), state));
    checksum.add(std::span<const Float>(dst));
    if (allocates) f.release(state);
  }
  std::uint8_t byte = 0;
  Dct4State* state = nullptr;
  set_up(nullptr, 2, &byte);
  if (!allocates) set_up(&state, 2, nullptr);
  return {checksum.value(), {}};
}

template <class Float>
Finding take_release(const Find& find, Element element) {
  const Planned<Float> f(find, element);
  if (!f.library.complete()) return f.library.lack();
  Checksum checksum;
  checksum.add_status(f.release(nullptr));
  for (std::int32_t length = 2; length <= longest; length *= 2) {
    Dct4State* state = nullptr;
    if (f.init_alloc(&state, length) != haldStatusOk) return {0, "nothing to release"};
    checksum.add_status(f.release(state));
  }
  return {checksum.value(), {}};
}

template <class Float>
Finding take_service(const Find& find, const LinkedFunction& f) {
  switch (f.signature) {
    case Signature::order_query:
      return take_query<std::uint32_t>(find, f);
    case Signature::length_query:
      return take_query<std::int32_t>(find, f);
    case Signature::plan_init:
      return take_set_up<Float>(find, f.element, false);
    case Signature::plan_init_alloc:
      return take_set_up<Float>(find, f.element, true);
    default:
      return take_release<Float>(find, f.element);
  }
}

}  // namespace

Finding take_service(const Find& find, const LinkedFunction& service) {
  return service.element == Element::f32 ? take_service<float>(find, service)
                                         : take_service<double>(find, service);
}

void take_planned(const Find& find, const LinkedFunction& transform, Findings& findings) {
  for (std::int32_t length = 2; length <= longest; length *= 2) {
    findings[std::string(transform.name) + "/" + std::to_string(length)] =
        transform.element == Element::f32 ? take_transform<float>(find, transform.element, length)
                                          : take_transform<double>(find, transform.element, length);
  }
}

}  // namespace haldgen::bits
