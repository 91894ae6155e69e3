// That the comparison sees what it is there for: functions of the library are exchanged for ones
// that give other bits now and then.
#include "bits/program.h"

#include <gtest/gtest.h>
#include <haldgen.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "bits/linked.h"

namespace haldgen::bits {
namespace {

// Sums: the sign of a zero counts, and so does what is read from places that hold no value.

std::int32_t other_zeros(const float* src, float* dst, std::int32_t flag) {
  const std::int32_t status = haldgDFTInv_PackToR_7_32f(src, dst, flag);
  for (int n = 0; n < 7; ++n) dst[n] = dst[n] == 0 ? -dst[n] : dst[n];
  return status;
}

std::int32_t reads_a_gap(const double* src, double* dst, std::int32_t flag) {
  const double gap = src[7];
  const std::int32_t status = haldgDFTInv_CCSToR_6_64f(src, dst, flag);
  dst[0] += 0.0 * gap;
  return status;
}

// Faults: placements, work buffers and general entries must not make a difference.

std::int32_t other_in_one_place(const Cplx32* src, Cplx32* dst, std::int32_t flag) {
  const bool there = src == dst && reinterpret_cast<std::uintptr_t>(dst) % 16 == 12;
  const std::int32_t status = haldgDFTFwd_CToC_8_32fc(src, dst, flag);
  if (there) dst[7].im += 1;
  return status;
}

std::int32_t other_with_a_buffer(const double* src, double* dst, std::int32_t flag,
                                 std::uint8_t* buffer) {
  return haldgWHT_9_64f(src, dst, buffer == nullptr ? flag : haldScaleNone, buffer);
}

std::int32_t other_at_11(const float* src, float* dst, std::int32_t length, std::int32_t flag) {
  return haldgHartley_32f(src, dst, length, length == 11 ? haldScaleNone : flag);
}

std::int32_t refuses(const double* /*src*/, double* /*dst*/, std::int32_t /*flag*/) {
  return haldStatusFlagError;
}

// What is around a transform: set-up, release, sizes, the version.

std::int32_t other_size(std::int32_t length, std::int32_t* size) {
  const std::int32_t status = haldgDCT4GetSize_64f(length, size);
  if (length == 128 && size != nullptr) *size += 32;
  return status;
}

std::int32_t accepts_order_14(std::int32_t order, std::uint32_t* size) {
  return haldgWHTGetBufferSize_32f(order == 14 ? 13 : order, size);
}

std::int32_t accepts_null(Dct4State* state) {
  return state == nullptr ? haldStatusOk : haldgDCT4Free_64f(state);
}

const LibraryVersion* other_version() {
  static LibraryVersion version = *haldgenGetLibVersion();
  version.buildDate = "another day";
  return &version;
}

std::int32_t other_if_allocated(Dct4State** state, std::int32_t length) {
  return haldgDCT4InitAlloc_32f(state, length == 256 ? 128 : length);
}

template <class Function>
Address generic(Function* function) {
  return reinterpret_cast<Address>(function);
}

/// The linked library, with other functions behind some names.
Find exchanged() {
  const std::map<std::string, Address> others = {
      {"haldgDFTInv_PackToR_7_32f", generic(other_zeros)},
      {"haldgDFTInv_CCSToR_6_64f", generic(reads_a_gap)},
      {"haldgDFTFwd_CToC_8_32fc", generic(other_in_one_place)},
      {"haldgWHT_9_64f", generic(other_with_a_buffer)},
      {"haldgHartley_32f", generic(other_at_11)},
      {"haldgHartley_64_64f", generic(refuses)},
      {"haldgDCT4InitAlloc_32f", generic(other_if_allocated)},
      {"haldgDFTInv_CToC_5_64fc", nullptr},
      {"haldgDCT4GetSize_64f", generic(other_size)},
      {"haldgWHTGetBufferSize_32f", generic(accepts_order_14)},
      {"haldgDCT4Free_64f", generic(accepts_null)},
      {"haldgenGetLibVersion", generic(other_version)},
  };
  return [others, library = linked()](const std::string& name) {
    const auto other = others.find(name);
    return other == others.end() ? library(name) : other->second;
  };
}

struct Outcome {
  int status;
  std::vector<std::string> lines;  ///< of both streams
};

Outcome run_program(const Find& find, const std::vector<std::string>& arguments) {
  std::stringstream text;
  Outcome outcome{run(find, arguments, PUBLISHED_PATH, text, text), {}};
  for (std::string line; std::getline(text, line);) outcome.lines.push_back(line);
  return outcome;
}

void expect_lines(const Outcome& outcome, const std::vector<std::string>& beginnings) {
  ASSERT_EQ(outcome.lines.size(), beginnings.size()) << testing::PrintToString(outcome.lines);
  for (std::size_t i = 0; i < beginnings.size(); ++i) {
    EXPECT_TRUE(outcome.lines[i].starts_with(beginnings[i])) << outcome.lines[i];
  }
}

std::string published() {
  std::stringstream text;
  text << std::ifstream(PUBLISHED_PATH).rdbuf();
  return text.str();
}

/// A file with this text.
std::string file_of(const std::string& name, const std::string& text) {
  std::string path = testing::TempDir() + name;
  std::ofstream(path) << text;
  return path;
}

// A general entry whose fixed size has a fault has one as well: there is nothing it could be equal
// to.
TEST(Bits, NamesWhatDiffersAndNothingElse) {
  std::string sums = published();
  char& digit = sums[sums.find("haldgDCT4_64f/65536\t") + 20];
  digit = digit == '0' ? '1' : '0';
  sums[sums.find("haldgDCT4_32f/128\t")] = 'H';
  const std::string path = file_of("tampered.tsv", sums);

  const Outcome outcome = run_program(exchanged(), {"compare", path});
  EXPECT_EQ(outcome.status, 1);
  expect_lines(
      outcome,
      {
          "haldgDCT4Free_64f: ",
          "haldgDCT4GetSize_64f: ",
          "haldgDCT4InitAlloc_32f: ",
          "haldgDCT4_32f/128: no sum is published",
          "haldgDCT4_32f/256: state allocated, src 0, dst 0 bytes past a vector: other bits than ",
          "haldgDCT4_64f/65536: ",
          "haldgDFTFwd_CToC_32fc: at 8: not the bits of haldgDFTFwd_CToC_8_32fc",
          "haldgDFTFwd_CToC_8_32fc: in place, 12 bytes past a vector: other bits than ",
          "haldgDFTInv_CCSToR_64f: at 6: not the bits of haldgDFTInv_CCSToR_6_64f",
          "haldgDFTInv_CCSToR_6_64f: ",
          "haldgDFTInv_CToC_5_64fc: the library has no haldgDFTInv_CToC_5_64fc",
          "haldgDFTInv_CToC_64fc: at 5: not the bits of haldgDFTInv_CToC_5_64fc",
          "haldgDFTInv_PackToR_32f: at 7: not the bits of haldgDFTInv_PackToR_7_32f",
          "haldgDFTInv_PackToR_7_32f: ",
          "haldgHartley_32f: at 11: not the bits of haldgHartley_11_32f",
          "haldgHartley_64_64f: src 0, dst 0 bytes past a vector: status -16",
          "haldgHartley_64f: at 64: not the bits of haldgHartley_64_64f",
          "haldgWHTGetBufferSize_32f: ",
          "haldgWHT_64f: at 9: not the bits of haldgWHT_9_64f",
          "haldgWHT_9_64f: with a buffer, src 0, dst 0 bytes past a vector: other bits than ",
          "haldgenGetLibVersion: ",
          "HaldgDCT4_32f/128: published, but there is no such function",
          "1,173 of 1,194 as published",  // functions, each once, and the one that does not exist
      });
}

// Batches by single calls.
template <class Float, class Single>
std::int32_t batch_of(Single* single, const Float* src, std::ptrdiff_t src_step,
                      std::ptrdiff_t src_dist, Float* dst, std::ptrdiff_t dst_step,
                      std::ptrdiff_t dst_dist, std::int32_t order, std::ptrdiff_t count,
                      std::int32_t flag) {
  const std::ptrdiff_t points = std::ptrdiff_t{1} << order;
  std::vector<Float> one(static_cast<std::size_t>(points));
  for (std::ptrdiff_t t = 0; t < count; ++t) {
    for (std::ptrdiff_t n = 0; n < points; ++n) {
      one[static_cast<std::size_t>(n)] = src[n * src_step + t * src_dist];
    }
    const std::int32_t status = single(one.data(), one.data(), order, flag, nullptr);
    if (status != haldStatusOk) return status;
    for (std::ptrdiff_t n = 0; n < points; ++n) {
      dst[n * dst_step + t * dst_dist] = one[static_cast<std::size_t>(n)];
    }
  }
  return haldStatusOk;
}
std::int32_t good_batch(const double* src, std::ptrdiff_t src_step, std::ptrdiff_t src_dist,
                        double* dst, std::ptrdiff_t dst_step, std::ptrdiff_t dst_dist,
                        std::int32_t order, std::ptrdiff_t count, std::int32_t flag) {
  return batch_of(haldgWHT_64f, src, src_step, src_dist, dst, dst_step, dst_dist, order, count,
                  flag);
}
// Wrong where the last few of order 5 are columns.
std::int32_t wrong_batch(const float* src, std::ptrdiff_t src_step, std::ptrdiff_t src_dist,
                         float* dst, std::ptrdiff_t dst_step, std::ptrdiff_t dst_dist,
                         std::int32_t order, std::ptrdiff_t count, std::int32_t flag) {
  const bool wrong = order == 5 && src_dist == 1;
  return batch_of(haldgWHT_32f, src, src_step, src_dist, dst, dst_step, dst_dist, order, count,
                  wrong ? haldScaleNone : flag);
}

TEST(Bits, BatchesHaveThePublishedOnesOfSingleCalls) {
  const Find find = [](const std::string& name) -> Address {
    if (name == "haldbWHT_64f") return generic(good_batch);
    return name == "haldbWHT_32f" ? generic(wrong_batch) : nullptr;
  };
  const Outcome outcome = run_program(find, {"batches"});
  EXPECT_EQ(outcome.status, 1);
  const auto has = [&](const std::string& line) {
    return std::count(outcome.lines.begin(), outcome.lines.end(), line);
  };
  EXPECT_EQ(has("haldgWHT_5_32f: columns: other bits than rows"), 1);
  EXPECT_EQ(has("haldgDFTInv_CCSToR_9_64f: the library has no haldbDFTInv_CCSToR_64f"), 1);
  EXPECT_EQ(outcome.lines.back(), "25 of 1,160 as published, in batches of 128 bits");
}

// What has no one sum is not recorded.
TEST(Bits, RecordsAllOrNothing) {
  const std::string path = testing::TempDir() + "exchanged.tsv";
  std::remove(path.c_str());
  const Outcome outcome = run_program(exchanged(), {"record", path});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.lines.back(), "nothing recorded: faults in 12");
  EXPECT_FALSE(std::ifstream(path));
}

TEST(Bits, AFileOfAnotherVersionOrNoneIsNoSuccess) {
  std::string other = published();
  const auto number = other.find('\n') - 1;
  other[number] = other[number] == '2' ? '3' : '2';
  const std::string path = file_of("other.tsv", other);
  const Outcome outcome = run_program(linked(), {"compare", path});
  EXPECT_EQ(outcome.status, 2);
  expect_lines(outcome, {path + " has bits version\t"});

  const std::string headless = file_of("headless.tsv", other.substr(other.find('\n') + 1));
  EXPECT_EQ(run_program(linked(), {"compare", headless}).status, 2);
  EXPECT_EQ(run_program(linked(), {"compare", "/nowhere/sums.tsv"}).status, 2);
}

TEST(Bits, CommandsThatAreNone) {
  for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
           {"compare", "a", "b"}, {"record"}, {"check"}, {"--library"}, {"--help", "a"}}) {
    EXPECT_EQ(run_program(linked(), arguments).status, 2);
  }
  const Outcome help = run_program(linked(), {"--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_TRUE(help.lines.at(0).starts_with("usage: haldgen-bits "));
}

}  // namespace
}  // namespace haldgen::bits
