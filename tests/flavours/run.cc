// Runs a program with a flavour of the library in place of the one that it is linked with, if the
// processor can.
#include <dlfcn.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "bits/sums.h"
#include "lanes/processor.h"

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs("usage: run_in_flavour LIBRARY PROGRAM [ARGUMENT...]\n", stderr);
    return 2;
  }
  void* const library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) {
    std::fprintf(stderr, "%s\n", dlerror());
    return 2;
  }
  const int bits = haldgen::bits::vector_bits([library](const std::string& name) {
    return reinterpret_cast<haldgen::bits::Address>(dlsym(library, name.c_str()));
  });
  if (!haldgen::lanes::processor_has(bits)) {
    std::fprintf(stderr, "this processor has no vectors of %d bits\n", bits);
    return 2;
  }
  setenv("LD_PRELOAD", argv[1], 1);
  execv(argv[2], argv + 2);
  std::perror(argv[2]);
  return 2;
}
