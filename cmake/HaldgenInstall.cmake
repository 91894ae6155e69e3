# Installation: headers, libraries, haldgen-bits with the published sums, haldgen-generate, CMake
# package, pkg-config files, manual pages, documents. Each part is in a component, and each component
# is a package (HaldgenPackages.cmake): runtime, batch, dev, tools, doc, and python.
include(CMakePackageConfigHelpers)
set(dev COMPONENT dev)

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
foreach(target IN LISTS targets)
  haldgen_component_of(component ${target})
  install(TARGETS ${target} EXPORT haldgenTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component} NAMELINK_COMPONENT dev
    ARCHIVE ${dev}
    RUNTIME COMPONENT tools
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
endforeach()
list(TRANSFORM haldgen_headers PREPEND ${PROJECT_SOURCE_DIR}/include/)
install(FILES ${haldgen_headers} ${PROJECT_SOURCE_DIR}/haldcore/haldcore.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} ${dev})
install(TARGETS haldgen-bits RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
install(FILES ${PROJECT_SOURCE_DIR}/bits/published.tsv
  DESTINATION ${CMAKE_INSTALL_DATADIR}/haldgen COMPONENT tools)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/haldgen)
install(EXPORT haldgenTargets NAMESPACE haldgen:: DESTINATION ${package_dir} ${dev})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/haldgenConfig.cmake.in
  ${PROJECT_BINARY_DIR}/haldgenConfig.cmake INSTALL_DESTINATION ${package_dir}
  NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/haldgenConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/haldgenConfig.cmake
  ${PROJECT_BINARY_DIR}/haldgenConfigVersion.cmake
  ${PROJECT_SOURCE_DIR}/cmake/HaldgenKernels.cmake
  DESTINATION ${package_dir} ${dev})

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
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig ${dev})
endforeach()

# Manual pages are what the programs say of themselves, and a file of more beside it.
find_program(HALDGEN_HELP2MAN help2man DOC "Program that writes manual pages")
if(HALDGEN_HELP2MAN AND TARGET haldgen-generate AND NOT CMAKE_CROSSCOMPILING AND NOT HALDGEN_SANITIZE)
  set(pages)
  foreach(program IN ITEMS haldgen-bits haldgen-generate)
    set(page ${PROJECT_BINARY_DIR}/manual/${program}.1)
    set(more ${PROJECT_SOURCE_DIR}/docs/manual/${program}.h2m)
    add_custom_command(
      OUTPUT ${page}
      COMMAND ${HALDGEN_HELP2MAN} --no-info --locale=C.UTF-8 --include=${more} --output=${page}
              $<TARGET_FILE:${program}>
      DEPENDS ${program} ${more}
      VERBATIM)
    list(APPEND pages ${page})
  endforeach()
  add_custom_target(haldgen_manual ALL DEPENDS ${pages})
  install(FILES ${pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
endif()

# What people read. The site is there once script/docs has built it.
set(doc DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT doc)
install(FILES README.md CHANGELOG.md LICENSE ${doc})
install(DIRECTORY docs ${doc} FILES_MATCHING PATTERN *.md PATTERN *.png PATTERN *.svg)
install(DIRECTORY examples ${doc} PATTERN CMakeLists.txt EXCLUDE)
install(DIRECTORY ${PROJECT_BINARY_DIR}/../site ${doc} OPTIONAL)
