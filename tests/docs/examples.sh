#!/bin/sh
# examples.sh DOCUMENT SOURCE_DIR BUILD_DIR SCRATCH_DIR CC CXX
# Compiles and runs the examples of a document, blocks of c and cpp; together they must print what
# its blocks of text show. Blocks without an #include are one function, run last.
set -eu
document=$1 source=$2 build=$3 scratch=$4 cc=$5 cxx=$6

rm -rf "$scratch"
mkdir -p "$scratch"
awk -v scratch="$scratch" '
  BEGIN {
    function_file = scratch "/function.cpp"
    print "#include <cstdio>\n#include <haldbatch.hpp>\n#include <vector>\n" \
          "using namespace haldgen;\nint main() {" >function_file
  }
  /^```/ && inside { if (file == function_file) print "}" >file; inside = 0; next }
  /^```text$/ { file = scratch "/expected"; inside = 1; next }
  /^```(c|cpp)$/ { file = sprintf("%s/%02d.%s", scratch, ++count, substr($0, 4)); inside = first = 1; next }
  /^```/ { file = "/dev/null"; inside = 1; next }
  inside && first && !/^#include/ { file = function_file; print "{" >file }
  inside { first = 0; print >file }
  END { print "}" >function_file }' "$document"
grep -q '^{$' "$scratch/function.cpp" || rm "$scratch/function.cpp"

: >"$scratch/printed"
for program in "$scratch"/*.c*; do
  case $program in
    *.c) set -- "$cc" -Werror ;;
    # Some blocks only show how things are called.
    *.cpp) set -- "$cxx" -std=c++20 -Werror -Wno-unused-variable -Wno-unused-but-set-variable ;;
  esac
  batch=
  ! grep -q haldbatch "$program" || batch=-lhaldbatch
  # LDFLAGS is a list of words, the library may be none.
  # shellcheck disable=SC2086
  "$@" -Wall -Wextra -I"$source/include" -o "$program.run" "$program" -L"$build" \
    $batch -lhaldgenp8 \
    -Wl,-rpath,"$build" -Wl,-rpath-link,"$build" ${LDFLAGS:-}
  "$program.run" >>"$scratch/printed"
done
diff -u "$scratch/expected" "$scratch/printed"
