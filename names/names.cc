#include "names/names.h"

#include <stdexcept>

namespace haldgen::names {

std::string_view suffix(Element element) {
  switch (element) {
    case Element::none:
      return "";
    case Element::f32:
      return "32f";
    case Element::f64:
      return "64f";
    case Element::c32:
      return "32fc";
    case Element::c64:
      return "64fc";
  }
  throw std::logic_error("unknown element type");
}

std::string_view c_type(Element element) {
  switch (element) {
    case Element::none:
      break;
    case Element::f32:
      return "float";
    case Element::f64:
      return "double";
    case Element::c32:
      return "Cplx32";
    case Element::c64:
      return "Cplx64";
  }
  throw std::logic_error("no array element type");
}

bool size_in_name(const Word& word) {
  return word.signature == Signature::transform || word.signature == Signature::buffered_transform;
}

bool has_order(const Word& word) {
  return word.signature == Signature::buffered_transform ||
         word.signature == Signature::sized_buffered_transform;
}

bool is_general(const Word& word) {
  return word.signature == Signature::sized_transform ||
         word.signature == Signature::sized_buffered_transform;
}

std::vector<Word> transform_words(const std::string& word, const std::vector<Element>& elements,
                                  const Sizes& lengths, const Usage& usage,
                                  const TransformText& text) {
  const std::string definition = text.formula + text.both + "\n";
  const Text fixed{
      text.title + ", fixed length",
      definition + text.remark + "The length N is the number in the name.\n\n" + text.arrays,
      R"(@return haldStatusNullPointer if src or dst is null; else haldStatusFlagError if flag is none of
        the four values; else haldStatusOk. dst is written only if haldStatusOk is returned.)"};
  const Text general{
      text.title + ", general", definition + text.arrays + R"(
@param length  N, for lengths known at run time only: any length that has a function of its own.)",
      R"(@return haldStatusSizeError if no function has this length, whatever the other arguments are;
        else what the function of this length returns.)"};
  return {{word, Signature::transform, elements, lengths, usage, fixed},
          {word, Signature::sized_transform, elements, lengths, usage, general}};
}

std::string export_name(std::string_view word, Element element, int size) {
  std::string text = "haldg" + std::string(word);
  if (size != 0) text += "_" + std::to_string(size);
  if (element != Element::none) text += "_" + std::string(suffix(element));
  return text;
}

std::string export_name(const Word& word, Element element, int size) {
  // The version function is the only one outside the naming scheme of the transforms.
  if (word.signature == Signature::version) return "haldgen" + word.word;
  return export_name(std::string_view(word.word), element, size);
}

std::string implementation_symbol(std::string_view export_name) {
  const std::string_view prefix = export_name.starts_with("haldgen") ? "haldgen" : "haldg";
  return "haldgImpl_" + std::string(export_name.substr(prefix.size()));
}

std::vector<Parameter> parameters(Signature signature, Element element) {
  if (signature == Signature::version) return {};
  const std::string array = std::string(c_type(element)) + "*";
  const Parameter src{"const " + array, "src"};
  const Parameter dst{array, "dst"};
  const Parameter length{"int32_t", "length"};
  const Parameter order{"int32_t", "order"};
  const Parameter flag{"int32_t", "flag"};
  const Parameter buffer{"uint8_t*", "buffer"};
  const Parameter new_state{"Dct4State**", "state"};
  switch (signature) {
    case Signature::transform:
      return {src, dst, flag};
    case Signature::sized_transform:
      return {src, dst, length, flag};
    case Signature::buffered_transform:
      return {src, dst, flag, buffer};
    case Signature::sized_buffered_transform:
      return {src, dst, order, flag, buffer};
    case Signature::order_query:
      return {order, {"uint32_t*", "size"}};
    case Signature::length_query:
      return {length, {"int32_t*", "size"}};
    case Signature::plan_init:
      return {new_state, length, buffer};
    case Signature::plan_init_alloc:
      return {new_state, length};
    case Signature::plan_free:
      return {{"Dct4State*", "state"}};
    case Signature::planned_transform:
      return {src, dst, {"Dct4State*", "state"}};
    case Signature::version:
      break;
  }
  throw std::logic_error("unknown signature");
}

std::string_view return_type(Signature signature) {
  return signature == Signature::version ? "const LibraryVersion*" : "int32_t";
}

std::string declaration(Signature signature, Element element, std::string_view name) {
  std::string text = std::string(return_type(signature)) + " " + std::string(name) + "(";
  const std::vector<Parameter> list = parameters(signature, element);
  if (list.empty()) return text + "void)";
  for (std::size_t i = 0; i < list.size(); ++i) {
    text += (i == 0 ? "" : ", ") + list[i].type + " " + list[i].name;
  }
  return text + ")";
}

}  // namespace haldgen::names
