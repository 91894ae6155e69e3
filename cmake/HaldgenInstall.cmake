# Installation: headers, libraries, haldgen-bits with the published sums, haldgen-generate, CMake
# package, pkg-config files.
include(CMakePackageConfigHelpers)

set(haldgen_installed haldgenp8 haldcore)
set(haldgen_headers haldgen.h haldgen.hpp haldgen_tables.hpp)
if(TARGET haldbatch)
  list(APPEND haldgen_installed haldbatch)
  list(APPEND haldgen_headers haldbatch.h haldbatch.hpp haldbatch_tables.hpp)
endif()
set(targets ${haldgen_installed})
foreach(library IN LISTS haldgen_installed)
  if(TARGET ${library}_static)
    list(APPEND targets ${library}_static)
  endif()
endforeach()
if(TARGET haldgen-generate)
  list(APPEND targets haldgen-generate)
endif()
install(TARGETS ${targets} EXPORT haldgenTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
list(TRANSFORM haldgen_headers PREPEND ${PROJECT_SOURCE_DIR}/include/)
install(FILES ${haldgen_headers} ${PROJECT_SOURCE_DIR}/haldcore/haldcore.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS haldgen-bits RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${PROJECT_SOURCE_DIR}/bits/published.tsv
  DESTINATION ${CMAKE_INSTALL_DATADIR}/haldgen)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/haldgen)
install(EXPORT haldgenTargets NAMESPACE haldgen:: DESTINATION ${package_dir})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/haldgenConfig.cmake.in
  ${PROJECT_BINARY_DIR}/haldgenConfig.cmake INSTALL_DESTINATION ${package_dir}
  NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/haldgenConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/haldgenConfig.cmake
  ${PROJECT_BINARY_DIR}/haldgenConfigVersion.cmake
  ${PROJECT_SOURCE_DIR}/cmake/HaldgenKernels.cmake
  DESTINATION ${package_dir})

# The .pc files find the prefix from their own place, so an installed tree can be moved.
cmake_path(IS_ABSOLUTE CMAKE_INSTALL_LIBDIR libdir_is_absolute)
if(libdir_is_absolute)
  set(pc_prefix ${CMAKE_INSTALL_PREFIX})
  set(pc_libdir ${CMAKE_INSTALL_LIBDIR})
else()
  file(RELATIVE_PATH pc_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  set(pc_prefix "\${pcfiledir}/${pc_to_prefix}")
  string(REGEX REPLACE "/$" "" pc_prefix ${pc_prefix})
  set(pc_libdir "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
cmake_path(IS_ABSOLUTE CMAKE_INSTALL_INCLUDEDIR includedir_is_absolute)
if(includedir_is_absolute)
  set(pc_includedir ${CMAKE_INSTALL_INCLUDEDIR})
else()
  set(pc_includedir "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
foreach(package IN LISTS haldgen_installed)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/${package}.pc.in ${PROJECT_BINARY_DIR}/${package}.pc
    @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${package}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
