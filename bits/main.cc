// haldgen-bits: whether a library gives the published bits. Finds the functions, and no more.
#include <iostream>
#include <vector>

#include "bits/linked.h"
#include "bits/program.h"

#if __has_include(<dlfcn.h>)
#include <dlfcn.h>
#endif

namespace haldgen::bits {
namespace {

// The functions of the library at a path; without effect on the one that is linked.
Find loaded(const std::string& path, std::string& error) {
#if __has_include(<dlfcn.h>)
  void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) error = dlerror();
  return [library](const std::string& name) {
    return reinterpret_cast<Address>(dlsym(library, name.c_str()));
  };
#else
  error = "cannot open " + path + ": this machine has linked libraries only";
  return {};
#endif
}

}  // namespace
}  // namespace haldgen::bits

int main(int argc, char** argv) {
  std::vector<std::string> arguments(argv + 1, argv + argc);
  haldgen::bits::Find find = haldgen::bits::linked();
  if (arguments.size() > 2 && arguments[0] == "--library") {
    std::string error;
    find = haldgen::bits::loaded(arguments[1], error);
    if (!error.empty()) {
      std::cerr << error << "\n";
      return 2;
    }
    arguments.erase(arguments.begin(), arguments.begin() + 2);
  }
  return haldgen::bits::run(find, arguments, std::cout, std::cerr);
}
