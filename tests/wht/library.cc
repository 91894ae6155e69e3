// The built library, opened at run time, and the allocator in its way.
#include "tests/wht/library.h"

#include <dlfcn.h>
#include <haldcore.h>

#include <memory>
#include <stdexcept>

#include "frame/families.h"
#include "tests/contract/memory.h"

namespace haldgen::wht::test {
namespace {

template <class Function>
Function* resolve(const std::string& name) {
  static void* const library = dlopen(HALDGEN_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw std::runtime_error(dlerror());
  void* const symbol = dlsym(library, name.c_str());
  if (symbol == nullptr) throw std::runtime_error(dlerror());
  return reinterpret_cast<Function*>(symbol);
}

template <class Float>
constexpr frame::Element kElement = sizeof(Float) == sizeof(float) ? frame::Element::f32
                                                                   : frame::Element::f64;

template <class Float>
std::vector<Kernel<Float>> load() {
  std::vector<Kernel<Float>> kernels;
  for (int order = 1; order <= kOrders; ++order) {
    const std::string name =
        "haldgWHT_" + std::to_string(order) + "_" + std::string(suffix(kElement<Float>));
    kernels.push_back(
        {name, order,
         resolve<std::int32_t(const Float*, Float*, std::int32_t, std::uint8_t*)>(name)});
  }
  const std::string name = "haldgWHT_" + std::string(suffix(kElement<Float>));
  auto* general =
      resolve<std::int32_t(const Float*, Float*, std::int32_t, std::int32_t, std::uint8_t*)>(name);
  for (int order = 1; order <= kOrders; ++order) {
    kernels.push_back(
        {name + " at " + std::to_string(order), order,
         [general, order](const Float* src, Float* dst, std::int32_t flag, std::uint8_t* buffer) {
           return general(src, dst, order, flag, buffer);
         }});
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

  void* lend(std::int32_t size) {
    requests.push_back(size);
    return lent.emplace_back(std::make_unique<Piece>(static_cast<std::size_t>(size)))->start();
  }
  void take_back(void* memory) {
    for (auto piece = lent.begin(); piece != lent.end(); ++piece) {
      if ((*piece)->start() != memory) continue;
      lent.erase(piece);
      return;
    }
    strange = true;
  }
};

Watch& watch() {
  static Watch instance;
  return instance;
}

}  // namespace

template <>
const std::vector<Kernel<float>>& kernels() {
  static const auto all = load<float>();
  return all;
}
template <>
const std::vector<Kernel<double>>& kernels() {
  static const auto all = load<double>();
  return all;
}

template <>
Query<float> buffer_query<float>() {
  return resolve<std::int32_t(std::int32_t, std::uint32_t*)>("haldgWHTGetBufferSize_32f");
}
template <>
Query<double> buffer_query<double>() {
  return resolve<std::int32_t(std::int32_t, std::uint32_t*)>("haldgWHTGetBufferSize_64f");
}

namespace allocator {
void reset() { watch() = {}; }
const std::vector<std::int32_t>& requests() { return watch().requests; }
bool settled() { return watch().lent.empty() && !watch().strange; }
}  // namespace allocator

}  // namespace haldgen::wht::test

extern "C" {

void* haldMalloc(int32_t size) { return haldgen::wht::test::watch().lend(size); }
void haldFree(void* memory) { haldgen::wht::test::watch().take_back(memory); }

}  // extern "C"
