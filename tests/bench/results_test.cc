// What the benchmark reads and writes as text, on figures worked out by hand.
#include "bench/core/results.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

#include "bench/core/size_list.h"

namespace haldgen::bench {
namespace {

TEST(SizeList, ReadsNumbersAndRanges) {
  EXPECT_EQ(parse_size_list("8"), std::set{8});
  EXPECT_EQ(parse_size_list("64,2-5,3"), (std::set{2, 3, 4, 5, 64}));
}

TEST(SizeList, RefusesWhatIsNoList) {
  for (const char* text : {"", "x", "0", "-3", "8,,9", "9-8", "8-", "99999999999"}) {
    EXPECT_THROW(parse_size_list(text), std::invalid_argument) << text;
  }
}

TEST(Results, MedianOfOddAndEvenCounts) {
  EXPECT_EQ(median(std::vector{5.0, 1.0, 3.0}), 3);
  EXPECT_EQ(median(std::vector{5.0, 1.0, 3.0, 4.0}), 3.5);
  EXPECT_EQ(median(std::vector{7.0}), 7);
}

TEST(Results, TableNamesRolesAndMarksAbsentContestants) {
  const auto own = [](std::vector<double> samples) {
    return Contestant{"own", Role::subject, {}, 1, std::move(samples)};
  };
  const std::vector<Measurement> measurements = {
      {"hot", "Word", "32f", 8, {{"fast", Role::peer, {}, 1, {5, 1, 3, 4}}, own({7})}},
      {"ring", "Word", "64f", 16, {own({1.25}), {"add", Role::calibration, {}, 1, {2}}}},
  };
  std::ostringstream out;
  write_results(out, {{"processor", "of a test"}}, measurements);
  std::string table = out.str();
  const std::size_t load = table.find("# load at end: ");
  ASSERT_NE(load, std::string::npos);
  table.erase(load, table.find('\n', load) + 1 - load);
  EXPECT_EQ(table,
            "# processor: of a test\n# subject: own\n# peer: fast\n# calibration: add\n"
            "mode\tstatistic\tfamily\ttype\tlength\town\tfast\tadd\n"
            "hot\tmedian\tWord\t32f\t8\t7.0000\t3.5000\t-\n"
            "hot\tminimum\tWord\t32f\t8\t7.0000\t1.0000\t-\n"
            "ring\tmedian\tWord\t64f\t16\t1.2500\t-\t2.0000\n"
            "ring\tminimum\tWord\t64f\t16\t1.2500\t-\t2.0000\n");
}

}  // namespace
}  // namespace haldgen::bench
