// The Walsh-Hadamard transform in lanes: the network of single transforms.
#include "wht/network.h"

#include "batch/body.h"
#include "batch/run.h"

namespace haldgen::batch {
namespace {

template <class FloatType>
struct WhtLanes {
  using Float = FloatType;
  using Value = Vector<Float>;
};

template <class Float>
struct Source {
  const Float* base;
  std::ptrdiff_t step;
  HALDGEN_INLINE Vector<Float> get(std::size_t k) const {
    return lanes::load_wide<Vector<Float>>(base + static_cast<std::ptrdiff_t>(k) * step);
  }
};

template <class Float>
struct ScaledSink {
  Float* base;
  std::ptrdiff_t step;
  Vector<Float> scale;
  HALDGEN_INLINE void put(std::size_t k, Vector<Float> value) const {
    lanes::store_wide<Vector<Float>>(base + static_cast<std::ptrdiff_t>(k) * step, value * scale);
  }
};

}  // namespace

template <class Float, int kOrder>
void run_wht_kernel(const RealRun<Float>& run) {
  Source<Float> from{run.src.first, run.src.step};
  ScaledSink<Float> to{run.dst.first, run.dst.step, lanes::splat<Vector<Float>>(run.scale)};
  for (std::ptrdiff_t group = run.groups; group > 0; --group) {
    wht::step<wht::Column, WhtLanes<Float>, std::size_t{1} << kOrder>(from, to);
    from.base += kLanes<Float>;
    to.base += kLanes<Float>;
  }
}

#define HALDGEN_ORDER(order)                                         \
  template void run_wht_kernel<float, order>(const RealRun<float>&); \
  template void run_wht_kernel<double, order>(const RealRun<double>&);
HALDGEN_ORDER(1)
HALDGEN_ORDER(2)
HALDGEN_ORDER(3)
HALDGEN_ORDER(4)
HALDGEN_ORDER(5)
HALDGEN_ORDER(6)
HALDGEN_ORDER(7)
#undef HALDGEN_ORDER

}  // namespace haldgen::batch
