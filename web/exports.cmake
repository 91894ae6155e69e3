# cmake -D LIST=... -D PATTERN=... -D OUTPUT=... -P exports.cmake
# The lines of LIST that match PATTERN.
file(STRINGS ${LIST} lines REGEX "${PATTERN}")
if(NOT lines)
  message(FATAL_ERROR "${LIST}: nothing matches ${PATTERN}")
endif()
list(JOIN lines "\n" text)
file(WRITE ${OUTPUT} "${text}\n")
