// Which releases of the other libraries this program runs.
#include <fftw3.h>
extern "C" {
// The header's word. NOLINTNEXTLINE(bugprone-reserved-identifier)
#define __STDC_CONSTANT_MACROS  // asked for by the header in C++
#include <libavutil/avutil.h>
}

#include "bench/peers/peers.h"

namespace haldgen::bench {

std::string peer_versions() {
  return std::string(fftw_version) + ", " + fftwf_version + ", kissfft " KISSFFT_VERSION +
         " (float only), av_tx of FFmpeg " + av_version_info();
}

}  // namespace haldgen::bench
