# Flavours: builds of the installed libraries for x86-64 processors with wider vectors, of the same
# functions and bits. They lie below the folder of the first build, in glibc-hwcaps, where the dynamic
# loader takes the best that the processor has.
#   haldgen_flavours   as compilers and the loader call them. The first build is none of them: where
#                      functions below take a flavour, its name is empty.
option(HALDGEN_FLAVOURS "Build the libraries for processors with AVX2 and AVX-512 as well" OFF)
set(haldgen_flavours)
if(HALDGEN_FLAVOURS AND haldgen_machine STREQUAL "x86_64")
  set(haldgen_flavours x86-64-v3 x86-64-v4)
endif()

# What a target is called in a flavour.
function(haldgen_flavour_target variable target flavour)
  if(flavour)
    string(APPEND target _${flavour})
  endif()
  set(${variable} ${target} PARENT_SCOPE)
endfunction()

# Compiles a target for the processors of a flavour.
function(haldgen_compile_for flavour target)
  if(flavour)
    target_compile_options(${target} PRIVATE -march=${flavour})
  endif()
endfunction()

# The component that a library is installed with.
function(haldgen_component_of variable library)
  if(library STREQUAL "haldbatch")
    set(${variable} batch PARENT_SCOPE)
  else()
    set(${variable} runtime PARENT_SCOPE)
  endif()
endfunction()

# Places a library of a flavour in the build tree and in the installed one.
function(haldgen_place_flavour flavour target library)
  if(flavour)
    set(folder glibc-hwcaps/${flavour})
    set_target_properties(${target} PROPERTIES
      OUTPUT_NAME ${library}
      LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${folder}
      INSTALL_RPATH $ORIGIN/../..)
    if(HALDGEN_INSTALL)
      haldgen_component_of(component ${library})
      install(TARGETS ${target} LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/${folder}
        COMPONENT ${component} NAMELINK_SKIP)
    endif()
  endif()
endfunction()
