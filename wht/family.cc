// The Walsh-Hadamard transform as a family: its sizes are orders, its kernels are templates.
#include "family/family.h"

#include "wht/blocking.h"
#include "wht/text.h"

namespace haldgen::wht {
namespace {

std::int32_t work_bytes(names::Element element, int order) {
  const auto& bytes = element == names::Element::f32 ? kBufferBytes<float> : kBufferBytes<double>;
  return bytes.at(static_cast<std::size_t>(order) - 1);
}

}  // namespace

family::Family wht(const names::Sizes& orders) {
  using names::Layout;
  using names::Signature;
  const names::Usage usage{names::Scaling::directionless, Layout::real, Layout::real};
  family::Family result{"wht", "Walsh-Hadamard transform, by order", orders, {}};
  result.words = {
      {"WHT", Signature::buffered_transform, names::kReal, orders, usage, kFixedText, work_bytes},
      {"WHT", Signature::sized_buffered_transform, names::kReal, orders, usage, kGeneralText},
      {"WHTGetBufferSize", Signature::order_query, names::kReal, {}, {}, kQueryText},
  };
  return result;
}

}  // namespace haldgen::wht
