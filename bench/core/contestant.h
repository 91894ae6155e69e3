// What the measuring loop times: a contestant is a name, a role and a function that makes calls.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace haldgen::bench {

/// The buffers that consecutive calls of one slice use: pair k is `src + k * src_stride` and
/// `dst + k * dst_stride` (strides in bytes), and after pair `pairs - 1` comes pair 0 again. One
/// pair means that every call uses the same two buffers.
struct Walk {
  const std::byte* src;
  std::byte* dst;
  std::ptrdiff_t src_stride;
  std::ptrdiff_t dst_stride;
  int pairs;
};

/// Makes `calls` calls along the walk. The only thing that is ever timed, so whatever is not part
/// of a call happens when the slice is made.
using Slice = std::function<void(const Walk& walk, std::int64_t calls)>;

enum class Role {
  subject,      ///< the kernel that all others are compared with
  variant,      ///< another build of it
  peer,         ///< another library at its best
  baseline,     ///< the transform written down plainly
  narrow_peer,  ///< another library held to the vector width of the subject
  calibration,  ///< what the machine needs for a call or an addition
};

struct Contestant {
  std::string name;
  Role role;
  Slice slice;
  double per_call = 1;               ///< things that a call does and that time is reported for
  std::vector<double> samples = {};  ///< nanoseconds for each of them, one a round
};

/// Body of a slice: `call(src, dst)` for each step of the walk. A template, so that all that
/// stands between the loop and the function under test is the call itself.
template <class Call>
void walk_calls(const Walk& walk, std::int64_t calls, const Call& call) {
  const std::byte* src = walk.src;
  std::byte* dst = walk.dst;
  int pair = 0;
  for (std::int64_t i = 0; i < calls; ++i) {
    call(src, dst);
    if (++pair == walk.pairs) {
      pair = 0;
      src = walk.src;
      dst = walk.dst;
    } else {
      src += walk.src_stride;
      dst += walk.dst_stride;
    }
  }
}

/// One that calls `call(src, dst)`, which may need what `owner` holds.
template <class Call>
Contestant contestant_of(std::string name, Role role, Call call,
                         std::shared_ptr<const void> owner = {}) {
  return {std::move(name), role,
          [call, owner = std::move(owner)](const Walk& walk, std::int64_t calls) {
            // A copy, which functions out of sight cannot change.
            const Call local = call;
            walk_calls(walk, calls, local);
          }};
}

}  // namespace haldgen::bench
