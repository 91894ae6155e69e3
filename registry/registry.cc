#include "registry/registry.h"

#include <algorithm>
#include <stdexcept>

#define HALDGEN_FAMILY(folder, function, ...)         \
  namespace haldgen::folder {                         \
  family::Family function(const names::Sizes& sizes); \
  }
#include "registry/families.inc"
#undef HALDGEN_FAMILY

namespace haldgen::registry {
namespace {

names::Word version_word() {
  return {
      "GetLibVersion",
      names::Signature::version,
      {names::Element::none},
      {},
      {},
      {"Version of the library", "",
       R"(@return The record of this build: always the same pointer, never null. It belongs to the library;
        do not change or free it.)"}};
}

std::vector<names::Word> all_words() {
  std::vector<names::Word> all;
  for (const family::Family& family : families()) {
    all.insert(all.end(), family.words.begin(), family.words.end());
  }
  all.push_back(version_word());
  return all;
}

std::vector<Export> sorted_exports() {
  std::vector<Export> all;
  for (const names::Word& word : words()) {
    for (const names::Element element : word.elements) {
      const auto add = [&](int size) {
        all.push_back({export_name(word, element, size), &word, element, size});
      };
      if (size_in_name(word)) {
        for (const int size : word.sizes) add(size);
      } else {
        add(0);
      }
    }
  }
  std::ranges::sort(all, {}, &Export::name);
  return all;
}

}  // namespace

const std::vector<family::Family>& families() {
  static const std::vector<family::Family> all{
#define HALDGEN_FAMILY(folder, function, ...) haldgen::folder::function(names::Sizes(#__VA_ARGS__)),
#include "registry/families.inc"
#undef HALDGEN_FAMILY
  };
  return all;
}

const family::Family& family_named(const std::string& name) {
  const auto found = std::ranges::find(families(), name, &family::Family::name);
  if (found == families().end()) throw std::out_of_range("no family " + name);
  return *found;
}

const std::vector<names::Word>& words() {
  static const std::vector<names::Word> all = all_words();
  return all;
}

const std::vector<Export>& exports() {
  static const std::vector<Export> all = sorted_exports();
  return all;
}

}  // namespace haldgen::registry
