// Just enough of the ELF format to look at a linked shared library.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace haldgen::test {

struct Symbol {
  std::uint64_t address;
  std::uint64_t size;
  unsigned type;  ///< STT_FUNC, STT_OBJECT, ...
  std::string section;
};

/// A 64-bit little-endian ELF shared library. The constructor throws std::runtime_error for
/// anything else.
class ElfFile {
 public:
  explicit ElfFile(const std::string& path);

  /// Symbols that the library defines for others.
  const std::map<std::string, Symbol>& exported() const { return exported_; }

  /// Every symbol that is defined in the library, local ones included.
  const std::map<std::string, Symbol>& defined() const { return defined_; }

  /// Symbols that the library wants from others.
  const std::vector<std::string>& wanted() const { return wanted_; }

  /// Values of a string entry of the dynamic section, such as DT_SONAME.
  std::vector<std::string> dynamic_strings(std::int64_t tag) const;

  /// Whether the dynamic section has an entry.
  bool has_dynamic(std::int64_t tag) const { return dynamic_.contains(tag); }

  /// Flags of a section, such as SHF_WRITE; 0 if there is no such section.
  std::uint64_t section_flags(const std::string& name) const;

 private:
  std::map<std::string, Symbol> exported_;
  std::map<std::string, Symbol> defined_;
  std::vector<std::string> wanted_;
  std::multimap<std::int64_t, std::uint64_t> dynamic_;
  std::string dynamic_names_;
  std::map<std::string, std::uint64_t> section_flags_;
};

}  // namespace haldgen::test
