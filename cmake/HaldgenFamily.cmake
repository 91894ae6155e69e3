# Families of transforms: a folder each, listed in registry/families.inc with their sizes.
#   haldgen_family_folders       the folders, in the order of the list
#   haldgen_family_functions     the functions that describe the families
#   haldgen_sizes_of(VARIABLE FUNCTION)   the sizes in the line of a function
#   haldgen_types_of(VARIABLE FUNCTION)   the element types of its arrays
set(haldgen_family_list ${PROJECT_SOURCE_DIR}/registry/families.inc)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${haldgen_family_list})
file(STRINGS ${haldgen_family_list} lines REGEX "^HALDGEN_FAMILY")
set(haldgen_family_folders)
set(haldgen_family_functions)
foreach(line IN LISTS lines)
  if(NOT line MATCHES "^HALDGEN_FAMILY\\(([a-z0-9_]+), ([a-z0-9_]+), ([0-9., ]*)\\)$")
    message(FATAL_ERROR "${haldgen_family_list}: not understood: ${line}")
  endif()
  list(APPEND haldgen_family_folders ${CMAKE_MATCH_1})
  list(APPEND haldgen_family_functions ${CMAKE_MATCH_2})
  set(haldgen_sizes_text_${CMAKE_MATCH_2} "${CMAKE_MATCH_3}")
endforeach()
list(REMOVE_DUPLICATES haldgen_family_folders)

function(haldgen_sizes_of variable function)
  set(sizes)
  string(REGEX MATCHALL "[0-9.]+" parts "${haldgen_sizes_text_${function}}")
  foreach(part IN LISTS parts)
    if(part MATCHES "^([0-9]+)\\.\\.([0-9]+)$")
      foreach(size RANGE ${CMAKE_MATCH_1} ${CMAKE_MATCH_2})
        list(APPEND sizes ${size})
      endforeach()
    else()
      list(APPEND sizes ${part})
    endif()
  endforeach()
  set(${variable} ${sizes} PARENT_SCOPE)
endfunction()

function(haldgen_types_of variable function)
  set(types 32f 64f)
  if(function STREQUAL "complex")
    set(types 32fc 64fc)
  endif()
  set(${variable} ${types} PARENT_SCOPE)
endfunction()

# What runs during the build: how the family's kernels come about.
#   haldgen_family_design(FOLDER SOURCE... [LIBS LIBRARY...])
function(haldgen_family_design folder)
  if(NOT haldgen_builds_generator)
    return()
  endif()
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBS")
  set(target haldgen_${folder}_design)
  add_library(${target} STATIC ${arg_UNPARSED_ARGUMENTS})
  target_link_libraries(${target} PUBLIC haldgen_family ${arg_LIBS})
  haldgen_warnings(${target})
  haldgen_build_tool(${target})
endfunction()

# Sources that haldgen-generate writes, one for each kernel and element type so that a build
# parallelises, in <binary dir>/generated. A kernel that is missing fails the link of the library.
# They are the same for all machines: a build with the programs of another has its sources, too, if
# they are there. Target haldgen_generated makes all.
#   haldgen_generated_sources(VARIABLE FAMILY KERNELS kernel... TYPES type... [COMMAND batch])
set(HALDGEN_TUNING "" CACHE STRING
    "Tuning of all kernels, such as critical:16:0, to measure with; empty for the table")
add_custom_target(haldgen_generated)
function(haldgen_generated_sources variable family)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "COMMAND" "KERNELS;TYPES")
  if(NOT arg_COMMAND)
    set(arg_COMMAND source)
  endif()
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/generated)
  file(MAKE_DIRECTORY ${folder})
  set(made)
  if(HALDGEN_HOST_TOOLS AND NOT HALDGEN_TUNING)
    file(RELATIVE_PATH made ${PROJECT_BINARY_DIR} ${folder})
    set(made ${HALDGEN_HOST_TOOLS}/${made})
  endif()
  set(sources ${${variable}})
  foreach(kernel IN LISTS arg_KERNELS)
    foreach(type IN LISTS arg_TYPES)
      set(name ${family}_${kernel}_${type}.cc)
      if(made AND EXISTS ${made}/${name})
        list(APPEND sources ${made}/${name})
        continue()
      endif()
      set(source ${folder}/${name})
      add_custom_command(
        OUTPUT ${source}
        COMMAND ${haldgen_generate} ${arg_COMMAND} ${family} ${kernel} ${type} ${source} ${HALDGEN_TUNING}
        DEPENDS ${haldgen_generate}
        VERBATIM)
      list(APPEND sources ${source})
    endforeach()
  endforeach()
  set(${variable} ${sources} PARENT_SCOPE)
  string(MAKE_C_IDENTIFIER "${CMAKE_CURRENT_BINARY_DIR}/${family}/${arg_COMMAND}" target)
  add_custom_target(generated_${target} DEPENDS ${sources})
  add_dependencies(haldgen_generated generated_${target})
endfunction()

# What is compiled into the library.
function(haldgen_family_kernels folder)
  add_library(haldgen_${folder} OBJECT ${ARGN})
  add_dependencies(haldgen_${folder} haldgen_generated)
  target_include_directories(haldgen_${folder} PRIVATE
    ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include ${PROJECT_SOURCE_DIR}/haldcore)
  haldgen_kernels(haldgen_${folder})
endfunction()
