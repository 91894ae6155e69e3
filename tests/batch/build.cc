// Which build of the library a program of tests is for.
#include "tests/batch/library.h"

namespace haldgen::test {

const char* const batch_path = HALDBATCH_LIBRARY;

}  // namespace haldgen::test
