// What the benchmark reads and writes as text.
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

#include "bench/core/counts.h"
#include "bench/core/size_list.h"
#include "bench/core/table.h"

namespace haldgen::bench {
namespace {

OperationCounts counts(const std::string& text) {
  std::istringstream stream(text);
  return OperationCounts::read(stream);
}

TEST(OperationCounts, FindsColumnsByName) {
  const OperationCounts read = counts(
      "# comment\nfamily\tlength\ttype\tadd\tmul\tdepth\tconvert\n"
      "DFTFwd_CToC\t8\t32fc\t52\t4\t4\t7\nDFTInv_CToC\t8\t32fc\t53\t4\t4\t0\n");
  EXPECT_EQ(read.of("DFTFwd_CToC", "32fc", 8), (OperationCounts::Counts{52, 7}));
  EXPECT_EQ(read.of("DFTInv_CToC", "32fc", 8), (OperationCounts::Counts{53, 0}));
  EXPECT_EQ(read.of("DFTFwd_CToC", "64fc", 8), std::nullopt);
  EXPECT_EQ(read.of("Hartley", "32fc", 8), std::nullopt);
}

TEST(OperationCounts, RefusesDamagedTables) {
  EXPECT_THROW(counts("length\ttype\n8\t32fc\n"), std::runtime_error);
  EXPECT_THROW(counts("length\ttype\tadd\n8\t32fc\n"), std::runtime_error);
  EXPECT_THROW(counts("length\ttype\tadd\neight\t32fc\t52\n"), std::runtime_error);
}

TEST(SizeList, ReadsNumbersAndRanges) {
  EXPECT_EQ(parse_size_list("8"), std::set{8});
  EXPECT_EQ(parse_size_list("64,2-5,3"), (std::set{2, 3, 4, 5, 64}));
}

TEST(SizeList, RefusesWhatIsNoList) {
  for (const char* text : {"", "x", "0", "-3", "8,,9", "9-8", "8-", "99999999999"}) {
    EXPECT_THROW(parse_size_list(text), std::invalid_argument) << text;
  }
}

TEST(Table, AlignsColumns) {
  std::ostringstream out;
  write_aligned(out, {{"a", "long"}, {{"123", "4"}}});
  EXPECT_EQ(out.str(), "  a  long\n123     4\n");
}

TEST(Cell, RoundsOrMarksAbsence) {
  EXPECT_EQ(cell(1.2345, 2), "1.23");
  EXPECT_EQ(cell(std::nullopt, 2), "-");
}

}  // namespace
}  // namespace haldgen::bench
