// Where the libraries lie that the build has made.
#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace haldgen::test {

/// libhaldgenp8.so, the baseline first, and then its flavours.
inline std::vector<std::string> built_libraries() {
  std::vector<std::string> paths;
  std::istringstream stream(HALDGEN_LIBRARIES);
  for (std::string path; std::getline(stream, path, ':');) paths.push_back(path);
  return paths;
}

}  // namespace haldgen::test
