// The real DFT as two families, one for each direction: the kernels of all packed formats share a
// source.
#include "family/family.h"
#include "family/batch.h"

#include "dft_real/recipes.h"
#include "dft_real/text.h"

namespace haldgen::dft_real {
namespace {

using family::FloatType;
using names::Element;
using names::Layout;
using names::Scaling;

std::string transform_word(Direction direction, Packing packing) {
  return direction == Direction::forward ? "DFTFwd_RTo" + word(packing)
                                         : "DFTInv_" + word(packing) + "ToR";
}

/// The enumerator of a packing.
std::string packing_name(Packing packing) {
  switch (packing) {
    case Packing::ccs:
      return "ccs";
    case Packing::pack:
      return "pack";
    case Packing::perm:
      return "perm";
  }
  return "";
}

Layout layout_of(Packing packing) {
  switch (packing) {
    case Packing::ccs:
      return Layout::ccs;
    case Packing::pack:
      return Layout::pack;
    case Packing::perm:
      return Layout::perm;
  }
  return Layout::none;
}

/// Whether a load and a store meet in any format when the kernel works in place.
kernelgen::Overlap overlap_of(int length, Direction direction) {
  return [=](int load, int store) {
    const int sample = direction == Direction::forward ? load : store;
    const int value = direction == Direction::forward ? store : load;
    for (const Packing packing : kPackings) {
      if (position(packing, length, value) == sample) return true;
    }
    return false;
  };
}

template <Direction kDirection>
struct Family {
  static constexpr bool kForward = kDirection == Direction::forward;
  static constexpr auto kName = kForward ? "real-forward" : "real-inverse";
  static constexpr auto kTitle =
      kForward ? "real DFT to CCS, Pack and Perm" : "inverse real DFT from CCS, Pack and Perm";

  static std::string algorithm(int length, FloatType /*type*/) {
    return to_string(design_of(length, kDirection).recipe);
  }

  static kernelgen::Graph graph(int length, FloatType /*type*/) {
    return graph_of(design_of(length, kDirection));
  }

  static family::Work work(int length, FloatType type) {
    return family::work_of(program_of(design_of(length, kDirection), type));
  }

  static family::Transforms transforms(int length, FloatType type, const family::Tuning& tuning) {
    const Element element = family::real_element(type);
    const family::Choice choice =
        tuning.of(names::export_name(transform_word(kDirection, kPackings[0]), element, length));
    const kernelgen::Program scalar = program_of(design_of(length, kDirection), type);

    family::Transforms result;
    result.length = length;
    result.type = type;
    result.element = element;
    result.title = std::string(kForward ? "Forward" : "Inverse") + " real DFT of length " +
                   std::to_string(length);
    result.algorithm = algorithm(length, type) + (kForward ? "" : ", transposed");
    result.operations = kernelgen::describe(kernelgen::tally(scalar), type);
    result.command = std::string(kName) + " " + std::to_string(length) + " " +
                     std::string(names::suffix(element));
    result.includes = {"dft_real/packing.h", "family/contract.h"};
    if (choice.pairs) result.includes.push_back("lanes/beside.h");
    result.scope = "dft_real";
    family::Transform transform{
        "Kernel", length, kForward ? kernelgen::Divides::forward : kernelgen::Divides::inverse,
        element};
    transform.memory = "Format";
    if (kForward) {
      transform.subscripts = {"", "Format::at"};
      transform.epilogue = "    Format::clear(dst);\n";
    } else {
      transform.subscripts = {"Format::at", ""};
    }
    result.bodies = {{transform, tuned(scalar, choice, overlap_of(length, kDirection)), choice}};
    for (const Packing packing : kPackings) {
      family::Transforms::Function function{
          transform_word(kDirection, packing),
          0,
          "Format<Packing::" + packing_name(packing) + ", " + std::to_string(length) + ">",
          {}};
      for (int i = 0; i < length; ++i) function.places.push_back(position(packing, length, i));
      result.functions.push_back(function);
    }
    return result;
  }

  static family::Source batch(int length, FloatType type, const family::Tuning& tuning) {
    const Element element = family::real_element(type);
    const family::Choice choice = tuning.of(family::batch_symbol(kName, element, length));
    family::Source source = family::batch_source(kName, length, element);
    source.algorithm = algorithm(length, type) + (kForward ? "" : ", transposed");
    const kernelgen::Program program = scheduled(program_of(design_of(length, kDirection), type),
                                                 choice.ordering, overlap_of(length, kDirection));
    source.kernels = {
        lane_kernel({.name = "Body", .length = length, .element = element, .stores_bins = kForward},
                    program, choice)};
    source.functions = {family::real_batch(
        kName, length, element, program,
        kForward ? "Side::plain, Side::half_spectrum" : "Side::half_spectrum, Side::plain")};
    return source;
  }

  static family::Family make(const names::Sizes& lengths) {
    family::Family result{
        kName,
        kTitle,
        lengths,
        {},
        family::Generated{
            algorithm, graph, work, family::source_from<transforms>, {}, batch, transforms}};
    for (const Packing packing : kPackings) {
      const Layout spectrum = layout_of(packing);
      const names::Usage usage = kForward ? names::Usage{Scaling::forward, Layout::real, spectrum}
                                          : names::Usage{Scaling::inverse, spectrum, Layout::real};
      add_transform(result, transform_word(kDirection, packing), names::kReal, usage,
                    kForward ? forward_text(packing) : inverse_text(packing));
    }
    return result;
  }
};

}  // namespace

family::Family real_forward(const names::Sizes& lengths) {
  return Family<Direction::forward>::make(lengths);
}
family::Family real_inverse(const names::Sizes& lengths) {
  return Family<Direction::inverse>::make(lengths);
}

}  // namespace haldgen::dft_real
