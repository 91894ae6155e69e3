// The tests of one build of libhaldbatch. A processor that cannot run it skips those that call it.
#include <gtest/gtest.h>

#include <iostream>

#include "tests/batch/library.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!haldgen::test::processor_can_run_batches()) {
    GTEST_FLAG_SET(filter, GTEST_FLAG_GET(filter) + ":-Batch*");
    std::cout << "this processor cannot run " << haldgen::test::batch_path << "\n";
  }
  return RUN_ALL_TESTS();
}
