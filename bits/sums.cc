// Calls of every transform on every input, flag and placement.
#include "bits/sums.h"

#include <haldgen.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "bits/calls.h"
#include "bits/inputs.h"
#include "names/arrays.h"
#include "registry/registry.h"

namespace haldgen::bits {
namespace {

using names::Arrays;
using names::Element;
using names::Signature;
using registry::Export;

constexpr std::array<std::int32_t, 4> flags = {haldScaleFwdByN, haldScaleInvByN, haldScaleBySqrtN,
                                               haldScaleNone};

/// The DCT-IV has sums at the powers of two up to here: those of 64 bits at the lengths without
/// tables, which have the last bits of the maths library.
constexpr std::int32_t longest_dct4(Element element) {
  return element == Element::f32 ? 65536 : 32;
}

/// Bytes; arrays are placed a number of floats past a multiple of it, and work buffers at one.
constexpr std::size_t alignment = 16;

/// Calls a visitor with the type of an array's elements.
template <class Visitor>
auto with_type(Element element, Visitor&& visit) {
  switch (element) {
    case Element::f32:
      return visit.template operator()<float>();
    case Element::f64:
      return visit.template operator()<double>();
    case Element::c32:
      return visit.template operator()<Cplx32>();
    default:
      return visit.template operator()<Cplx64>();
  }
}

template <class Float>
Pattern<Float> pattern(Float value) {
  return std::bit_cast<Pattern<Float>>(std::isnan(value) ? std::numeric_limits<Float>::quiet_NaN()
                                                         : value);
}

class Checksum {
 public:
  template <class Float>
  void add(std::span<const Float> values) {
    for (const Float value : values) {
      Pattern<Float> rest = pattern(value);
      for (std::size_t byte = 0; byte < sizeof(Float); ++byte, rest >>= 8U) {
        sum_ = (sum_ ^ (rest & 0xFFU)) * 0x100000001B3U;
      }
    }
  }
  std::uint64_t value() const { return sum_; }

 private:
  std::uint64_t sum_ = 0xCBF29CE484222325U;
};

template <class Float>
bool same(std::span<const Float> a, std::span<const Float> b) {
  if (std::memcmp(a.data(), b.data(), a.size_bytes()) == 0) return true;
  return std::ranges::equal(a, b, {}, pattern<Float>, pattern<Float>);
}

/// Memory for `count` values, from any offset below `alignment` bytes on.
template <class Value>
class Room {
 public:
  explicit Room(std::size_t count) : values_(count + 2 * alignment / sizeof(Value)) {
    void* start = values_.data();
    std::size_t space = values_.size() * sizeof(Value);
    start_ = static_cast<Value*>(std::align(alignment, 1, start, space));
  }
  Room(const Room&) = delete;
  Room& operator=(const Room&) = delete;

  /// `offset` values past a multiple of the alignment.
  Value* at(std::size_t offset) { return start_ + offset; }

 private:
  std::vector<Value> values_;
  Value* start_;
};

/// Where the arrays of a call lie, in floats past a multiple of 16 bytes.
struct Placement {
  bool in_place;
  std::size_t src, dst;
};

/// All of them, apart and whole vectors first.
template <class Float>
std::vector<Placement> placements() {
  constexpr std::size_t offsets = alignment / sizeof(Float);
  std::vector<Placement> all = {{false, 0, 0}};
  for (std::size_t k = 1; k < offsets; ++k) {
    all.push_back({false, k, 0});
    all.push_back({false, 0, k});
    all.push_back({false, k, k});
  }
  for (std::size_t k = 0; k < offsets; ++k) all.push_back({true, k, k});
  return all;
}

template <class Float>
std::string text(const Placement& placement) {
  const auto bytes = [](std::size_t floats) { return std::to_string(floats * sizeof(Float)); };
  if (placement.in_place) return "in place, " + bytes(placement.src) + " bytes past a vector";
  return "src " + bytes(placement.src) + ", dst " + bytes(placement.dst) + " bytes past a vector";
}

template <class ArrayElement>
using Call = std::function<std::int32_t(const ArrayElement* src, ArrayElement* dst)>;

/// One of several ways to the same result.
template <class ArrayElement>
struct Way {
  std::string text;
  Call<ArrayElement> call;
};

/// Ways by flag: the results of all flags count, those of the ways must be the same.
template <class ArrayElement>
using Ways = std::vector<std::vector<Way<ArrayElement>>>;

/// The arrays of one transform and the calls on them.
template <class ArrayElement>
class Taker {
 public:
  using Float = typename FloatOf<ArrayElement>::Type;

