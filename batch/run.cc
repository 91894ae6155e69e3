#include "batch/run.h"

#include <algorithm>

#include "haldgen.h"

namespace haldgen::batch {
namespace {

/// So few transforms take less time one by one than lanes of so many.
constexpr bool few(std::ptrdiff_t count, int lanes) { return count <= lanes / 3; }

/// A transform by the function that a user has for it.
template <class Float, class Kernel>
void run_single(const Transform<Float, Kernel>& transform, const Array<const Float>& src,
                const Array<Float>& dst, std::int32_t flag) {
  if (src.is_row() && dst.is_row()) {
    transform.single(src.first, dst.first, flag);
    return;
  }
  Float from[kTileFloats];
  Float to[kTileFloats];
  gather(from, src, transform.src_floats, 1, 1, 0);
  transform.single(from, to, flag);
  scatter(dst, to, transform.dst_floats, 1, 1, 0);
}

/// From transform `first` on: group(src, dst, valid) for groups, the last of which may have fewer
/// transforms than lanes, or one by one if they are few.
template <class Float, class Kernel, class Group>
void in_groups(const Transform<Float, Kernel>& transform, const Call<Float>& call, int lanes,
               std::ptrdiff_t first, const Group& group) {
  for (std::ptrdiff_t t = first; t < call.count; t += lanes) {
    const std::ptrdiff_t left = call.count - t;
    if (transform.single != nullptr && few(left, lanes)) {
      for (std::ptrdiff_t i = t; i < call.count; ++i) {
        run_single(transform, call.src.from(i), call.dst.from(i), call.flag);
      }
      return;
    }
    const int valid = static_cast<int>(std::min<std::ptrdiff_t>(left, lanes));
    group(call.src.from(t), call.dst.from(t), valid);
  }
}

/// Columns of at least one group: groups(first, count) for `count` groups from transform `first`
/// on. An incomplete one is made up of transforms that are done already, if their sources are left.
/// Returns how many transforms are done.
template <class Float, class Groups>
std::ptrdiff_t in_columns(const Call<Float>& call, int lanes, const Groups& groups) {
  groups(0, call.count / lanes);
  const std::ptrdiff_t rest = call.count % lanes;
  if (rest == 0 || call.in_place()) return call.count - rest;
  groups(call.count - lanes, 1);
  return call.count;
}

/// The values of an array of N real numbers, or of their half spectrum, `step` floats from one
/// position to the next.
template <class Float>
Values<Float> values_of(Float* first, std::ptrdiff_t step, Format format, int points) {
  Values<Float> values{first, first, first + (points - 1) * step, step};
  if (format == Format::ccs) {
    values.middle += step;
    values.last += step;
  } else if (format == Format::perm && points % 2 == 0) {
    values.middle += step;
    values.last = first + step;
  }
  return values;
}

/// Rows by their kernel; other arrays as rows on the stack, some at a time.
template <class Float>
void run_as_rows(const ComplexKernels<Float>& kernels, int floats, const Call<Float>& call,
                 std::ptrdiff_t first) {
  const bool from_memory = call.src.is_row();
  const bool to_memory = call.dst.is_row();
  const std::ptrdiff_t left = call.count - first;
  if (from_memory && to_memory) {
    const Array<const Float> src = call.src.from(first);
    const Array<Float> dst = call.dst.from(first);
    kernels.rows({src.first, src.dist, dst.first, dst.dist, left, call.scale});
    return;
  }
  constexpr int kRows = 16;
  alignas(64) Float from[kRows * kTileFloats];
  alignas(64) Float to[kRows * kTileFloats];
  for (std::ptrdiff_t t = first; t < call.count; t += kRows) {
    const int rows = static_cast<int>(std::min<std::ptrdiff_t>(call.count - t, kRows));
    const Array<const Float> src = call.src.from(t);
    const Array<Float> dst = call.dst.from(t);
    if (!from_memory) gather(from, src, floats, rows, 1, floats);
    kernels.rows({from_memory ? src.first : from, from_memory ? src.dist : floats,
                  to_memory ? dst.first : to, to_memory ? dst.dist : floats, rows, call.scale});
    if (!to_memory) scatter(dst, to, floats, rows, 1, floats);
  }
}

template <class Float, Width kWidth>
void run_real_in(const RealTransform<Float>& transform, const Call<Float>& call, Format src,
                 Format dst) {
  using V = Vector<Float, kWidth>;
  constexpr int kCountOfLanes = kLanes<Float, kWidth>;
  const int points = src == Format::ccs ? transform.dst_floats : transform.src_floats;
  // Neighbouring transforms of real numbers are vectors in memory.
  const bool in_memory = transform.kernel->in_memory;
  const bool from_memory = in_memory && call.src.parts == 1 && call.src.is_column();
  const bool to_memory = in_memory && call.dst.parts == 1 && call.dst.is_column();
  std::ptrdiff_t done = 0;
  const bool bins = src == Format::ccs || dst == Format::ccs;
  auto* const columns = bins ? transform.kernel->bins : transform.kernel->run;
  if (in_memory && columns != nullptr && call.src.is_column() && call.dst.is_column() &&
      call.count >= kCountOfLanes) {
    done = in_columns(call, kCountOfLanes, [&](std::ptrdiff_t first, std::ptrdiff_t groups) {
      const auto values = [&](const auto& array, Format format) {
        return values_of(array.from(first).first, array.step, bins ? Format::real : format, points);
      };
      columns({values(call.src, src), values(call.dst, dst), groups, call.scale});
    });
  }
  if (done == call.count) return;
  alignas(64) Float from[kTileFloats * kCountOfLanes];
  alignas(64) Float to[kTileFloats * kCountOfLanes];
  if (dst == Format::ccs) {
    *vectors<V>(to, 1) = V{};
    if (points % 2 == 0) *vectors<V>(to, points + 1) = V{};
  }
  const auto loaded = values_of<const Float>(from, kCountOfLanes, src, points);
  const auto stored = values_of<Float>(to, kCountOfLanes, dst, points);
  in_groups(transform, call, kCountOfLanes, done,
            [&](const Array<const Float>& source, const Array<Float>& destination, int valid) {
              const bool all = valid == kCountOfLanes;
              const bool load = !from_memory || !all;
              const bool store = !to_memory || !all;
              if (load) load_tile<V>(from, source, transform.src_floats, valid);
              transform.kernel->run(
                  {load ? loaded : values_of(source.first, source.step, src, points),
                   store ? stored : values_of(destination.first, destination.step, dst, points), 1,
                   call.scale});
              if (store) store_tile<V>(destination, to, transform.dst_floats, valid);
            });
}

}  // namespace

template <class Float>
void run_complex(const ComplexTransform<Float>& transform, const Call<Float>& call,
                 Direction direction) {
  using V = Vector<Float>;
  const bool forward = direction == Direction::forward;
  const ComplexKernels<Float>& kernels =
      forward ? transform.kernel->forward : transform.kernel->inverse;
  const int floats = transform.src_floats;
  std::ptrdiff_t done = 0;
  if (kernels.columns != nullptr && call.src.is_column() && call.dst.is_column() &&
      call.count >= kLanes<Float>) {
    done = in_columns(call, kLanes<Float>, [&](std::ptrdiff_t first, std::ptrdiff_t groups) {
      const Array<const Float> src = call.src.from(first);
      const Array<Float> dst = call.dst.from(first);
      kernels.columns({src.first, src.step, dst.first, dst.step, groups, call.scale});
    });
  }
  if (done == call.count) return;
  if (kernels.rows != nullptr) return run_as_rows(kernels, floats, call, done);
  alignas(64) Float from[kTileFloats * kLanes<Float>];
  alignas(64) Float to[kTileFloats * kLanes<Float>];
  const int re = kernels.tile_exchanged ? kLanes<Float> : 0;
  const int im = kLanes<Float> - re;
  in_groups(transform, call, kLanes<Float>, done,
            [&](const Array<const Float>& src, const Array<Float>& dst, int valid) {
              load_tile<V>(from, src, floats, valid);
              kernels.tile({from + re, from + im, to + re, to + im, call.scale});
              store_tile<V>(dst, to, floats, valid);
            });
}

template <class Float>
void run_real(const RealTransform<Float>& transform, const Call<Float>& call, Format src,
              Format dst) {
  if (transform.kernel->run == nullptr) {
    for (std::ptrdiff_t t = 0; t < call.count; ++t) {
      run_single(transform, call.src.from(t), call.dst.from(t), call.flag);
    }
    return;
  }
  if (transform.kernel->width == Width::half) {
    return run_real_in<Float, Width::half>(transform, call, src, dst);
  }
  run_real_in<Float, Width::whole>(transform, call, src, dst);
}

// The levels of the lower bits of the index, then those of the upper ones, each pass a batch of
// shorter transforms: of the same piece of all transforms where these are neighbours, else of all
// pieces of each transform. The first pass has no scale: one times a value is the value.
template <class Float>
void run_wht(int order, const RealTransform<Float>& transform, const Call<Float>& call) {
  if (order <= kKernelOrders) return run_real(transform, call, Format::real, Format::real);
  const std::ptrdiff_t lower = std::ptrdiff_t{1} << kKernelOrders;
  const std::ptrdiff_t upper = std::ptrdiff_t{1} << (order - kKernelOrders);
  const auto pass = [](int pass_order, const Array<const Float>& src, const Array<Float>& dst,
                       std::ptrdiff_t count, Float scale) {
    const int points = 1 << pass_order;
    run_real<Float>(
        {.kernel = wht_kernel<Float>(pass_order), .src_floats = points, .dst_floats = points},
        {src, dst, count, haldScaleNone, scale}, Format::real, Format::real);
  };
  // Every piece of lower points; every residue of upper ones.
  const auto pieces = [&](auto array) {
    return decltype(array){array.first, array.step, lower * array.step, 1};
  };
  const auto residues = [&](auto array) {
    return decltype(array){array.first, lower * array.step, array.step, 1};
  };
  const Array<const Float> between{call.dst.first, call.dst.step, call.dst.dist, 1};
  if (call.dst.is_column() && call.count >= kLanes<Float>) {
    const auto of_all = [&](auto piece, auto array, std::ptrdiff_t i) {
      return decltype(array){piece.from(i).first, piece.step, array.dist, 1};
    };
    for (std::ptrdiff_t i = 0; i < upper; ++i) {
      pass(kKernelOrders, of_all(pieces(call.src), call.src, i),
           of_all(pieces(call.dst), call.dst, i), call.count, 1);
    }
    for (std::ptrdiff_t j = 0; j < lower; ++j) {
      pass(order - kKernelOrders, of_all(residues(between), between, j),
           of_all(residues(call.dst), call.dst, j), call.count, call.scale);
    }
    return;
  }
  const bool one_array = call.src.dist == lower * upper * call.src.step &&
                         call.dst.dist == lower * upper * call.dst.step;
  if (one_array) {
    pass(kKernelOrders, pieces(call.src), pieces(call.dst), call.count * upper, 1);
  }
  for (std::ptrdiff_t t = 0; t < call.count; ++t) {
    if (!one_array)
      pass(kKernelOrders, pieces(call.src.from(t)), pieces(call.dst.from(t)), upper, 1);
    pass(order - kKernelOrders, residues(between.from(t)), residues(call.dst.from(t)), lower,
         call.scale);
  }
}

#define HALDGEN_RUN(Float)                                                                  \
  template void run_complex(const ComplexTransform<Float>&, const Call<Float>&, Direction); \
  template void run_real(const RealTransform<Float>&, const Call<Float>&, Format, Format);  \
  template void run_wht(int, const RealTransform<Float>&, const Call<Float>&);
HALDGEN_RUN(float)
HALDGEN_RUN(double)
#undef HALDGEN_RUN

}  // namespace haldgen::batch
