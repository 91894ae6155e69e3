# Debian packages of what is installed, one for each component: script/packages.
set(HALDGEN_MAINTAINER "haldgen authors <authors@haldgen.org>" CACHE STRING
    "Whom a package names as its maintainer")
# The packages are those that the project makes, not a distribution.
set(release 0haldgen1)
set(version ${PROJECT_VERSION}-${release})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_PACKAGE_NAME haldgen)
set(CPACK_PACKAGE_CONTACT ${HALDGEN_MAINTAINER})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/packages/finish.cmake)
set(CPACK_HALDGEN_SOURCE ${PROJECT_SOURCE_DIR})
set(CPACK_HALDGEN_VERSION ${version})

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${release})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Programs and modules: where they link haldgen's libraries, dpkg finds them in the build.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})

# haldgen_package(COMPONENT PACKAGE SECTION SUMMARY DESCRIPTION [DEPENDS...])
set(CPACK_COMPONENTS_ALL)
function(haldgen_package component package section summary description)
  string(TOUPPER ${component} upper)
  list(JOIN ARGN ", " depends)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${depends}" PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${summary}
discrete Fourier, Hartley and Walsh-Hadamard transforms and the DCT-IV of
short lengths: a function for each, without planning, allocation or
start-up, with the same bits on every machine.

${description}" PARENT_SCOPE)
  set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)
endfunction()

# The same for a shared library: which package others that link it depend on, and a trigger of the
# loader's cache. What CPack would make of the libraries it finds calls ldconfig from scripts.
macro(haldgen_library_package component package)
  haldgen_package(${component} ${package} libs ${ARGN})
  set(control ${PROJECT_BINARY_DIR}/control/${component})
  file(WRITE ${control}/triggers "activate-noawait ldconfig\n")
  file(WRITE ${control}/shlibs "")
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA ${control}/triggers ${control}/shlibs)
endmacro()
function(haldgen_packaged_library component package library)
  file(APPEND ${PROJECT_BINARY_DIR}/control/${component}/shlibs
    "${library} ${PROJECT_VERSION_MAJOR} ${package} (>= ${PROJECT_VERSION})\n")
endfunction()

set(exactly "(= ${version})")
set(libc "libc6 (>= 2.16)")  # for aligned_alloc
haldgen_library_package(runtime libhaldgenp8-8 "small numeric transforms, a function for each length"
"This package has the library, for processors with SSSE3. On those with AVX2
or AVX-512 the loader takes builds for them."
  "${libc}")
haldgen_packaged_library(runtime libhaldgenp8-8 libhaldgenp8)
haldgen_packaged_library(runtime libhaldgenp8-8 libhaldcore)
haldgen_library_package(batch libhaldbatch8 "small numeric transforms, many in a call"
"This package has the library of batches: many transforms in a call, with
strides on both sides."
  "libhaldgenp8-8 ${exactly}" "${libc}")
haldgen_packaged_library(batch libhaldbatch8 libhaldbatch)
haldgen_package(dev libhaldgen-dev libdevel "small numeric transforms, development files"
"This package has headers for C and C++, static libraries, and files for
CMake and pkg-config."
  "libhaldgenp8-8 ${exactly}" "libhaldbatch8 ${exactly}" "haldgen-tools ${exactly}")
haldgen_package(tools haldgen-tools devel "small numeric transforms, kernels to go and published bits"
"haldgen-generate writes kernels of 2 to 128 points as sources that stand
alone. haldgen-bits compares the bits of the library with the published ones."
  "libhaldgenp8-8 ${exactly}" "libhaldbatch8 ${exactly}")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
haldgen_package(doc libhaldgen-doc doc "small numeric transforms, documents and examples"
"This package has the guide, a page for each kernel, and examples.")
set(CPACK_DEBIAN_DOC_PACKAGE_ARCHITECTURE all)
if(TARGET haldgen_python_core)
  # The package of NumPy says which binary interfaces it has.
  execute_process(COMMAND dpkg-query -W -f "\${Provides}" python3-numpy
    OUTPUT_VARIABLE provides ERROR_QUIET)
  string(REGEX MATCH "python3-numpy-abi[0-9]+" numpy_abi "${provides}")
  execute_process(COMMAND ${haldgen_python_interpreter} -c
      "import sys; v = sys.version_info; print(f'python3 (>= 3.{v.minor}), python3 (<< 3.{v.minor + 1})')"
    OUTPUT_VARIABLE python OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  haldgen_package(python python3-haldgen python "small numeric transforms for NumPy"
"This package has the Python module: transforms along any axis of arrays of
NumPy and Dask."
    "libhaldgenp8-8 ${exactly}" "libhaldbatch8 ${exactly}" python3-numpy ${numpy_abi} ${python})
  set(CPACK_DEBIAN_PYTHON_PACKAGE_SHLIBDEPS ON)
  set(scripts ${PROJECT_SOURCE_DIR}/cmake/packages)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA ${scripts}/postinst ${scripts}/prerm)
endif()
include(CPack)
