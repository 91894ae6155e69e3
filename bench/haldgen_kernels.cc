// Kernels of a build of libhaldgenp8.
#include "bench/haldgen_kernels.h"

#include <dlfcn.h>

#include <cstdint>
#include <stdexcept>

#include "include/haldgen.h"

namespace haldgen::bench {
namespace {

using Kernel = std::int32_t (*)(const void* src, void* dst, std::int32_t flag);

}  // namespace

void KernelLibrary::Close::operator()(void* handle) const { dlclose(handle); }

KernelLibrary::KernelLibrary(const std::filesystem::path& path)
    : path_(std::filesystem::weakly_canonical(path)) {
  // The canonical path contains a slash, so the loader neither searches for the file nor takes
  // another build with the same SONAME for it.
  handle_.reset(dlopen(path_.c_str(), RTLD_NOW | RTLD_LOCAL));
  if (!handle_) throw std::runtime_error(dlerror());
}

std::optional<Contestant> KernelLibrary::contestant(const std::string& symbol,
                                                    const std::string& name, Role role) const {
  void* const address = dlsym(handle_.get(), symbol.c_str());
  if (address == nullptr) return std::nullopt;
  const auto kernel = reinterpret_cast<Kernel>(address);
  return Contestant{name, role, [kernel](const Walk& walk, std::int64_t calls) {
                      walk_calls(walk, calls, [kernel](const std::byte* src, std::byte* dst) {
                        kernel(src, dst, haldScaleNone);
                      });
                    }};
}

}  // namespace haldgen::bench
