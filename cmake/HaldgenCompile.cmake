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

if(HALDGEN_SANITIZE)
  add_compile_options(-fsanitize=${HALDGEN_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${HALDGEN_SANITIZE})
endif()

# Warnings as errors, for code written by hand. g++ 12 takes every "literal" + string for an
# overlapping copy (its bug 105651).
function(haldgen_warnings target)
  target_compile_options(${target} PRIVATE
    $<$<COMPILE_LANGUAGE:C,CXX>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror>
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
endfunction()

# Linking of an installed shared library that exports exactly the names of an export list. The
# libraries lie side by side, in the build tree as after installation. Calls to haldcore stay open
# to interposition, so there is no -Bsymbolic.
function(haldgen_shared_library target export_list)
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}
    LINKER_LANGUAGE CXX
    LINK_DEPENDS ${export_list}
    BUILD_WITH_INSTALL_RPATH ON
    INSTALL_RPATH $ORIGIN)
  target_link_options(${target} PRIVATE
    -Wl,--version-script=${export_list} -Wl,--as-needed)
  # The run-time of clang's sanitizers is only in the executable.
  if(NOT (HALDGEN_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang"))
    target_link_options(${target} PRIVATE -Wl,-z,defs)
  endif()
endfunction()

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
    ${haldgen_kernel_options} -fno-tree-vectorize -fno-tree-slp-vectorize
    $<$<CXX_COMPILER_ID:GNU>:-frename-registers;-fno-ipa-icf;-fno-var-tracking>
    -Wall -Wextra -Werror)
  add_dependencies(${target} haldgen_frame_generated)
endfunction()
