// What the frame generator writes from the registry. Every text is the same, to the byte,
// wherever and whenever it is written.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "registry/registry.h"

namespace haldgen::frame {

/// The public header, include/haldgen.h.
std::string emit_header();

/// The tables of the C++ headers, include/haldgen_tables.hpp and include/haldbatch_tables.hpp.
std::string emit_tables();
std::string emit_batch_tables();

/// Assembly: the table of entry slots and the forwarding entries.
std::string emit_entries();

/// C++ source: the entries where there are no slots, on WebAssembly.
std::string emit_entry_functions();

/// Linker version script: the exported names are global, everything else is local.
std::string emit_exports();

/// The same as options of a linker without version scripts.
std::string emit_linker_exports();

/// C++ header: declarations of all implementations, hidden.
std::string emit_implementations();

/// C++ source: the general entries of a family for one element type, such as "32fc".
std::string emit_general_entries(const family::Family& family, std::string_view type);

/// Each implementation's symbol and the public name that it has where there are no entries, a pair
/// a line.
std::string emit_public_names();

/// The public header of batches, include/haldbatch.h.
std::string emit_batch_header();

/// Linker version script of the library of batches.
std::string emit_batch_exports();

/// C++ source: the entries of batches.
std::string emit_batch_entries();
/// C++ source: what a program that is linked with them has (linked_functions.h).
std::string emit_linked_batches();

/// C++ source: the functions that a program is linked with (linked_functions.h), those of the
/// library or of kernels that stand alone, in order of their names.
std::string emit_linked_functions(const std::vector<registry::Export>& functions);

/// All names in byte order, one a line.
std::string emit_list();

/// A table of the families and the number of their functions, in Markdown.
std::string emit_summary();

}  // namespace haldgen::frame
