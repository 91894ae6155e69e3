// The compiled kernels give the bits of their graphs or programs, with every flag, on inputs that
// are hard on bits. That directions, formats, placements and entries agree is checked elsewhere.
#include <gtest/gtest.h>

#include "dft_complex/recipes.h"
#include "dft_real/packing.h"
#include "dft_real/recipes.h"
#include "hartley/recipes.h"
#include "names/arrays.h"
#include "tests/built/library.h"
#include "tests/kernelgen/direct.h"

namespace haldgen::test {
namespace {

using dft_real::Direction;
using dft_real::Packing;
using kernelgen::at;
using kernelgen::FloatType;
using kernelgen::Program;

/// `expected` says what a source becomes with a scale, `equal` how exactly.
template <class Float, class Expected, class Equal>
void expect_bits(const BuiltKernel& kernel, const Expected& expected, const Equal& equal) {
  const names::Arrays arrays = names::arrays(*kernel.word, kernel.length);
  for (const auto& source : hard_inputs<Float>(arrays.src_floats, arrays.points)) {
    for (const std::int32_t flag : flags) {
      Floats<Float> src(source, 0);
      Floats<Float> dst(std::vector<Float>(arrays.dst_floats, Float{77}), 0);
      ASSERT_EQ(kernel.function(src.data(), dst.data(), flag), haldStatusOk) << kernel.name;
      const auto factor = scale<Float>(kernel.word->usage.scaling, arrays.points, flag);
      ASSERT_TRUE(equal(dst.values(), expected(source, factor))) << kernel.name << " " << flag;
    }
  }
}

template <class Float>
std::vector<Float> interpreted(const Program& program, const std::vector<Float>& source,
                               Float scale) {
  std::vector<Float> result(source.size());
  kernelgen::interpret(program, source, scale, result);
  return result;
}

/// Visits the kernels of a word; `visit` has the element type as a template argument.
template <class Visitor>
void for_each_kernel(std::string_view word, Visitor&& visit) {
  for (const BuiltKernel& kernel : built_kernels()) {
    if (kernel.word->word != word) continue;
    if (kernel.element == names::Element::f32 || kernel.element == names::Element::c32) {
      visit.template operator()<float>(kernel, FloatType::f32);
    } else {
      visit.template operator()<double>(kernel, FloatType::f64);
    }
  }
}

// Scalar kernels have steps in 64 bits, which programs show, and graphs do not. In vectors, signs
// of zeros are chosen with the forms of values.
TEST(Bits, ComplexKernelsEqualTheirGraphs) {
  for_each_kernel("DFTFwd_CToC", []<class Float>(const BuiltKernel& kernel, FloatType type) {
    const dft_complex::Design& design = dft_complex::design_of(kernel.length, type);
    if (design.execution == dft_complex::Execution::scalar) {
      const Program program = programs_of(design, type, 0).forward;
      expect_bits<Float>(
          kernel, [&](const auto& x, Float scale) { return interpreted(program, x, scale); },
          identical<Float>);
      return;
    }
    const auto graph = graph_of(design);
    expect_bits<Float>(
        kernel,
        [&](const auto& x, Float scale) { return kernelgen::test::direct(graph, x, scale); },
        kernelgen::test::same_bits<Float>);
  });
}

TEST(Bits, RealKernelsEqualTheirPrograms) {
  // A half spectrum in CCS: its values in their order, and zeros beside the real ones.
  const auto place = [](int length, int i) { return at(position(Packing::ccs, length, i)); };
  for_each_kernel("DFTFwd_RToCCS", [&]<class Float>(const BuiltKernel& kernel, FloatType type) {
    const int n = kernel.length;
    const Program program = program_of(dft_real::design_of(n, Direction::forward), type);
    expect_bits<Float>(
        kernel,
        [&](const std::vector<Float>& x, Float scale) {
          const auto values = interpreted(program, x, scale);
          std::vector<Float> array(at(size(Packing::ccs, n)));
          for (int i = 0; i < n; ++i) array[place(n, i)] = values[at(i)];
          return array;
        },
        identical<Float>);
  });
  for_each_kernel("DFTInv_CCSToR", [&]<class Float>(const BuiltKernel& kernel, FloatType type) {
    const int n = kernel.length;
    const Program program = program_of(dft_real::design_of(n, Direction::inverse), type);
    expect_bits<Float>(
        kernel,
        [&](const std::vector<Float>& array, Float scale) {
          std::vector<Float> values;
          for (int i = 0; i < n; ++i) values.push_back(array[place(n, i)]);
          return interpreted(program, values, scale);
        },
        identical<Float>);
  });
}

TEST(Bits, HartleyKernelsEqualTheirPrograms) {
  for_each_kernel("Hartley", []<class Float>(const BuiltKernel& kernel, FloatType type) {
    const Program program = program_of(hartley::design_of(kernel.length), type);
    expect_bits<Float>(
        kernel, [&](const auto& x, Float scale) { return interpreted(program, x, scale); },
        identical<Float>);
  });
}

}  // namespace
}  // namespace haldgen::test
