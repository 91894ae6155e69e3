#include "generate/dct4.h"

#include <iostream>
#include <optional>
#include <sstream>

#include "dct4/kernel.h"
#include "kernelgen/count.h"
#include "kernelgen/dot.h"

namespace haldgen::generate {
namespace {

using dct4::Kernel;
using kernelgen::FloatType;
using kernelgen::Ordering;

std::string suffix(FloatType type) { return type == FloatType::f32 ? "32f" : "64f"; }

const Kernel* find(const std::string& name, const std::string& type) {
  for (const Kernel& kernel : dct4::kernels()) {
    if (dct4::name(kernel) == name && suffix(kernel.type) == type) return &kernel;
  }
  return nullptr;
}

/// ORDER or ORDER:CAP.
Ordering ordering(const std::string& text) {
  std::istringstream parts(text);
  std::string order;
  std::string cap;
  std::getline(parts, order, ':');
  std::getline(parts, cap);
  return {kernelgen::order_named(order), cap.empty() ? 0 : std::stoi(cap)};
}

void print_counts(const Kernel* only) {
  std::cout << "kernel\ttype\tadd\tmul\tdepth\n";
  for (const Kernel& kernel : dct4::kernels()) {
    if (only != nullptr && &kernel != only) continue;
    const kernelgen::Counts c = kernelgen::count(dct4::kernel_graph(kernel));
    std::cout << dct4::name(kernel) << '\t' << suffix(kernel.type) << '\t' << c.additions << '\t'
              << c.multiplications << '\t' << c.depth << '\n';
  }
}

}  // namespace

void print_dct4_transforms() {
  for (int length = 2; length <= 1 << 16; length *= 2) {
    const kernelgen::Counts c = dct4::transform_counts(length);
    for (const FloatType type : {FloatType::f32, FloatType::f64}) {
      std::cout << "dct4\t" << length << '\t' << suffix(type) << '\t' << c.additions << '\t'
                << c.multiplications << '\t' << c.depth << "\t0\n";
    }
  }
}

bool run_dct4(const std::vector<std::string>& arguments,
              void (*write_file)(const std::string&, const std::string&)) {
  const std::string& command = arguments[0];
  if (command == "counts" && arguments.size() == 2) {
    print_counts(nullptr);
    return true;
  }
  const Kernel* const kernel = arguments.size() < 4 ? nullptr : find(arguments[2], arguments[3]);
  if (kernel == nullptr) return false;
  if (command == "source" && (arguments.size() == 5 || arguments.size() == 6)) {
    const Ordering choice =
        arguments.size() == 6 ? ordering(arguments[5]) : dct4::ordering_of(*kernel);
    write_file(arguments[4], dct4::kernel_source(*kernel, choice));
    return true;
  }
  if (arguments.size() != 4) return false;
  if (command == "counts") {
    print_counts(kernel);
  } else if (command == "graph") {
    std::cout << kernelgen::to_dot(dct4::kernel_graph(*kernel));
  } else if (command == "code") {
    std::cout << dct4::kernel_source(*kernel, dct4::ordering_of(*kernel));
  } else {
    return false;
  }
  return true;
}

}  // namespace haldgen::generate