  Taker(Arrays arrays, const Ways<ArrayElement>& ways)
      : arrays_(std::move(arrays)),
        ways_(ways),
        src_(arrays_.src_floats),
        dst_(std::max(arrays_.src_floats, arrays_.dst_floats)) {}

  Finding take() {
    std::uint64_t seed = 0;
    for (const InputSet& set : input_sets<Float>(arrays_.points)) {
      input_ = numbers<Float>(set, seed, arrays_.src_floats);
      for (const std::size_t gap : arrays_.src_gaps) {
        input_[gap] = std::numeric_limits<Float>::quiet_NaN();
      }
      // Every input meets every flag, and every placement under one of the flags in turn. Without
      // flags, one input in so many meets every placement.
      for (std::size_t k = 0; k < ways_.size(); ++k) {
        const bool everywhere = seed % flags.size() == k;
        const std::string fault =
            take(ways_[k], std::span(placements_).first(everywhere ? placements_.size() : 1));
        if (!fault.empty()) return {{}, fault};
      }
      ++seed;
    }
    return {checksum_.value(), {}};
  }

 private:
  std::string take(const std::vector<Way<ArrayElement>>& equal_ways,
                   std::span<const Placement> places) {
    std::vector<Float> first;
    for (const auto& way : equal_ways) {
      for (const Placement& placement : places) {
        const std::int32_t status = run(way, placement);
        if (status != haldStatusOk) {
          return way.text + text<Float>(placement) + ": status " + std::to_string(status);
        }
        const std::span<const Float> result(dst_.at(placement.dst), arrays_.dst_floats);
        if (first.empty()) {
          first.assign(result.begin(), result.end());
          checksum_.add<Float>(first);
        } else if (!same<Float>(first, result)) {
          return way.text + text<Float>(placement) + ": other bits than " + equal_ways[0].text +
                 text<Float>(places[0]);
        }
      }
    }
    return {};
  }

  std::int32_t run(const Way<ArrayElement>& way, const Placement& placement) {
    Float* const dst = dst_.at(placement.dst);
    Float* const src = placement.in_place ? dst : src_.at(placement.src);
    // A place that is not written has another value in place than apart.
    if (!placement.in_place) std::fill_n(dst, arrays_.dst_floats, Float{0.75});
    std::copy(input_.begin(), input_.end(), src);
    return way.call(reinterpret_cast<const ArrayElement*>(src),
                    reinterpret_cast<ArrayElement*>(dst));
  }

  Arrays arrays_;
  const Ways<ArrayElement>& ways_;
  Room<Float> src_, dst_;
  std::vector<Placement> placements_ = placements<Float>();
  std::vector<Float> input_;
  Checksum checksum_;
};

/// Finds functions by type; remembers the first that is missing.
class Library {
 public:
  explicit Library(const Find& find) : find_(find) {}

  template <class Function>
  Function* function(const std::string& name) {
    const auto address = find_(name);
    if (address == nullptr && missing_.empty()) missing_ = name;
    return reinterpret_cast<Function*>(address);
  }
  template <class Function>
  Function* function(Signature signature, Element element) {
    for (const Export& e : registry::exports()) {
      if (e.word->signature == signature && e.element == element) {
        return function<Function>(e.name);
      }
    }
    return nullptr;
  }
  const std::string& missing() const { return missing_; }

