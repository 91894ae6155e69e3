#include "bits/sums.h"

#include "bits/planned.h"
#include "bits/taker.h"
#include "names/flavour.h"

namespace haldgen::bits {
namespace {

using names::Element;
using names::Signature;

/// Calls a visitor with the type of an array's elements.
template <class Visitor>
auto with_type(Element element, Visitor&& visit) {
  switch (element) {
    case Element::f32:
      return visit.template operator()<float>();
    case Element::f64:
      return visit.template operator()<double>();
    case Element::c32:
      return visit.template operator()<Cplx32>();
    default:
      return visit.template operator()<Cplx64>();
  }
}

/// A function with a flag, at the size of a transform that has it in the name. That is the function
/// itself, or one with its word.
template <class ArrayElement>
Finding take_flagged(const Find& find, const LinkedFunction& f, const LinkedFunction& fixed) {
  Library library(find);
  const FlaggedCall<ArrayElement> call = flagged_call<ArrayElement>(
      reinterpret_cast<Address>(library.function<void()>(f.name)), f.signature, fixed.size);
  std::vector<std::pair<std::string, std::uint8_t*>> buffers = {{"", nullptr}};
  std::uint32_t bytes = 0;
  if (fixed.signature == Signature::buffered_transform) {
    auto* query = library.function<std::int32_t(std::int32_t, std::uint32_t*)>(
        Signature::order_query, f.element);
    if (query != nullptr) query(fixed.size, &bytes);
  }
  if (!library.complete()) return library.lack();
  Room<std::uint8_t> buffer(bytes);
  if (bytes != 0) buffers.emplace_back("with a buffer, ", buffer.at(0));

  Ways<ArrayElement> ways;
  for (const std::int32_t flag : flags) {
    auto& equal_ways = ways.emplace_back();
    for (const auto& [text, area] : buffers) {
      equal_ways.push_back({text, [&call, flag, place = area](const auto* src, auto* dst) {
                              return call(src, dst, flag, place);
                            }});
    }
  }
  Arrays arrays{fixed.points, static_cast<std::size_t>(fixed.src_floats),
                static_cast<std::size_t>(fixed.dst_floats)};
  for (const std::int32_t gap : fixed.src_gaps) {
    if (gap != 0) arrays.src_gaps.push_back(static_cast<std::size_t>(gap));
  }
  return Taker<ArrayElement>(arrays, ways).take();
}

Finding take_flagged(const Find& find, const LinkedFunction& f, const LinkedFunction& fixed) {
  return with_type(
      f.element, [&]<class ArrayElement>() { return take_flagged<ArrayElement>(find, f, fixed); });
}

Finding take_general(const Find& find, const LinkedFunction& general, const Findings& findings) {
  Checksum checksum;
  for (const LinkedFunction& fixed : frame::linked_functions()) {
    if (fixed.size == 0 || fixed.word != general.word || fixed.element != general.element) continue;
    const Finding& expected = findings.find(std::string(fixed.name))->second;
    const Finding at_size = take_flagged(find, general, fixed);
    if (!at_size.fault.empty() || !expected.fault.empty() || at_size.sum != expected.sum) {
      return {0, "at " + std::to_string(fixed.size) + ": " +
                     (at_size.fault.empty() ? "not the bits of " + std::string(fixed.name)
                                            : at_size.fault)};
    }
    checksum.add_number(at_size.sum);
  }
  return {checksum.value(), {}};
}

using Version = const LibraryVersion*();

/// The flavour that a record is of; null if its words are none's.
const names::Flavour* flavour_of(const LibraryVersion& record) {
  for (const names::Flavour& flavour : names::flavours) {
    if (std::memcmp(flavour.tag, record.processorTag, sizeof flavour.tag) == 0 &&
        std::strcmp(flavour.name, record.name) == 0) {
      return &flavour;
    }
  }
  return nullptr;
}

Finding take_version(const Find& find, const LinkedFunction& f) {
  Library library(find);
  auto* const version = library.function<Version>(f.name);
  if (!library.complete()) return library.lack();
  const LibraryVersion* const record = version();
  if (record == nullptr) return {0, "no record"};
  Checksum checksum;
  for (const std::int32_t number :
       {record->majorVersion, record->minorVersion, record->updateLevel, record->sourceRevision}) {
    checksum.add_number(static_cast<std::uint32_t>(number));
  }
  // Flavours differ in the two words that tell them apart: the sum is that of the baseline.
  const bool known = flavour_of(*record) != nullptr;
  const char* const tag = known ? names::flavours[0].tag : record->processorTag;
  const char* const name = known ? names::flavours[0].name : record->name;
  std::string text(tag, sizeof record->processorTag);
  for (const char* const part : {name, record->versionText, record->buildDate}) {
    text += part;
    text += '\0';
  }
  for (const char letter : text) checksum.add_status(static_cast<unsigned char>(letter));
  return {checksum.value(), {}};
}

}  // namespace

Findings take_sums(const Find& find) {
  Findings findings;
  for (const LinkedFunction& f : frame::linked_functions()) {
    if (f.size != 0) findings[std::string(f.name)] = take_flagged(find, f, f);
  }
  for (const LinkedFunction& f : frame::linked_functions()) {
    if (f.size != 0) continue;
    switch (f.signature) {
      case Signature::sized_transform:
      case Signature::sized_buffered_transform:
        findings[std::string(f.name)] = take_general(find, f, findings);
        break;
      case Signature::planned_transform:
        take_planned(find, f, findings);
        break;
      case Signature::version:
        findings[std::string(f.name)] = take_version(find, f);
        break;
      default:
        findings[std::string(f.name)] = take_service(find, f);
    }
  }
  return findings;
}

int vector_bits(const Find& find) {
  const Address address = find("haldgenGetLibVersion");
  const LibraryVersion* const record =
      address == nullptr ? nullptr : reinterpret_cast<Version*>(address)();
  const names::Flavour* const flavour = record == nullptr ? nullptr : flavour_of(*record);
  return (flavour == nullptr ? names::flavours[0] : *flavour).vector_bits;
}

}  // namespace haldgen::bits
