// Kernels of a build of libhaldgenp8, opened at run time so that builds can be compared.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "bench/core/contestant.h"
#include "include/haldgen.h"
#include "registry/registry.h"

namespace haldgen::bench {

class KernelLibrary {
 public:
  /// Opens the library. Throws std::runtime_error with the loader's message on failure.
  explicit KernelLibrary(const std::filesystem::path& path);

  /// A fixed-size function, called without scaling, as a contestant; none if this build does not
  /// export it. A buffered one gets a work buffer, a planned one a state of its size. The library
  /// must outlive the contestant.
  std::optional<Contestant> contestant(const registry::Export& function, const std::string& name,
                                       Role role) const;

  /// Where the library that was opened really lies.
  const std::filesystem::path& path() const { return path_; }

 private:
  std::shared_ptr<Dct4State> state_of(const registry::Export& function) const;
  std::size_t buffer_bytes(const registry::Export& function) const;

  std::filesystem::path path_;
  std::shared_ptr<void> handle_;  ///< states hold it too, for their release
};

}  // namespace haldgen::bench
