// The library's functions, and the allocator in their way.
#include "tests/wht/library.h"

#include <haldcore.h>

#include <memory>

#include "bits/calls.h"
#include "bits/linked.h"
#include "tests/contract/memory.h"

namespace haldgen::wht::test {
namespace {

template <class Float>
std::vector<Kernel<Float>> load(names::Element element) {
  std::vector<Kernel<Float>> kernels;
  for (const registry::Export& e : registry::exports()) {
    if (e.word->word != "WHT" || e.element != element) continue;
    const std::vector<int> orders =
        e.size != 0 ? std::vector{e.size} : std::vector(e.word->sizes.begin(), e.word->sizes.end());
    for (const int order : orders) {
      kernels.push_back(
          {e.name + " at " + std::to_string(order), order,
           bits::flagged_call<Float>(bits::linked()(e.name), e.word->signature, order)});
    }
  }
  return kernels;
}

/// Memory that ends with its pages.
class Piece {
 public:
  explicit Piece(std::size_t size) : pages_(size), start_(&*pages_.bytes().end() - size) {
    std::memset(start_, 0xFF, size);
  }
  void* start() const { return start_; }

 private:
  haldgen::test::GuardedPages pages_;
  std::byte* start_;
};

struct Watch {
  std::vector<std::int32_t> requests;
  std::vector<std::unique_ptr<Piece>> lent;
  bool strange = false;  ///< something came back that was not lent
  bool exhausted = false;

  void* lend(std::int32_t size) {
    requests.push_back(size);
    if (exhausted) return nullptr;
    return lent.emplace_back(std::make_unique<Piece>(static_cast<std::size_t>(size)))->start();
  }
  void take_back(void* memory) {
    const auto same = [memory](const auto& piece) { return piece->start() == memory; };
    if (std::erase_if(lent, same) == 0) strange = true;
  }
};

Watch& watch() {
  static Watch instance;
  return instance;
}

}  // namespace

template <>
const std::vector<Kernel<float>>& kernels() {
  static const auto all = load<float>(names::Element::f32);
  return all;
}
template <>
const std::vector<Kernel<double>>& kernels() {
  static const auto all = load<double>(names::Element::f64);
  return all;
}

namespace allocator {
void reset() { watch() = {}; }
void exhaust() { watch().exhausted = true; }
const std::vector<std::int32_t>& requests() { return watch().requests; }
bool settled() { return watch().lent.empty() && !watch().strange; }
}  // namespace allocator

}  // namespace haldgen::wht::test

extern "C" {

void* haldMalloc(int32_t size) { return haldgen::wht::test::watch().lend(size); }
void haldFree(void* memory) { haldgen::wht::test::watch().take_back(memory); }

}  // extern "C"
