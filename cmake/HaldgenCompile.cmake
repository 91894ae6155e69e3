# How everything is compiled and how the shared libraries are linked.
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The bits of every result are promised, so a product and a sum are never contracted.
add_compile_options($<$<COMPILE_LANGUAGE:C,CXX>:-ffp-contract=off>)

# What is compiled does not depend on the folder that it is compiled in. Names of sources are relative
# to the project's, in debug information too. The later of two options is looked at first.
foreach(language IN ITEMS C CXX ASM)
  add_compile_options(
    $<$<COMPILE_LANGUAGE:${language}>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>
    $<$<COMPILE_LANGUAGE:${language}>:-ffile-prefix-map=${PROJECT_BINARY_DIR}=./build>)
endforeach()

if(HALDGEN_SANITIZE)
  add_compile_options(-fsanitize=${HALDGEN_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${HALDGEN_SANITIZE})
endif()
if(HALDGEN_BUILD_FUZZ)
  # What a call runs through tells the fuzzers which inputs to keep.
  add_compile_options($<$<COMPILE_LANGUAGE:C,CXX>:-fsanitize=fuzzer-no-link>)
endif()

# Warnings, for code written by hand; errors where this is the project that is worked on. g++ 12 takes every "literal" + string for an
# overlapping copy (its bug 105651), and on some machines and levels a variant's vector for
# uninitialised.
set(haldgen_werror $<$<BOOL:${HALDGEN_WERROR}>:-Werror>)
function(haldgen_warnings target)
  target_compile_options(${target} PRIVATE
    $<$<COMPILE_LANGUAGE:C,CXX>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion ${haldgen_werror}>
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-maybe-uninitialized>)
endfunction()

# Linking of an installed shared library that exports exactly the names of an export list. The
# libraries lie side by side, in the build tree as after installation. Calls to haldcore stay open
# to interposition, so there is no -Bsymbolic. All addresses are found at load and read-only from
# then on, but for the slots; code is never written, the stack never run. Inside of another project
# it is that one's to say where libraries lie and find each other.
function(haldgen_shared_library target export_list)
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    LINKER_LANGUAGE CXX
    LINK_DEPENDS ${export_list})
  if(PROJECT_IS_TOP_LEVEL)
    set_target_properties(${target} PROPERTIES
      LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}
      BUILD_WITH_INSTALL_RPATH ON
      INSTALL_RPATH $ORIGIN)
  endif()
  target_link_options(${target} PRIVATE
    -Wl,--version-script=${export_list} -Wl,--as-needed
    -Wl,-z,relro -Wl,-z,now -Wl,-z,text -Wl,-z,noexecstack)
  # The run-time of clang's sanitizers is only in the executable.
  if(NOT (HALDGEN_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang"))
    target_link_options(${target} PRIVATE -Wl,-z,defs)
  endif()
endfunction()

# The static library beside a shared one, of the same objects: TARGET_static, by the same file name.
# Where there are only static libraries it is TARGET itself.
#   haldgen_static_library(TARGET OBJECT...)
function(haldgen_static_library target)
  set(static ${target}_static)
  if(haldgen_library_type STREQUAL "STATIC")
    add_library(haldgen::${static} ALIAS ${target})
    return()
  endif()
  add_library(${static} STATIC ${ARGN})
  add_library(haldgen::${static} ALIAS ${static})
  # The objects need no library of C++, so programs in C link them.
  set_target_properties(${static} PROPERTIES OUTPUT_NAME ${target} LINKER_LANGUAGE C)
  if(PROJECT_IS_TOP_LEVEL)
    set_target_properties(${static} PROPERTIES ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
  endif()
  get_target_property(includes ${target} INTERFACE_INCLUDE_DIRECTORIES)
  target_include_directories(${static} INTERFACE ${includes})
endfunction()

# A section for each function and each table: whoever links a static library takes what he calls. It
# changes no instruction.
set(haldgen_sections -ffunction-sections -fdata-sections)

# Programs of the build are optimised in every configuration: they run during it.
function(haldgen_build_tool target)
  target_compile_options(${target} PRIVATE $<$<CONFIG:Debug>:-O1>)
endfunction()

# Generated kernels. The order of instructions is the generator's; vectorisers would pack scalar
# kernels and widen the others' registers' lives. Kernels that are the same code stay functions of
# their own: g++ would make one jump to the other. To say for a debugger where each of thousands of
# values is would take g++ minutes.
function(haldgen_kernels target)
  set_target_properties(${target} PROPERTIES
    CXX_VISIBILITY_PRESET hidden POSITION_INDEPENDENT_CODE ON)
  target_compile_options(${target} PRIVATE
    ${haldgen_kernel_options} ${haldgen_sections} -fno-tree-vectorize -fno-tree-slp-vectorize
    $<$<CXX_COMPILER_ID:GNU>:-frename-registers;-fno-ipa-icf;-fno-var-tracking>
    -Wall -Wextra ${haldgen_werror})
  # Checks of addresses as calls: as branches, in lines of a thousand loads and stores, they would take
  # compilers minutes too.
  if(HALDGEN_SANITIZE)
    target_compile_options(${target} PRIVATE
      $<$<CXX_COMPILER_ID:GNU>:--param=asan-instrumentation-with-call-threshold=0>
      "$<$<CXX_COMPILER_ID:Clang>:SHELL:-mllvm -asan-instrumentation-with-call-threshold=0>")
  endif()
  if(HALDGEN_BUILD_FUZZ)
    # A line of arithmetic has one way through; the checks in it would drown the rest.
    target_compile_options(${target} PRIVATE -fno-sanitize=fuzzer-no-link)
  endif()
  add_dependencies(${target} haldgen_frame_generated)
endfunction()
