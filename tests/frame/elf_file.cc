// Reads what readelf says of a shared library.
#include "tests/frame/elf_file.h"

#include <cstdio>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace haldgen::test {
namespace {

std::vector<std::vector<std::string>> lines_of(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  if (!pipe) throw std::runtime_error("cannot run " + command);
  std::vector<std::vector<std::string>> lines;
  char line[4096];
  while (std::fgets(line, sizeof line, pipe.get()) != nullptr) {
    std::istringstream words(line);
    lines.emplace_back();
    for (std::string word; words >> word;) lines.back().push_back(word);
  }
  return lines;
}

std::vector<std::string> values(const std::multimap<std::string, std::string>& all,
                                const std::string& key) {
  std::vector<std::string> found;
  const auto [first, last] = all.equal_range(key);
  for (auto entry = first; entry != last; ++entry) found.push_back(entry->second);
  return found;
}

}  // namespace

ElfFile::ElfFile(const std::string& path) {
  // "5: 0000000000001120 12 FUNC GLOBAL DEFAULT 11 name", tables one after the other.
  std::map<std::string, Symbol>* table = nullptr;
  for (const auto& words : lines_of("readelf -W -d -l --syms '" + path + "'")) {
    if (words.size() > 2 && words[0] == "Symbol") {
      table = words[2].find("dynsym") != std::string::npos ? &exported_ : &defined_;
    } else if (words.size() > 2 && words[0].starts_with("0x")) {
      dynamic_.emplace(words[1], words.back());
    } else if (words.size() >= 8 && words[1].starts_with("0x")) {
      // "GNU_STACK 0x000000 0x0000000000000000 0x0000000000000000 0x000000 0x000000 RW  0x10":
      // type, five numbers, flags in one word or more, alignment.
      std::string flags;
      for (std::size_t k = 6; k + 1 < words.size(); ++k) flags += words[k];
      segments_.emplace(words[0], flags);
    } else if (words.size() >= 8 && words[0].ends_with(':') && words[0] != "Num:") {
      const std::string name = words[7].substr(0, words[7].find('@'));
      if (words[6] == "UND") {
        if (table == &exported_) wanted_.push_back(name);
      } else if (words[3] != "SECTION" && words[3] != "FILE") {
        const auto address = std::stoull(words[1], nullptr, 16);
        table->insert_or_assign(name, Symbol{address, std::stoull(words[2], nullptr, 0), words[3]});
      }
    }
  }
  if (exported_.empty()) throw std::runtime_error(path + " exports nothing");
}

std::vector<std::string> ElfFile::dynamic(const std::string& tag) const {
  return values(dynamic_, "(" + tag + ")");
}

std::vector<std::string> ElfFile::segments(const std::string& type) const {
  return values(segments_, type);
}

}  // namespace haldgen::test
