// The built library, opened at run time.
#include "tests/complex/library.h"

#include <dlfcn.h>

#include "frame/families.h"

namespace haldgen::dft_complex::test {
namespace {

std::vector<LiveKernel> load() {
  void* const library = dlopen(HALDGEN_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw std::runtime_error(dlerror());
  std::vector<LiveKernel> kernels;
  for (const frame::Export& e : frame::live_exports()) {
    const bool forward = e.family->word == "DFTFwd_CToC";
    const bool inverse = e.family->word == "DFTInv_CToC";
    if (e.size == 0 || (!forward && !inverse)) continue;
    void* const symbol = dlsym(library, e.name.c_str());
    if (symbol == nullptr) throw std::runtime_error(dlerror());
    const ElementType type = e.element == frame::Element::c32 ? ElementType::c32 : ElementType::c64;
    kernels.push_back({e.name, e.size, type, inverse, reinterpret_cast<KernelFunction>(symbol)});
  }
  return kernels;
}

}  // namespace

const std::vector<LiveKernel>& live_kernels() {
  static const std::vector<LiveKernel> kernels = load();
  return kernels;
}

KernelFunction live_kernel(const std::string& name) {
  for (const LiveKernel& kernel : live_kernels()) {
    if (kernel.name == name) return kernel.function;
  }
  throw std::out_of_range(name + " is not built");
}

}  // namespace haldgen::dft_complex::test
