# The machines that the library is made for, and what compilers must be told on each.
#   haldgen_machine           x86_64, i386, aarch64 or wasm32
#   haldgen_machine_options   for all code
#   haldgen_kernel_options    for kernels besides
#   haldgen_library_type      SHARED, or STATIC where there are only whole modules
#   HALDGEN_REALIGN_STACK     for kernels that may keep vectors on their stack: they align it
#                             themselves and ask no caller for the 16 bytes of the calling
#                             convention. g++ does so in the functions that need it, clang in all.
set(haldgen_library_type SHARED)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64)$")
  set(haldgen_machine x86_64)
  set(haldgen_kernel_options -mssse3)
  set(HALDGEN_REALIGN_STACK -mstackrealign)
elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "^i[3-6]86$")
  set(haldgen_machine i386)
  # The bits are those of SSE arithmetic; the x87 unit rounds twice.
  set(haldgen_machine_options -msse2 -mfpmath=sse)
  set(haldgen_kernel_options -mssse3)
  set(HALDGEN_REALIGN_STACK -mstackrealign)
elseif(CMAKE_SYSTEM_PROCESSOR STREQUAL "aarch64")
  set(haldgen_machine aarch64)
  # Before registers are given out, g++ there moves loads so far ahead that most are spilled again.
  set(haldgen_kernel_options $<$<CXX_COMPILER_ID:GNU>:-fno-schedule-insns>)
elseif(CMAKE_SYSTEM_PROCESSOR STREQUAL "wasm32")
  set(haldgen_machine wasm32)
  set(haldgen_library_type STATIC)
  set(haldgen_machine_options -msimd128 $<$<COMPILE_LANGUAGE:CXX>:-fno-exceptions>)
else()
  message(FATAL_ERROR "haldgen has no kernels for ${CMAKE_SYSTEM_PROCESSOR}")
endif()
add_compile_options(${haldgen_machine_options})
