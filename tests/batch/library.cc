#include "tests/batch/library.h"

#include <dlfcn.h>

#include <stdexcept>

namespace haldgen::test {

bool processor_can_run_batches() {
  const std::string path = batch_path;
#if defined(__x86_64__)
  __builtin_cpu_init();
  if (path.find("x86-64-v3") != std::string::npos) {
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") &&
           __builtin_cpu_supports("bmi2");
  }
  if (path.find("x86-64-v4") != std::string::npos) {
    return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
           __builtin_cpu_supports("avx512cd") && __builtin_cpu_supports("avx512dq") &&
           __builtin_cpu_supports("avx512vl");
  }
#endif
  return !path.empty();
}

void* batch_function(const std::string& name) {
  static void* const library = dlopen(batch_path, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw std::runtime_error(dlerror());
  void* const address = dlsym(library, name.c_str());
  if (address == nullptr) throw std::runtime_error("no function " + name);
  return address;
}

namespace {

std::size_t width(names::Layout layout) {
  return layout == names::Layout::complex || layout == names::Layout::ccs ? 2 : 1;
}

}  // namespace

template <class Float>
const std::vector<Batch<Float>>& batches() {
  static const std::vector<Batch<Float>> all = [] {
    std::vector<Batch<Float>> list;
    for (const Transform<Float>& single : live<Float>().fixed) {
      const names::Word& word = *single.word;
      const std::string name =
          "haldb" + word.word + "_" + std::string(names::suffix(single.element));
      list.push_back({name + " at " + std::to_string(single.size),
                      reinterpret_cast<BatchFunction>(batch_function(name)), &single,
                      width(word.usage.src), width(word.usage.dst)});
    }
    return list;
  }();
  return all;
}
template const std::vector<Batch<float>>& batches<float>();
template const std::vector<Batch<double>>& batches<double>();

}  // namespace haldgen::test
