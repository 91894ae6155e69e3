// The built library, opened at run time.
#include "tests/built/library.h"

#include <dlfcn.h>

namespace haldgen::test {
namespace {

std::vector<BuiltKernel> load() {
  void* const library = dlopen(HALDGEN_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw std::runtime_error(dlerror());
  std::vector<BuiltKernel> kernels;
  for (const frame::Export& e : frame::live_exports()) {
    if (e.family->signature != frame::Signature::transform) continue;
    void* const symbol = dlsym(library, e.name.c_str());
    if (symbol == nullptr) throw std::runtime_error(dlerror());
    kernels.push_back(
        {e.name, e.family, e.element, e.size, reinterpret_cast<KernelFunction>(symbol)});
  }
  return kernels;
}

}  // namespace

const std::vector<BuiltKernel>& built_kernels() {
  static const std::vector<BuiltKernel> kernels = load();
  return kernels;
}

KernelFunction built_kernel(const std::string& name) {
  for (const BuiltKernel& kernel : built_kernels()) {
    if (kernel.name == name) return kernel.function;
  }
  throw std::out_of_range(name + " is not built");
}

std::set<int> lengths_of(std::string_view word) {
  std::set<int> lengths;
  for (const BuiltKernel& kernel : built_kernels()) {
    if (kernel.family->word == word) lengths.insert(kernel.length);
  }
  return lengths;
}

}  // namespace haldgen::test
