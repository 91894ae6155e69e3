// Builds of libhaldgenp8 and libhaldbatch, opened at run time so that they can be compared.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "bench/core/contestant.h"
#include "names/flavour.h"
#include "registry/registry.h"

namespace haldgen::bench {

/// Stays open. Throws std::runtime_error with the loader's message on failure.
void* open_library(const std::filesystem::path& path);

/// The address of a function; throws std::runtime_error if the library has none.
void* required(void* library, const std::string& name);

/// The builds of the library `file` for wider vectors, where the loader would look for them from
/// `folder` on, that the processor can run.
std::vector<std::pair<names::Flavour, std::filesystem::path>> flavours(
    const std::filesystem::path& folder, const std::string& file);

/// A fixed-size function, called without scaling; none if the library does not export it. A
/// buffered one gets a work buffer, a planned one a state of its size.
std::optional<Contestant> kernel_contestant(void* library, const registry::Export& function,
                                            const std::string& name, Role role);

}  // namespace haldgen::bench
