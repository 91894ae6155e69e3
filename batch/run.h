// How a batch is dealt out to kernels.
#pragma once

#include <cstdint>

#include "batch/array.h"

namespace haldgen::batch {

/// What arrays of real data hold, beside samples.
enum class Format { real, ccs, pack, perm };

/// What there is for one size. The scales are those of the single function.
template <class Float, class Kernel>
struct Transform {
  std::int32_t (*single)(const Float* src, Float* dst, std::int32_t flag) = nullptr;
  Kernel* kernel = nullptr;
  int src_floats = 0;
  int dst_floats = 0;
  Float by_n = 1;
  Float by_root = 1;
};

template <class Float>
using ComplexTransform = Transform<Float, const ComplexPair<Float>>;
template <class Float>
using RealTransform = Transform<Float, const RealKernel<Float>>;

/// What a call asks for, its arguments being good.
template <class Float>
struct Call {
  Array<const Float> src;
  Array<Float> dst;
  std::ptrdiff_t count;
  std::int32_t flag;
  Float scale;

  bool in_place() const { return src.first == dst.first; }
};

enum class Direction { forward, inverse };

template <class Float>
void run_complex(const ComplexTransform<Float>& transform, const Call<Float>& call,
                 Direction direction);

template <class Float>
void run_real(const RealTransform<Float>& transform, const Call<Float>& call, Format src,
              Format dst);

/// Orders from 8 on are two passes, over 2^7 points and over what is left.
template <class Float>
void run_wht(int order, const RealTransform<Float>& transform, const Call<Float>& call);

/// Orders with a kernel.
inline constexpr int kKernelOrders = 7;
template <class Float>
struct WhtKernels {
  static const RealKernel<Float> by_order[kKernelOrders];  ///< order k at [k - 1]
};

extern template struct WhtKernels<float>;
extern template struct WhtKernels<double>;

/// The kernel of an order; null if it has none.
template <class Float>
constexpr const RealKernel<Float>* wht_kernel(int order) {
  return order <= kKernelOrders ? &WhtKernels<Float>::by_order[order - 1] : nullptr;
}

}  // namespace haldgen::batch
