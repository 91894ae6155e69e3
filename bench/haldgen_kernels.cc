// Kernels of a build of libhaldgenp8.
#include "bench/haldgen_kernels.h"

#include <dlfcn.h>

#include <cstdint>
#include <cstdlib>
#include <new>
#include <stdexcept>

#include "include/haldgen.h"

namespace haldgen::bench {
namespace {

using Kernel = std::int32_t (*)(const void* src, void* dst, std::int32_t flag);
using BufferedKernel = std::int32_t (*)(const void* src, void* dst, std::int32_t flag,
                                        std::uint8_t* buffer);

// A quarter page off the start of a page: source and destination begin at other quarters.
struct WorkBuffer {
  static constexpr std::size_t page = 4096;
  std::unique_ptr<std::uint8_t, void (*)(void*)> block;

  explicit WorkBuffer(std::size_t bytes)
      : block(static_cast<std::uint8_t*>(
                  std::aligned_alloc(page, (page / 4 + bytes + page - 1) / page * page)),
              std::free) {
    if (!block) throw std::bad_alloc();
  }
  std::uint8_t* data() const { return block.get() + page / 4; }
};

using Planned = std::int32_t (*)(const void* src, void* dst, Dct4State* state);
using PlanInit = std::int32_t (*)(Dct4State** state, std::int32_t length);
using PlanFree = std::int32_t (*)(Dct4State* state);

}  // namespace

KernelLibrary::KernelLibrary(const std::filesystem::path& path)
    : path_(std::filesystem::weakly_canonical(path)) {
  // The canonical path contains a slash, so the loader neither searches for the file nor takes
  // another build with the same SONAME for it.
  void* const handle = dlopen(path_.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) throw std::runtime_error(dlerror());
  handle_.reset(handle, dlclose);
}

std::optional<Contestant> KernelLibrary::contestant(const registry::Export& function,
                                                    const std::string& name, Role role) const {
  void* const address = dlsym(handle_.get(), function.name.c_str());
  if (address == nullptr) return std::nullopt;
  switch (function.word->signature) {
    case names::Signature::buffered_transform: {
      const auto buffer = std::make_shared<WorkBuffer>(buffer_bytes(function));
      return contestant_of(
          name, role,
          [kernel = reinterpret_cast<BufferedKernel>(address), area = buffer->data()](
              const std::byte* src, std::byte* dst) { kernel(src, dst, haldScaleNone, area); },
          buffer);
    }
    case names::Signature::planned_transform: {
      const auto state = state_of(function);
      return contestant_of(
          name, role,
          [kernel = reinterpret_cast<Planned>(address), state = state.get()](
              const std::byte* src, std::byte* dst) { kernel(src, dst, state); },
          state);
    }
    default:
      return contestant_of(
          name, role,
          [kernel = reinterpret_cast<Kernel>(address)](const std::byte* src, std::byte* dst) {
            kernel(src, dst, haldScaleNone);
          });
  }
}

std::shared_ptr<Dct4State> KernelLibrary::state_of(const registry::Export& function) const {
  const std::string stem = "haldg" + std::string(function.word->word);
  const std::string suffix = "_" + std::string(names::suffix(function.element));
  const auto init =
      reinterpret_cast<PlanInit>(dlsym(handle_.get(), (stem + "InitAlloc" + suffix).c_str()));
  const auto release =
      reinterpret_cast<PlanFree>(dlsym(handle_.get(), (stem + "Free" + suffix).c_str()));
  Dct4State* state = nullptr;
  if (init == nullptr || release == nullptr || init(&state, function.size) != haldStatusOk) {
    throw std::runtime_error("no state for " + function.name);
  }
  return {state, [release, library = handle_](Dct4State* own) { release(own); }};
}

std::size_t KernelLibrary::buffer_bytes(const registry::Export& function) const {
  const std::string name = "haldg" + std::string(function.word->word) + "GetBufferSize_" +
                           std::string(names::suffix(function.element));
  using Query = std::int32_t (*)(std::int32_t order, std::uint32_t * size);
  const auto query = reinterpret_cast<Query>(dlsym(handle_.get(), name.c_str()));
  std::uint32_t bytes = 0;
  if (query == nullptr || query(function.size, &bytes) != haldStatusOk) {
    throw std::runtime_error("no size of the work buffer of " + function.name);
  }
  return bytes;
}

}  // namespace haldgen::bench
