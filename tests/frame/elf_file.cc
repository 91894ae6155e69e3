// Reads section headers, symbols and the dynamic section of an ELF shared library.
#include "tests/frame/elf_file.h"

#include <elf.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace haldgen::test {
namespace {

template <typename Record>
std::vector<Record> records(const std::string& bytes, std::uint64_t offset, std::uint64_t size) {
  if (offset > bytes.size() || size > bytes.size() - offset) {
    throw std::runtime_error("truncated ELF file");
  }
  std::vector<Record> list(size / sizeof(Record));
  std::memcpy(list.data(), bytes.data() + offset, list.size() * sizeof(Record));
  return list;
}

std::string content(const std::string& bytes, const Elf64_Shdr& section) {
  const auto chars = records<char>(bytes, section.sh_offset, section.sh_size);
  return {chars.begin(), chars.end()};
}

}  // namespace

ElfFile::ElfFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  const auto header = records<Elf64_Ehdr>(bytes, 0, sizeof(Elf64_Ehdr)).at(0);
  if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_ident[EI_CLASS] != ELFCLASS64 ||
      header.e_ident[EI_DATA] != ELFDATA2LSB) {
    throw std::runtime_error(path + " is no 64-bit little-endian ELF file");
  }
  const auto sections = records<Elf64_Shdr>(bytes, header.e_shoff,
                                            std::uint64_t{header.e_shnum} * sizeof(Elf64_Shdr));
  const std::string section_names = content(bytes, sections.at(header.e_shstrndx));
  const auto name_of = [&](const Elf64_Shdr& section) {
    return std::string(section_names.c_str() + section.sh_name);
  };

  for (const Elf64_Shdr& section : sections) {
    section_flags_[name_of(section)] = section.sh_flags;
    if (section.sh_type == SHT_DYNAMIC) {
      dynamic_names_ = content(bytes, sections.at(section.sh_link));
      for (const auto& entry : records<Elf64_Dyn>(bytes, section.sh_offset, section.sh_size)) {
        dynamic_.emplace(entry.d_tag, entry.d_un.d_val);
      }
    }
    if (section.sh_type != SHT_DYNSYM && section.sh_type != SHT_SYMTAB) continue;
    const bool dynamic = section.sh_type == SHT_DYNSYM;
    const std::string names = content(bytes, sections.at(section.sh_link));
    for (const auto& symbol : records<Elf64_Sym>(bytes, section.sh_offset, section.sh_size)) {
      const std::string name = names.c_str() + symbol.st_name;
      const unsigned type = ELF64_ST_TYPE(symbol.st_info);
      if (name.empty() || type == STT_SECTION || type == STT_FILE) continue;
      if (symbol.st_shndx == SHN_UNDEF) {
        if (dynamic) wanted_.push_back(name);
        continue;
      }
      const std::string where =
          symbol.st_shndx < sections.size() ? name_of(sections[symbol.st_shndx]) : std::string();
      const Symbol entry{symbol.st_value, symbol.st_size, type, where};
      (dynamic ? exported_ : defined_).insert_or_assign(name, entry);
    }
  }
}

std::vector<std::string> ElfFile::dynamic_strings(std::int64_t tag) const {
  std::vector<std::string> values;
  const auto [first, last] = dynamic_.equal_range(tag);
  for (auto entry = first; entry != last; ++entry) {
    values.emplace_back(dynamic_names_.c_str() + entry->second);
  }
  return values;
}

std::uint64_t ElfFile::section_flags(const std::string& name) const {
  const auto found = section_flags_.find(name);
  return found == section_flags_.end() ? 0 : found->second;
}

}  // namespace haldgen::test
