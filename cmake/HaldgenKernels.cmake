# Kernels to go, written into a project that uses haldgen:
#
#   haldgen_add_kernels(TARGET FAMILY LENGTH TYPE [FAMILY LENGTH TYPE]...)
#
# adds the source of each kernel to the target, such as `complex 120 32fc`, and a folder with a header
# of all of them, haldgen_kernels.h. The families are complex, real-forward, real-inverse and hartley,
# the lengths 2 to 128, the types those of the family. The sources are C, or C++ in a project without
# C. HALDGEN_GENERATE is the program to run, where it is not the package's: one for the machine that
# builds.
function(haldgen_add_kernels target)
  set(kernels ${ARGN})
  list(LENGTH kernels count)
  math(EXPR rest "${count} % 3")
  if(count EQUAL 0 OR NOT rest EQUAL 0)
    message(FATAL_ERROR "haldgen_add_kernels(${target}): each kernel is FAMILY LENGTH TYPE, such as complex 120 32fc")
  endif()
  get_target_property(before ${target} HALDGEN_KERNELS)
  if(before)
    message(FATAL_ERROR "haldgen_add_kernels(${target}): once for a target, with all its kernels")
  endif()
  set_target_properties(${target} PROPERTIES HALDGEN_KERNELS "${kernels}")

  set(generate haldgen::haldgen-generate)
  if(HALDGEN_GENERATE)
    set(generate ${HALDGEN_GENERATE})
  elseif(NOT TARGET haldgen::haldgen-generate)
    message(FATAL_ERROR "haldgen_add_kernels: set HALDGEN_GENERATE to a haldgen-generate that runs here")
  endif()
  get_property(languages GLOBAL PROPERTY ENABLED_LANGUAGES)

  set(folder ${CMAKE_CURRENT_BINARY_DIR}/${target}_kernels)
  file(MAKE_DIRECTORY ${folder})
  set(header ${folder}/haldgen_kernels.h)
  add_custom_command(
    OUTPUT ${header}
    COMMAND ${generate} single-header ${kernels} -o ${header}
    DEPENDS ${generate}
    VERBATIM)
  set(sources ${header})
  while(kernels)
    list(POP_FRONT kernels family length type)
    set(source ${folder}/${family}_${length}_${type}.c)
    add_custom_command(
      OUTPUT ${source}
      COMMAND ${generate} single ${family} ${length} ${type} -o ${source}
      DEPENDS ${generate}
      VERBATIM)
    if(NOT "C" IN_LIST languages)
      set_source_files_properties(${source} PROPERTIES LANGUAGE CXX)
    endif()
    list(APPEND sources ${source})
  endwhile()
  target_sources(${target} PRIVATE ${sources})
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${folder}>)
endfunction()
