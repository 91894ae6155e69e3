// What is in a linked shared library.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace haldgen::test {

struct Symbol {
  std::uint64_t address;
  std::uint64_t size;
  std::string type;  ///< FUNC, OBJECT, ..
};

class ElfFile {
 public:
  /// Throws for what is no shared library.
  explicit ElfFile(const std::string& path);

  /// Symbols that the library defines for others, and all that it defines, local ones included.
  const std::map<std::string, Symbol>& exported() const { return exported_; }
  const std::map<std::string, Symbol>& defined() const { return defined_; }

  /// Symbols that the library wants from others.
  const std::vector<std::string>& wanted() const { return wanted_; }

  /// Entries of the dynamic section, such as SONAME; strings stand in brackets.
  std::vector<std::string> dynamic(const std::string& tag) const;

  /// Flags such as "RW" of the segments of a type, such as GNU_STACK.
  std::vector<std::string> segments(const std::string& type) const;

 private:
  std::map<std::string, Symbol> exported_, defined_;
  std::vector<std::string> wanted_;
  std::multimap<std::string, std::string> dynamic_, segments_;
};

}  // namespace haldgen::test
