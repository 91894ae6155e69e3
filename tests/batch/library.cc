#include "tests/batch/library.h"

#include <dlfcn.h>

#include <stdexcept>

#include "lanes/processor.h"

namespace haldgen::test {

void* batch_function(const std::string& name) {
  static void* const library = dlopen(batch_path, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) throw std::runtime_error(dlerror());
  void* const address = dlsym(library, name.c_str());
  if (address == nullptr) throw std::runtime_error("no function " + name);
  return address;
}

bool processor_can_run_batches() {
  return lanes::processor_has(
      reinterpret_cast<std::int32_t (*)()>(batch_function("haldbGetVectorBits"))());
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
