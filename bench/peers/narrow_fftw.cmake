# Makes a copy of a static FFTW whose symbols all begin with "narrow_", so that it links beside the
# original, and whose processor queries are weak, so that narrow_cpu.c can answer them.
#   cmake -DNM=... -DOBJCOPY=... -DINPUT=libfftw3.a -DOUTPUT=libnarrow_fftw3.a -P narrow_fftw.cmake
execute_process(
  COMMAND ${NM} --defined-only --extern-only --no-sort --format=posix ${INPUT}
  OUTPUT_VARIABLE listing ERROR_QUIET COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+ [A-Z] " symbols "${listing}")
list(TRANSFORM symbols REPLACE " [A-Z] $" "")
list(REMOVE_DUPLICATES symbols)
list(LENGTH symbols count)
if(count LESS 100)
  message(FATAL_ERROR "${INPUT}: only ${count} symbols found")
endif()

set(renamed "")
set(weak "")
foreach(symbol IN LISTS symbols)
  string(APPEND renamed "${symbol} narrow_${symbol}\n")
  if(symbol MATCHES "have_simd_avx")
    list(APPEND weak --weaken-symbol=${symbol} --weaken-symbol=narrow_${symbol})
  endif()
endforeach()
if(NOT weak)
  message(FATAL_ERROR "${INPUT}: no processor query found to answer")
endif()
file(WRITE ${OUTPUT}.symbols "${renamed}")
execute_process(
  COMMAND ${OBJCOPY} --redefine-syms=${OUTPUT}.symbols ${weak} ${INPUT} ${OUTPUT}
  COMMAND_ERROR_IS_FATAL ANY)
