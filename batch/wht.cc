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

template <class Float, int kOrder>
void run_order(const RealRun<Float>& run) {
  Source<Float> from{run.src.first, run.src.step};
  ScaledSink<Float> to{run.dst.first, run.dst.step, lanes::splat<Vector<Float>>(run.scale)};
  for (std::ptrdiff_t group = run.groups; group > 0; --group) {
    wht::step<wht::Column, WhtLanes<Float>, std::size_t{1} << kOrder>(from, to);
    from.base += kLanes<Float>;
    to.base += kLanes<Float>;
  }
}

}  // namespace

template <class Float>
const RealKernel<Float> WhtKernels<Float>::by_order[kKernelOrders] = {
    {run_order<Float, 1>, Width::whole, true}, {run_order<Float, 2>, Width::whole, true},
    {run_order<Float, 3>, Width::whole, true}, {run_order<Float, 4>, Width::whole, true},
    {run_order<Float, 5>, Width::whole, true}, {run_order<Float, 6>, Width::whole, true},
    {run_order<Float, 7>, Width::whole, true}};
template struct WhtKernels<float>;
template struct WhtKernels<double>;

}  // namespace haldgen::batch
