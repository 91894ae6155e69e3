// FFmpeg's transforms, from libavutil; and which releases of the other libraries this program runs.
#include <fftw3.h>
extern "C" {
// The header's word. NOLINTNEXTLINE(bugprone-reserved-identifier)
#define __STDC_CONSTANT_MACROS  // asked for by the header in C++
#include <libavutil/avutil.h>
#include <libavutil/tx.h>
}

#include "bench/peers/peers.h"

namespace haldgen::bench {

std::optional<Contestant> av_tx_contestant(const Problem& problem) {
  const bool is_float = problem.is_float();
  AVTXType type = is_float ? AV_TX_FLOAT_FFT : AV_TX_DOUBLE_FFT;
  std::size_t stride = 2 * problem.float_bytes();
  if (problem.transform == Transform::real && problem.length % 4 == 0) {
    type = is_float ? AV_TX_FLOAT_RDFT : AV_TX_DOUBLE_RDFT;
    stride = problem.float_bytes();
  } else if (problem.transform != Transform::dft && problem.transform != Transform::inverse_dft) {
    return std::nullopt;
  }
  const float float_scale = 1;
  const double double_scale = 1;
  const void* const scale = is_float ? static_cast<const void*>(&float_scale) : &double_scale;
  AVTXContext* context = nullptr;
  av_tx_fn function = nullptr;
  const int inverse = problem.is_inverse() ? 1 : 0;
  if (av_tx_init(&context, &function, type, inverse, problem.length, scale, 0) < 0) {
    return std::nullopt;
  }
  const std::shared_ptr<AVTXContext> owner(context, [](AVTXContext* own) { av_tx_uninit(&own); });
  return contestant_of(
      "av_tx", Role::peer,
      [context, function, stride](const std::byte* src, std::byte* dst) {
        // The interface has no const; that the source stays is checked before timing.
        function(context, dst, const_cast<std::byte*>(src), static_cast<std::ptrdiff_t>(stride));
      },
      owner);
}

std::string peer_versions() {
  return std::string(fftw_version) + ", " + fftwf_version + ", kissfft " KISSFFT_VERSION +
         " (float only), av_tx of FFmpeg " + av_version_info();
}

}  // namespace haldgen::bench
