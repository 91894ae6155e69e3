#include "family/family.h"

#include <utility>

#include "kernelgen/count.h"

namespace haldgen::family {

void add_transform(Family& family, const std::string& word,
                   const std::vector<names::Element>& elements, const names::Usage& usage,
                   const names::TransformText& text) {
  for (names::Word& functions : names::transform_words(word, elements, family.sizes, usage, text)) {
    family.words.push_back(std::move(functions));
  }
}

Work work_of(const kernelgen::Program& program) {
  const kernelgen::Tally t = kernelgen::tally(program);
  return {t.in32.additions + t.in64.additions + t.in32.negations + t.in64.negations,
          t.in32.products + t.in64.products, t.depth, t.widenings + t.narrowings};
}

}  // namespace haldgen::family