 private:
  const Find& find_;
  std::string missing_;
};

template <class ArrayElement>
Finding finding(const Library& library, const Arrays& arrays, const Ways<ArrayElement>& ways) {
  if (!library.missing().empty()) return {{}, "the library has no " + library.missing()};
  return Taker<ArrayElement>(arrays, ways).take();
}

/// The size is that of the name, or an argument of a general entry.
template <class ArrayElement>
Finding take_flagged(const Find& find, const Export& e, std::int32_t size) {
  Library library(find);
  const FlaggedCall<ArrayElement> call = flagged_call<ArrayElement>(
      reinterpret_cast<Address>(library.function<void()>(e.name)), e.word->signature, size);
  std::vector<std::pair<std::string, std::uint8_t*>> buffers = {{"", nullptr}};
  std::uint32_t bytes = 0;
  const Signature signature = e.word->signature;
  if (signature == Signature::buffered_transform ||
      signature == Signature::sized_buffered_transform) {
    auto* query = library.function<std::int32_t(std::int32_t, std::uint32_t*)>(
        Signature::order_query, e.element);
    if (query != nullptr) query(size, &bytes);
  }
  Room<std::uint8_t> buffer(bytes);
  if (bytes != 0) buffers.emplace_back("with a buffer, ", buffer.at(0));

  Ways<ArrayElement> ways;
  for (const std::int32_t flag : flags) {
    auto& equal_ways = ways.emplace_back();
    for (const auto& [text, area] : buffers) {
      equal_ways.push_back({text, [&call, flag, place = area](const auto* src, auto* dst) {
                              return call(src, dst, flag, place);
                            }});
    }
  }
  return finding(library, names::arrays(*e.word, size), ways);
}

Finding take_flagged(const Find& find, const Export& e, std::int32_t size) {
  return with_type(e.element,
                   [&]<class ArrayElement>() { return take_flagged<ArrayElement>(find, e, size); });
}

void take_general(const Find& find, const Export& general, Findings& findings) {
  Finding& finding = findings[general.name];
  for (const Export& fixed : registry::exports()) {
    if (!size_in_name(*fixed.word) || fixed.word->word != general.word->word ||
        fixed.element != general.element) {
      continue;
    }
    const Finding at_size = take_flagged(find, general, fixed.size);
    if (at_size.fault.empty() && at_size.sum == findings[fixed.name].sum) continue;
    finding.fault = "at " + std::to_string(fixed.size) + ": " +
                    (at_size.fault.empty() ? "not the bits of " + fixed.name : at_size.fault);
    return;
  }
}

template <class Float>
Finding take_dct4(const Find& find, Element element, std::int32_t length) {
  using Status = std::int32_t;
  Library library(find);
  auto* get_size =
      library.function<Status(std::int32_t, std::int32_t*)>(Signature::length_query, element);
  auto* init = library.function<Status(Dct4State**, std::int32_t, std::uint8_t*)>(
      Signature::plan_init, element);
  auto* init_alloc =
      library.function<Status(Dct4State**, std::int32_t)>(Signature::plan_init_alloc, element);
  auto* release = library.function<Status(Dct4State*)>(Signature::plan_free, element);
  auto* transform = library.function<Status(const Float*, Float*, Dct4State*)>(
      Signature::planned_transform, element);
  if (!library.missing().empty()) return finding<Float>(library, {}, {});

  std::int32_t bytes = 0;
  get_size(length, &bytes);
  Room<std::uint8_t> buffer(static_cast<std::size_t>(bytes));
  Dct4State* state = nullptr;
  Dct4State* allocated = nullptr;
  init(&state, length, buffer.at(1));
  init_alloc(&allocated, length);
  const auto call = [transform](Dct4State* of) {
    return [=](const Float* src, Float* dst) { return transform(src, dst, of); };
  };
  const auto count = static_cast<std::size_t>(length);
  Finding result = finding<Float>(
      library, {length, count, count, {}},
      {{{"state in a buffer, ", call(state)}, {"state allocated, ", call(allocated)}}});
  release(allocated);
  return result;
}

}  // namespace

Findings take_sums(const Find& find) {
  Findings findings;
  for (const Export& e : registry::exports()) {
    if (size_in_name(*e.word)) findings[e.name] = take_flagged(find, e, e.size);
  }
  for (const Export& e : registry::exports()) {
    if (is_general(*e.word)) take_general(find, e, findings);
  }
  for (const Export& e : registry::exports()) {
    if (e.word->signature != Signature::planned_transform) continue;
    for (std::int32_t length = 2; length <= longest_dct4(e.element); length *= 2) {
      findings[e.name + "/" + std::to_string(length)] =
          e.element == Element::f32 ? take_dct4<float>(find, e.element, length)
                                    : take_dct4<double>(find, e.element, length);
    }
  }
  return findings;
}

}  // namespace haldgen::bits
