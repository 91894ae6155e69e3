#!/bin/sh
# snippets.sh SNIPPETS SOURCE_DIR BUILD_DIR SCRATCH_DIR CC CXX
# Compiles and runs each program of the guide in C and C++; it must print what stands beside it.
set -eu
snippets=$1 source=$2 build=$3 scratch=$4 cc=$5 cxx=$6

mkdir -p "$scratch"
failed=0
for program in "$snippets"/*.c "$snippets"/*.cpp; do
  name=${program##*/}
  libraries=
  ! grep -q '<haldbatch' "$program" || libraries=-lhaldbatch
  ! grep -q '<fftw3' "$program" || libraries="$libraries -lfftw3"
  ! grep -q '<kiss_fft' "$program" ||
    libraries="$libraries $(pkg-config --cflags --libs kissfft-float)"
  case $name in
    *.c) set -- "$cc" -std=c11 ;;
    *) set -- "$cxx" -std=c++20 ;;
  esac
  # LDFLAGS and libraries are lists of words.
  # shellcheck disable=SC2086
  "$@" -Wall -Wextra -Werror -I"$source/include" -o "$scratch/$name.run" "$program" -L"$build" \
    $libraries -lhaldgenp8 -lm -Wl,-rpath,"$build" -Wl,-rpath-link,"$build" ${LDFLAGS:-}
  if ! "$scratch/$name.run" >"$scratch/$name.out" ||
    ! diff -u "${program%.*}.txt" "$scratch/$name.out"; then
    echo "$name: not what the guide says" >&2
    failed=1
  fi
done
exit "$failed"
