// FFmpeg's transforms, from libavutil.
extern "C" {
#include <libavutil/tx.h>
}

#include <complex>
#include <memory>

#include "bench/peers/peers.h"

namespace haldgen::bench {
namespace {

struct Uninit {
  void operator()(AVTXContext* context) const { av_tx_uninit(&context); }
};

}  // namespace

std::optional<Contestant> av_tx_contestant(const ComplexProblem& problem) {
  const bool is_float = problem.element == names::Element::c32;
  const AVTXType type = is_float ? AV_TX_FLOAT_FFT : AV_TX_DOUBLE_FFT;
  const std::ptrdiff_t stride =
      is_float ? sizeof(std::complex<float>) : sizeof(std::complex<double>);
  const int inverse = problem.direction == Direction::inverse ? 1 : 0;
  const float float_scale = 1;
  const double double_scale = 1;
  const void* const scale = is_float ? static_cast<const void*>(&float_scale) : &double_scale;
  AVTXContext* context = nullptr;
  av_tx_fn function = nullptr;
  if (av_tx_init(&context, &function, type, inverse, problem.length, scale, 0) < 0) {
    return std::nullopt;
  }
  const std::shared_ptr<AVTXContext> owner(context, Uninit());
  return Contestant{
      "av_tx", Role::peer, [owner, function, stride](const Walk& walk, std::int64_t calls) {
        walk_calls(walk, calls,
                   [context = owner.get(), function, stride](const std::byte* src, std::byte* dst) {
                     // The interface has no const; that the source stays is checked before timing.
                     function(context, dst, const_cast<std::byte*>(src), stride);
                   });
      }};
}

}  // namespace haldgen::bench
