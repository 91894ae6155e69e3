// kissfft's and FFmpeg's transforms of real samples.
#include "bench/peers/real_peers.h"

#include <kiss_fftr.h>

extern "C" {
#include <libavutil/tx.h>
}

#include <memory>
#include <optional>
#include <utility>

#include "bench/peers/fftw_real.h"

namespace haldgen::bench {
namespace {

/// Debian ships kissfft for float only; its real transform has even lengths.
std::optional<Contestant> kissfft(const RealTransform& transform) {
  const bool has = transform.kind != RealKind::hartley &&
                   transform.element == names::Element::f32 && transform.length % 2 == 0;
  if (!has) return std::nullopt;
  const bool inverse = transform.kind == RealKind::inverse;
  const std::shared_ptr<kiss_fftr_state> plan(
      kiss_fftr_alloc(transform.length, inverse ? 1 : 0, nullptr, nullptr),
      [](kiss_fftr_state* state) { kiss_fft_free(state); });
  if (!plan) return std::nullopt;
  if (inverse) {
    return Contestant{"kissfft", Role::peer, [plan](const Walk& walk, std::int64_t calls) {
                        walk_calls(walk, calls,
                                   [state = plan.get()](const std::byte* src, std::byte* dst) {
                                     kiss_fftri(state, reinterpret_cast<const kiss_fft_cpx*>(src),
                                                reinterpret_cast<float*>(dst));
                                   });
                      }};
  }
  return Contestant{"kissfft", Role::peer, [plan](const Walk& walk, std::int64_t calls) {
                      walk_calls(walk, calls,
                                 [state = plan.get()](const std::byte* src, std::byte* dst) {
                                   kiss_fftr(state, reinterpret_cast<const float*>(src),
                                             reinterpret_cast<kiss_fft_cpx*>(dst));
                                 });
                    }};
}

FftwReal fftw_kind(RealKind kind) {
  if (kind == RealKind::forward) return FftwReal::r2c;
  return kind == RealKind::inverse ? FftwReal::c2r : FftwReal::hartley;
}

struct Uninit {
  void operator()(AVTXContext* context) const { av_tx_uninit(&context); }
};

/// Forward only: the inverse overwrites its source. Multiples of 4 only: of other even lengths what
/// it computes is no DFT.
std::optional<Contestant> av_tx(const RealTransform& transform) {
  if (transform.kind != RealKind::forward || transform.length % 4 != 0) return std::nullopt;
  const bool is_float = transform.element == names::Element::f32;
  const AVTXType type = is_float ? AV_TX_FLOAT_RDFT : AV_TX_DOUBLE_RDFT;
  const float float_scale = 1;
  const double double_scale = 1;
  const void* const scale = is_float ? static_cast<const void*>(&float_scale) : &double_scale;
  AVTXContext* context = nullptr;
  av_tx_fn function = nullptr;
  if (av_tx_init(&context, &function, type, 0, transform.length, scale, 0) < 0) {
    return std::nullopt;
  }
  const std::shared_ptr<AVTXContext> owner(context, Uninit());
  const auto stride = static_cast<std::ptrdiff_t>(transform.float_bytes());
  return Contestant{
      "av_tx", Role::peer, [owner, function, stride](const Walk& walk, std::int64_t calls) {
        walk_calls(walk, calls,
                   [context = owner.get(), function, stride](const std::byte* src, std::byte* dst) {
                     // The interface has no const; that the source stays is checked before timing.
                     function(context, dst, const_cast<std::byte*>(src), stride);
                   });
      }};
}

}  // namespace

std::vector<Contestant> real_peers(const RealTransform& transform) {
  std::vector<Contestant> all =
      fftw_real_contestants(fftw_kind(transform.kind), transform.element, transform.length);
  for (auto peer : {kissfft(transform), av_tx(transform)}) {
    if (peer) all.push_back(std::move(*peer));
  }
  return all;
}

}  // namespace haldgen::bench
