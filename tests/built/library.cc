// The kernels of the library that tests are linked with.
#include "tests/built/library.h"

#include "bits/linked.h"

namespace haldgen::test {
namespace {

std::vector<BuiltKernel> load() {
  std::vector<BuiltKernel> kernels;
  for (const registry::Export& e : registry::exports()) {
    if (e.word->signature != names::Signature::transform) continue;
    const auto function = reinterpret_cast<KernelFunction>(bits::linked()(e.name));
    if (function == nullptr) throw std::runtime_error("the library has no " + e.name);
    kernels.push_back({e.name, e.word, e.element, e.size, function});
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
    if (kernel.word->word == word) lengths.insert(kernel.length);
  }
  return lengths;
}

}  // namespace haldgen::test
