// Builds of libhaldgenp8 and libhaldbatch.
#include "bench/kernels.h"

#include <dlfcn.h>

#include <stdexcept>

#include "bench/core/arena.h"
#include "include/haldgen.h"
#include "lanes/processor.h"

namespace haldgen::bench {

void* open_library(const std::filesystem::path& path) {
  // The canonical path contains a slash, so the loader neither searches for the file nor takes
  // another build with the same SONAME for it.
  void* const library =
      dlopen(std::filesystem::weakly_canonical(path).c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw std::runtime_error(dlerror());
  return library;
}

void* required(void* library, const std::string& name) {
  void* const address = dlsym(library, name.c_str());
  if (address == nullptr) throw std::runtime_error("the library has no " + name);
  return address;
}

std::vector<std::pair<names::Flavour, std::filesystem::path>> flavours(
    const std::filesystem::path& folder, const std::string& file) {
  std::vector<std::pair<names::Flavour, std::filesystem::path>> found;
  for (const names::Flavour& flavour : names::flavours) {
    const auto path = folder / "glibc-hwcaps" / (std::string("x86-64-") + flavour.tag) / file;
    if (std::filesystem::exists(path) && lanes::processor_has(flavour.vector_bits)) {
      found.emplace_back(flavour, path);
    }
  }
  return found;
}

std::optional<Contestant> kernel_contestant(void* library, const registry::Export& function,
                                            const std::string& name, Role role) {
  void* const address = dlsym(library, function.name.c_str());
  if (address == nullptr) return std::nullopt;
  const auto companion = [&](const std::string& what) {
    return required(library, "haldg" + std::string(function.word->word) + what + "_" +
                                 std::string(names::suffix(function.element)));
  };
  if (function.word->signature == names::Signature::buffered_transform) {
    using Query = std::int32_t (*)(std::int32_t order, std::uint32_t * size);
    using Kernel = std::int32_t (*)(const void*, void*, std::int32_t flag, void* buffer);
    std::uint32_t bytes = 0;
    reinterpret_cast<Query>(companion("GetBufferSize"))(function.size, &bytes);
    // A quarter page off the start of a page: source and destination begin at other quarters.
    constexpr std::size_t offset = sizeof(Page) / 4;
    const auto pages = std::make_shared<Pages>(pages_for(offset + bytes));
    return contestant_of(
        name, role,
        [kernel = reinterpret_cast<Kernel>(address), area = pages->data()->bytes + offset](
            const std::byte* src, std::byte* dst) { kernel(src, dst, haldScaleNone, area); },
        pages);
  }
  if (function.word->signature == names::Signature::planned_transform) {
    using Init = std::int32_t (*)(Dct4State * *state, std::int32_t length);
    using Free = std::int32_t (*)(Dct4State * state);
    using Kernel = std::int32_t (*)(const void*, void*, Dct4State* state);
    Dct4State* state = nullptr;
    if (reinterpret_cast<Init>(companion("InitAlloc"))(&state, function.size) != haldStatusOk) {
      throw std::runtime_error("no state for " + function.name);
    }
    return contestant_of(
        name, role,
        [kernel = reinterpret_cast<Kernel>(address), state](const std::byte* src, std::byte* dst) {
          kernel(src, dst, state);
        },
        std::shared_ptr<Dct4State>(state, reinterpret_cast<Free>(companion("Free"))));
  }
  using Kernel = std::int32_t (*)(const void*, void*, std::int32_t flag);
  return contestant_of(
      name, role,
      [kernel = reinterpret_cast<Kernel>(address)](const std::byte* src, std::byte* dst) {
        kernel(src, dst, haldScaleNone);
      });
}

}  // namespace haldgen::bench
