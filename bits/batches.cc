#include "bits/batches.h"

#include <cstddef>
#include <functional>
#include <utility>

#include "bits/taker.h"
#include "frame/linked_functions.h"

namespace haldgen::bits {
namespace {

using frame::LinkedFunction;
using names::Element;
using names::Signature;

/// src, srcStep, srcDist, dst, dstStep, dstDist, length or order, count, flag.
template <class Src, class Dst>
using BatchFunction = std::int32_t(const Src*, std::ptrdiff_t, std::ptrdiff_t, Dst*, std::ptrdiff_t,
                                   std::ptrdiff_t, std::int32_t, std::ptrdiff_t, std::int32_t);
/// The same on floats.
template <class Float>
using BatchCall = std::function<BatchFunction<Float, Float>>;
template <class Src, class Dst, class Float>
BatchCall<Float> batch_call(Address address) {
  auto* const function = reinterpret_cast<BatchFunction<Src, Dst>*>(address);
  return [function](const Float* src, std::ptrdiff_t src_step, std::ptrdiff_t src_dist, Float* dst,
                    std::ptrdiff_t dst_step, std::ptrdiff_t dst_dist, std::int32_t size,
                    std::ptrdiff_t count, std::int32_t flag) {
    return function(reinterpret_cast<const Src*>(src), src_step, src_dist,
                    reinterpret_cast<Dst*>(dst), dst_step, dst_dist, size, count, flag);
  };
}

std::string batch_name(const LinkedFunction& fixed) {
  for (const LinkedFunction& f : frame::linked_functions()) {
    const bool general = f.signature == Signature::sized_transform ||
                         f.signature == Signature::sized_buffered_transform;
    if (general && f.word == fixed.word && f.element == fixed.element) {
      return "haldb" + std::string(f.name.substr(f.name.find(f.word)));
    }
  }
  return std::string(fixed.word);
}

/// The arrays of all transforms on one side, counted in elements of `width` floats.
struct Side {
  std::ptrdiff_t elements;
  std::ptrdiff_t width;
  std::ptrdiff_t step;
  std::ptrdiff_t dist;

  std::ptrdiff_t place(std::ptrdiff_t p, std::ptrdiff_t transform) const {
    return (p / width * step + transform * dist) * width + p % width;
  }
};

/// Bins and complex numbers are two floats.
Side side(std::int32_t floats, std::int32_t points) {
  const std::ptrdiff_t width = floats > points ? 2 : 1;
  return {floats / width, width, 1, 0};
}

struct Layout {
  const char* text;
  std::ptrdiff_t piece;  ///< transforms of a call
  void (*lay)(Side& side, std::ptrdiff_t count);
};
constexpr Layout layouts[] = {
    {"rows", 7, [](Side& s, std::ptrdiff_t /*count*/) { s.dist = s.elements; }},
    {"columns", 64,
     [](Side& s, std::ptrdiff_t count) {
       s.step = count;
       s.dist = 1;
     }},
    {"spread", 19,
     [](Side& s, std::ptrdiff_t /*count*/) {
       s.step = 2;
       s.dist = 2 * s.elements + 1;
     }},
};

template <class Float>
class BatchTaker {
 public:
  BatchTaker(BatchCall<Float> call, const LinkedFunction& fixed)
      : call_(std::move(call)), fixed_(fixed) {
    std::uint64_t seed = 0;
    for (const InputSet& set : input_sets<Float>(fixed.points)) {
      auto& input = inputs_.emplace_back(
          numbers<Float>(set, seed++, static_cast<std::size_t>(fixed.src_floats)));
      for (const std::int32_t gap : fixed.src_gaps) {
        if (gap != 0) {
          input[static_cast<std::size_t>(gap)] = std::numeric_limits<Float>::quiet_NaN();
        }
      }
    }
  }

