// haldgen-bits: whether a library gives the published bits. Finds the functions and the published
// sums, and no more.
#include <unistd.h>

#include <array>
#include <fstream>
#include <iostream>
#include <vector>

#include "bits/linked.h"
#include "bits/program.h"

#ifndef __wasm__
#include <dlfcn.h>
#endif

namespace haldgen::bits {
namespace {

// The functions of the library at a path; without effect on the one that is linked.
Find loaded(const std::string& path, std::string& error) {
#ifndef __wasm__
  void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) error = dlerror();
  return [library](const std::string& name) {
    return reinterpret_cast<Address>(dlsym(library, name.c_str()));
  };
#else
  error = "cannot open " + path + ": there are no shared libraries on this machine";
  return {};
#endif
}

// The file of published sums: beside the program in a build tree, in the folder of data where it is
// installed. Empty if there is none.
std::string published() {
  std::array<char, 4096> path{};
  const auto length = readlink("/proc/self/exe", path.data(), path.size());
  if (length <= 0) return {};
  std::string folder(path.data(), static_cast<std::size_t>(length));
  folder.resize(folder.rfind('/') + 1);
  for (const char* const place : {"published.tsv", HALDGEN_BITS_DATA}) {
    if (std::ifstream(folder + place)) return folder + place;
  }
  return {};
}

}  // namespace
}  // namespace haldgen::bits

int main(int argc, char** argv) {
  std::vector<std::string> arguments(argv + 1, argv + argc);
  haldgen::bits::Find find = haldgen::bits::linked();
#ifdef HALDGEN_BATCHES
  if (!arguments.empty() && arguments[0] == "batches") find = haldgen::bits::linked_batches();
#endif
  if (arguments.size() >= 2 && arguments[0] == "--library") {
    std::string error;
    find = haldgen::bits::loaded(arguments[1], error);
    if (!error.empty()) {
      std::cerr << error << "\n";
      return 2;
    }
    arguments.erase(arguments.begin(), arguments.begin() + 2);
  }
  return haldgen::bits::run(find, arguments, haldgen::bits::published(), std::cout, std::cerr);
}
