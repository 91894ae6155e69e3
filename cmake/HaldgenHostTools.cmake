# Programs that the build runs: haldgen-generate and haldgen-framegen, of this build or of another
# one for the machine that builds.
#   haldgen_generate, haldgen_framegen   to be run, and to depend on
#   haldgen_builds_generator             whether this build has them, or parts of them for its tests
set(HALDGEN_HOST_TOOLS "" CACHE PATH
    "Build directory whose haldgen-generate and haldgen-framegen are run; empty: this one, or one inside it for the host")

if(NOT HALDGEN_HOST_TOOLS AND NOT CMAKE_CROSSCOMPILING)
  set(haldgen_generate haldgen-generate)
  set(haldgen_framegen haldgen-framegen)
  set(haldgen_builds_generator ON)
  return()
endif()
# Its exceptions keep it off WebAssembly.
set(haldgen_builds_generator OFF)
if(HALDGEN_BUILD_TESTS AND NOT haldgen_machine STREQUAL "wasm32")
  set(haldgen_builds_generator ON)
endif()

set(tools ${HALDGEN_HOST_TOOLS})
if(NOT tools)
  set(tools ${PROJECT_BINARY_DIR}/host)
endif()
set(haldgen_generate ${tools}/generate/haldgen-generate)
set(haldgen_framegen ${tools}/frame/haldgen-framegen)
add_executable(haldgen::haldgen-generate IMPORTED GLOBAL)
set_target_properties(haldgen::haldgen-generate PROPERTIES IMPORTED_LOCATION ${haldgen_generate})
if(HALDGEN_HOST_TOOLS)
  return()
endif()

include(ExternalProject)
ExternalProject_Add(haldgen_host_tools
  SOURCE_DIR ${PROJECT_SOURCE_DIR}
  BINARY_DIR ${tools}
  CMAKE_ARGS -DCMAKE_BUILD_TYPE=Release
  BUILD_COMMAND ${CMAKE_COMMAND} --build . --target haldgen-generate haldgen-framegen
  BUILD_ALWAYS ON
  BUILD_BYPRODUCTS ${haldgen_generate} ${haldgen_framegen}
  INSTALL_COMMAND ""
  USES_TERMINAL_BUILD ON)
