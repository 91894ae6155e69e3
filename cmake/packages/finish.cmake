# What Debian asks of the files of a package beyond those that are installed anywhere. CPack runs this
# between installing and packing.
set(epoch "$ENV{SOURCE_DATE_EPOCH}")
if(NOT epoch)
  # The day of the last change.
  execute_process(COMMAND git -C ${CPACK_HALDGEN_SOURCE} log -1 --format=%ct
    OUTPUT_VARIABLE epoch OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
endif()
execute_process(COMMAND date -R -u -d "@${epoch}"
  OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} upper)
  set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
  set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${component})
  set(folder ${root}/usr/share/doc/${package})

  file(MAKE_DIRECTORY ${folder})
  file(COPY_FILE ${CPACK_HALDGEN_SOURCE}/LICENSE ${folder}/copyright)
  file(COPY_FILE ${CPACK_HALDGEN_SOURCE}/CHANGELOG.md ${folder}/changelog)
  file(WRITE ${folder}/changelog.Debian
"haldgen (${CPACK_HALDGEN_VERSION}) unstable; urgency=medium

  * What changed is in changelog.gz.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
  set(overrides ${CPACK_HALDGEN_SOURCE}/cmake/packages/${package}.lintian-overrides)
  if(EXISTS ${overrides})
    file(MAKE_DIRECTORY ${root}/usr/share/lintian/overrides)
    file(COPY_FILE ${overrides} ${root}/usr/share/lintian/overrides/${package})
  endif()

  file(GLOB pages ${root}/usr/share/man/man1/*.1)
  execute_process(COMMAND gzip -9nf ${folder}/changelog ${folder}/changelog.Debian ${pages}
    COMMAND_ERROR_IS_FATAL ANY)

  # The loader finds installed libraries by itself.
  file(GLOB_RECURSE binaries LIST_DIRECTORIES OFF ${root}/usr/lib/*.so* ${root}/usr/bin/*)
  foreach(binary IN LISTS binaries)
    if(NOT IS_SYMLINK ${binary})
      file(RPATH_REMOVE FILE ${binary})
    endif()
  endforeach()
  # Static libraries keep the names that they are linked by.
  file(GLOB_RECURSE archives ${root}/usr/lib/*.a)
  foreach(archive IN LISTS archives)
    execute_process(COMMAND strip --strip-debug --enable-deterministic-archives
        --remove-section=.comment --remove-section=.note ${archive}
      COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
endforeach()