  Finding take() {
    std::vector<Results> by_flag;
    for (const std::int32_t flag : flags) {
      Results& first = by_flag.emplace_back();
      for (const Layout& layout : layouts) {
        Results results;
        const std::int32_t status = run(layout, flag, results);
        if (status != haldStatusOk) {
          return {0, std::string(layout.text) + ": status " + std::to_string(status)};
        }
        if (first.empty()) first = results;
        for (std::size_t t = 0; t < first.size(); ++t) {
          if (!same<Float>(first[t], results[t])) {
            return {0, std::string(layout.text) + ": other bits than " + layouts[0].text};
          }
        }
      }
    }
    Checksum checksum;
    for (std::size_t t = 0; t < inputs_.size(); ++t) {
      for (const Results& results : by_flag) checksum.add<Float>(results[t]);
    }
    return {checksum.value(), {}};
  }

 private:
  using Results = std::vector<std::vector<Float>>;

  std::int32_t run(const Layout& layout, std::int32_t flag, Results& results) const {
    const auto count = static_cast<std::ptrdiff_t>(inputs_.size());
    Side from = side(fixed_.src_floats, fixed_.points);
    Side to = side(fixed_.dst_floats, fixed_.points);
    layout.lay(from, count);
    layout.lay(to, count);
    const auto size = [&](const Side& s) {
      return static_cast<std::size_t>(s.place(s.elements * s.width - 1, count - 1) + 1);
    };
    std::vector<Float> src(size(from));
    std::vector<Float> dst(size(to));
    for (std::ptrdiff_t t = 0; t < count; ++t) {
      for (std::ptrdiff_t p = 0; p < fixed_.src_floats; ++p) {
        src[index(from.place(p, t))] = inputs_[index(t)][index(p)];
      }
    }
    for (std::ptrdiff_t t = 0; t < count; t += layout.piece) {
      const std::int32_t status =
          call_(&src[index(from.place(0, t))], from.step, from.dist, &dst[index(to.place(0, t))],
                to.step, to.dist, fixed_.size, std::min(layout.piece, count - t), flag);
      if (status != haldStatusOk) return status;
    }
    results.assign(inputs_.size(), {});
    for (std::ptrdiff_t t = 0; t < count; ++t) {
      for (std::ptrdiff_t p = 0; p < fixed_.dst_floats; ++p) {
        results[index(t)].push_back(dst[index(to.place(p, t))]);
      }
    }
    return haldStatusOk;
  }
  static std::size_t index(std::ptrdiff_t i) { return static_cast<std::size_t>(i); }

  BatchCall<Float> call_;
  const LinkedFunction& fixed_;
  std::vector<std::vector<Float>> inputs_;
};

template <class Float, class Complex>
Finding take_batch(Address address, const LinkedFunction& fixed) {
  const bool from_bins = side(fixed.src_floats, fixed.points).width == 2;
  const bool to_bins = side(fixed.dst_floats, fixed.points).width == 2;
  const auto call = from_bins && to_bins ? batch_call<Complex, Complex, Float>(address)
                    : from_bins          ? batch_call<Complex, Float, Float>(address)
                    : to_bins            ? batch_call<Float, Complex, Float>(address)
                                         : batch_call<Float, Float, Float>(address);
  return BatchTaker<Float>(call, fixed).take();
}
Finding take_batch(const Find& find, const LinkedFunction& fixed) {
  const std::string name = batch_name(fixed);
  const Address address = find(name);
  if (address == nullptr) return {0, "the library has no " + name};
  const bool in32 = fixed.element == Element::f32 || fixed.element == Element::c32;
  return in32 ? take_batch<float, Cplx32>(address, fixed)
              : take_batch<double, Cplx64>(address, fixed);
}

}  // namespace

Findings take_batch_sums(const Find& find_batch) {
  Findings findings;
  for (const LinkedFunction& f : frame::linked_functions()) {
    const bool batched =
        f.signature == Signature::transform || f.signature == Signature::buffered_transform;
    if (batched && f.size != 0) findings[std::string(f.name)] = take_batch(find_batch, f);
  }
  return findings;
}

int batch_vector_bits(const Find& find_batch) {
  const Address address = find_batch("haldbGetVectorBits");
  return address == nullptr ? 128 : reinterpret_cast<std::int32_t (*)()>(address)();
}

}  // namespace haldgen::bits
