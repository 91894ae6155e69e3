// That the comparison sees what it is there for: functions of the library are exchanged for ones
// that give other bits now and then.
#include "bits/program.h"

#include <gtest/gtest.h>
#include <haldgen.h>

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
  Outcome outcome{run(find, arguments, text, text), {}};
  for (std::string line; std::getline(text, line);) outcome.lines.push_back(line);
  return outcome;
}

void expect_lines(const Outcome& outcome, const std::vector<std::string>& beginnings) {
  ASSERT_EQ(outcome.lines.size(), beginnings.size()) << testing::PrintToString(outcome.lines);
  for (std::size_t i = 0; i < beginnings.size(); ++i) {
    EXPECT_TRUE(outcome.lines[i].starts_with(beginnings[i])) << outcome.lines[i];
  }
}

// A general entry whose fixed size has a fault has one as well: there is nothing it could be equal
// to.
TEST(Bits, NamesWhatDiffersAndNothingElse) {
  std::stringstream published;
  published << std::ifstream(SUMS_PATH).rdbuf();
  std::string sums = published.str();
  const auto second = sums.find('\n') + 1;  // haldgDCT4_32f/1024 is first, /128 second
  sums[second - 2] = sums[second - 2] == '0' ? '1' : '0';
  sums[second] = 'H';
  const std::string path = testing::TempDir() + "tampered.tsv";
  std::ofstream(path) << sums;

  const Outcome outcome = run_program(exchanged(), {"compare", path});
  EXPECT_EQ(outcome.status, 1);
  expect_lines(
      outcome,
      {
          "haldgDCT4_32f/1024: ",
          "haldgDCT4_32f/128: no sum is published",
          "haldgDCT4_32f/256: state allocated, src 0, dst 0 bytes past a vector: other bits than ",
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
          "haldgWHT_64f: at 9: not the bits of haldgWHT_9_64f",
          "haldgWHT_9_64f: with a buffer, src 0, dst 0 bytes past a vector: other bits than ",
          "HaldgDCT4_32f/128: published, but there is no such transform",
          "1,",
      });
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

TEST(Bits, AFileWithoutSumsIsNoSuccess) {
  EXPECT_EQ(run_program(linked(), {"compare", "/nowhere/sums.tsv"}).status, 2);
  EXPECT_EQ(run_program(linked(), {"compare"}).status, 2);
}

}  // namespace
}  // namespace haldgen::bits
