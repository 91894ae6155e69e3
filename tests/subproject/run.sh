#!/bin/sh
# run.sh CMAKE SOURCE_DIR BUILD_DIR SCRATCH_DIR CC CXX
# Another project takes this one in: its warnings stay warnings, it builds what it links and nothing
# else, installs and tests what is its own, and says itself where libraries are found.
set -eu
cmake=$1 source=$2 build=$3 scratch=$4 cc=$5 cxx=$6

fail() {
  echo "$1" >&2
  exit 1
}
rm -rf "$scratch"
"$cmake" -G Ninja -S "$source/tests/subproject/consumer" -B "$scratch" -DHALDGEN="$source" \
  -DHALDGEN_HOST_TOOLS="$build" -DCMAKE_C_COMPILER="$cc" -DCMAKE_CXX_COMPILER="$cxx" \
  -DCMAKE_INSTALL_PREFIX="$scratch/prefix" >/dev/null
! grep -q -- -Werror "$scratch/build.ninja" || fail "warnings are errors"
# The steps of a build, which are not taken.
steps() {
  "$cmake" --build "$scratch" --target "$1" -- -n | wc -l
}
# Two objects, two links, the names of the library.
[ "$(steps all)" -le 5 ] || fail "builds what nobody links"
for linked in haldgenp8 haldgenp8_static haldbatch haldbatch_static; do
  [ "$(steps "user_of_$linked")" -gt 600 ] || fail "$linked without its kernels"
done

for target in all kernels; do
  "$cmake" --build "$scratch" --target "$target" >"$scratch/log" 2>&1 || {
    cat "$scratch/log"
    fail "no build of $target"
  }
done
"$scratch/consumer"
"$scratch/kernels"
readelf -d "$(find "$scratch" -name 'libhaldcore.so')" | grep -q PATH && fail "a run path"
"$cmake" --install "$scratch" >/dev/null
[ "$(find "$scratch/prefix" -type f)" = "$scratch/prefix/bin/consumer" ] || fail "installs more"
(cd "$scratch" && ctest -N) | grep -q 'Total Tests: 1$' || fail "more tests"
