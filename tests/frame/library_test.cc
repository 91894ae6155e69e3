// The linked libraries as files, in each flavour: what they export, the table of slots, the
// forwarding entries.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <link.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <sstream>

#include "registry/registry.h"
#include "tests/built/paths.h"
#include "tests/frame/elf_file.h"

namespace haldgen::test {
namespace {

using Names = std::vector<std::string>;

/// The library in one flavour; the parameter is its path.
class Library : public testing::TestWithParam<std::string> {
 protected:
  static const std::string& path() { return GetParam(); }
  static bool is_flavour() { return path().find("/glibc-hwcaps/") != std::string::npos; }
  static const ElfFile& file() {
    static std::map<std::string, ElfFile> files;
    return files.try_emplace(path(), path()).first->second;
  }
  static const Symbol& symbol(const std::string& name) {
    const auto found = file().defined().find(name);
    if (found == file().defined().end()) throw std::runtime_error("no symbol " + name);
    return found->second;
  }
};
INSTANTIATE_TEST_SUITE_P(Built, Library, testing::ValuesIn(built_libraries()));

Names exported_names(const ElfFile& file) {
  Names names;
  for (const auto& [name, entry] : file.exported()) names.push_back(name);
  return names;
}

std::string real_name(const std::string& path) {
  return std::filesystem::canonical(path).filename().string();
}

// Instructions by address, as objdump words them.
using Instructions = std::map<std::uint64_t, std::string>;

Instructions disassemble(const std::string& path) {
  const std::string command = std::string(OBJDUMP) + " -d --no-show-raw-insn '" + path + "'";
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  Instructions instructions;
  char line[512];
  while (pipe && std::fgets(line, sizeof line, pipe.get()) != nullptr) {
    std::istringstream words(line);
    std::string address;
    if (!(words >> address) || address.back() != ':' || line[0] != ' ') continue;
    std::string text;
    std::getline(words >> std::ws, text);
    instructions[std::stoull(address, nullptr, 16)] = text;
  }
  return instructions;
}

TEST_P(Library, ExportsExactlyTheLiveFunctions) {
  Names expected;
  for (const registry::Export& function : registry::exports()) expected.push_back(function.name);
  EXPECT_EQ(exported_names(file()), expected);
  for (const auto& [name, entry] : file().exported()) {
    EXPECT_EQ(entry.type, "FUNC") << name << " is no function";
  }
}

TEST_P(Library, HasVersionedName) {
  EXPECT_EQ(file().dynamic("SONAME"), Names{"[libhaldgenp8.so.8]"});
  EXPECT_EQ(real_name(path()), "libhaldgenp8.so.8.1.0");
}

TEST_P(Library, FindsHaldcoreBesideItselfAndOpenToInterposition) {
  const Names needed = file().dynamic("NEEDED");
  EXPECT_EQ(std::count(needed.begin(), needed.end(), "[libhaldcore.so.8]"), 1);
  EXPECT_EQ(file().dynamic("RUNPATH"), Names{is_flavour() ? "[$ORIGIN/../..]" : "[$ORIGIN]"});
  const Names& wanted = file().wanted();
  EXPECT_EQ(std::count(wanted.begin(), wanted.end(), "haldGetEnabledCpuFeatures"), 1);
  EXPECT_TRUE(file().dynamic("SYMBOLIC").empty());
}

TEST(Haldcore, ExportsItsThreeFunctions) {
  const ElfFile haldcore(HALDCORE_LIBRARY);
  EXPECT_EQ(exported_names(haldcore),
            (Names{"haldFree", "haldGetEnabledCpuFeatures", "haldMalloc"}));
  EXPECT_EQ(haldcore.dynamic("SONAME"), Names{"[libhaldcore.so.8]"});
  EXPECT_EQ(real_name(HALDCORE_LIBRARY), "libhaldcore.so.8.1.0");
}

std::string contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST_P(Library, IsBoundAndClosedAtLoad) {
  for (const std::string& built : {path(), std::string(HALDCORE_LIBRARY)}) {
    SCOPED_TRACE(built);
    const ElfFile file(built);
    EXPECT_EQ(file.dynamic("FLAGS"), Names{"BIND_NOW"});
    EXPECT_TRUE(file.dynamic("TEXTREL").empty());
    EXPECT_EQ(file.segments("GNU_RELRO"), Names{"R"});
    EXPECT_EQ(file.segments("GNU_STACK"), Names{"RW"});
    const Names loaded = file.segments("LOAD");
    EXPECT_GE(loaded.size(), 2U);
    for (const std::string& flags : loaded) EXPECT_NE(flags, "RWE");
  }
}

TEST_P(Library, NamesNoFolderOfItsBuild) {
  for (const std::string& built : {path(), std::string(HALDCORE_LIBRARY)}) {
    const std::string bytes = contents(built);
    EXPECT_NE(bytes.find("$ORIGIN"), std::string::npos) << built;
    for (const char* folder : {SOURCE_FOLDER, BINARY_FOLDER}) {
      EXPECT_EQ(bytes.find(folder), std::string::npos) << built << " contains " << folder;
    }
  }
}

TEST_P(Library, SlotsHoldTheImplementationsInByteOrder) {
  const std::vector<registry::Export>& functions = registry::exports();
  const Symbol& slots = symbol("haldgen_entry_slots");
  EXPECT_EQ(slots.size, sizeof(void*) * functions.size());

  void* handle = dlopen(path().c_str(), RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(handle, nullptr) << dlerror();
  const link_map* map = nullptr;
  ASSERT_EQ(dlinfo(handle, RTLD_DI_LINKMAP, &map), 0);
  auto* table = reinterpret_cast<volatile std::uintptr_t*>(map->l_addr + slots.address);
  std::set<std::uint64_t> distinct;
  for (std::size_t k = 0; k < functions.size(); ++k) {
    const std::string name = names::implementation_symbol(functions[k].name);
    const std::uint64_t slot = table[k];
    EXPECT_EQ(slot, map->l_addr + symbol(name).address) << name;
    distinct.insert(slot);
  }
  EXPECT_EQ(distinct.size(), functions.size());
  // Slots can be exchanged: they stay writable.
  table[0] = table[0];
  dlclose(handle);
}

#if defined(__x86_64__)
constexpr std::ptrdiff_t kEntryInstructions = 1;

// "jmp *0x7f12(%rip)  # 9110 <haldgen_entry_slots+0x90>", as binutils and LLVM word it.
std::uint64_t slot_of_entry(Instructions::const_iterator at) {
  std::uint64_t slot = 0;
  const int fields = std::sscanf(at->second.c_str(), "jmp%*[q ]*%*[0-9a-fx-](%%rip) # %lx", &slot);
  return fields == 1 ? slot : 0;
}
#elif defined(__i386__)
constexpr std::ptrdiff_t kEntryInstructions = 2;

// "call 9110 <haldgen_place>" and "jmp *0x7f12(%eax)", %eax being where the call returns.
std::uint64_t slot_of_entry(Instructions::const_iterator at) {
  long long distance = 0;
  const bool calls = at->second.starts_with("call") && at->second.ends_with(" <haldgen_place>");
  ++at;
  const int fields = std::sscanf(at->second.c_str(), "jmp%*[l ]*%lli(%%eax)", &distance);
  return calls && fields == 1 ? at->first + static_cast<std::uint64_t>(distance) : 0;
}
#else
constexpr std::ptrdiff_t kEntryInstructions = 3;

// "adrp x16, 9000 <symbol>", "ldr x16, [x16, #272]" and "br x16"; without the offset if it is 0.
std::uint64_t slot_of_entry(Instructions::const_iterator at) {
  std::uint64_t page = 0;
  std::uint64_t offset = 0;
  const bool has_page = std::sscanf(at->second.c_str(), "adrp\tx16, %lx", &page) == 1;
  const std::string load = (++at)->second;
  const bool loads =
      load == "ldr\tx16, [x16]" || std::sscanf(load.c_str(), "ldr\tx16, [x16, #%lu]", &offset) == 1;
  return has_page && loads && (++at)->second == "br\tx16" ? page + offset : 0;
}
#endif

TEST_P(Library, EntriesJumpThroughTheirSlotAndDoNoMore) {
  const std::vector<registry::Export>& functions = registry::exports();
  const Instructions instructions = disassemble(path());
  const std::uint64_t slots = symbol("haldgen_entry_slots").address;
  for (std::size_t k = 0; k < functions.size(); ++k) {
    const std::string& name = functions[k].name;
    const Symbol& entry = file().exported().at(name);
    const auto first = instructions.find(entry.address);
    ASSERT_NE(first, instructions.end()) << name;
    const auto end = instructions.lower_bound(entry.address + entry.size);
    ASSERT_EQ(std::distance(first, end), kEntryInstructions) << name;
    EXPECT_EQ(slot_of_entry(first), slots + sizeof(void*) * k) << name << ": " << first->second;
  }
}

}  // namespace
}  // namespace haldgen::test
