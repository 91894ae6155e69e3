#!/bin/sh
# run.sh CMAKE SOURCE_DIR BUILD_DIR SCRATCH_DIR CC CXX GENERATOR
# Installs, moves the installed tree, and builds and runs programs by way of the CMake package and of
# pkg-config; runs the installed haldgen-bits.
set -eu
cmake=$1 source=$2 build=$3 scratch=$4 cc=$5 cxx=$6 generator=$7
consumer=$source/tests/install/consumer

rm -rf "$scratch"
"$cmake" --install "$build" --prefix "$scratch/made" >/dev/null
mv "$scratch/made" "$scratch/moved"

echo "CMake package:"
configure() {
  "$cmake" -S "$consumer" -B "$scratch/$1" -G "$generator" -DCMAKE_C_COMPILER="$cc" \
    -DCMAKE_CXX_COMPILER="$cxx" \
    -DCMAKE_PREFIX_PATH="$scratch/moved" -DWANTED="$2"
}
configure build 8.1 >/dev/null
"$cmake" --build "$scratch/build" >/dev/null
"$scratch/build/consumer"
"$scratch/build/kernels"
"$scratch/build/consumer_cpp"
"$scratch/build/static_consumer"
if readelf -d "$scratch/build/static_consumer" | grep hald; then
  exit 1
fi
for other in 7.0 8.2; do
  if configure "$other" "$other" >/dev/null 2>&1; then
    echo "8.1 passes for $other"
    exit 1
  fi
done

echo "pkg-config:"
PKG_CONFIG_PATH=$(dirname "$(find "$scratch/moved" -name haldgenp8.pc)")
export PKG_CONFIG_PATH
libdir=$(pkg-config --variable=libdir haldgenp8)
# The flags are lists of words.
# shellcheck disable=SC2046,SC2086
"$cc" -o "$scratch/consumer" "$consumer/consumer.c" \
  $(pkg-config --cflags --libs haldgenp8 haldcore) -lm -Wl,-rpath,"$libdir" ${LDFLAGS:-}
"$scratch/consumer"
# Each of the two by itself, the first as the guide says.
cp "$source/docs/guide/snippets/first.c" "$scratch/program.c"
echo '#include <haldcore.h>
int main(void) { haldFree(haldMalloc(64)); return 0; }' >"$scratch/core.c"
# shellcheck disable=SC2046,SC2086
"$cc" "$scratch/program.c" $(pkg-config --cflags --libs haldgenp8) -o "$scratch/program" ${LDFLAGS:-}
LD_LIBRARY_PATH=$libdir "$scratch/program" >/dev/null
# shellcheck disable=SC2046,SC2086
"$cc" "$scratch/core.c" $(pkg-config --cflags --libs haldcore) -o "$scratch/core" ${LDFLAGS:-}
LD_LIBRARY_PATH=$libdir "$scratch/core"
for package in haldgenp8 haldcore; do
  test "$(pkg-config --modversion "$package")" = 8.1.0
done
test "$(pkg-config --print-requires-private haldgenp8)" = haldcore

# The static libraries: nothing of haldgen's is left to load.
# shellcheck disable=SC2046,SC2086
"$cc" "$consumer/consumer.c" $(pkg-config --static --cflags --libs haldgenp8) -static \
  -Wl,--gc-sections -lm -o "$scratch/static"
"$scratch/static"

echo "The installed bits:"
# Elsewhere, and with neither the build tree nor a search path to find the library and the sums by.
(cd / && "$scratch/moved/bin/haldgen-bits") >"$scratch/bits"
cat "$scratch/bits"
test "$(cat "$scratch/bits")" = "1,193 of 1,193 as published"

echo "Installed flavours:"
# Those that the build has; each finds haldcore in the moved tree.
for built in "$build"/glibc-hwcaps/*/libhaldgenp8.so.8; do
  [ -e "$built" ] || continue
  flavour=$libdir/${built#"$build"/}
  echo "$flavour"
  "$scratch/moved/bin/haldgen-bits" --library "$flavour" --help >/dev/null
done

echo "Absolute library folder:"
"$cmake" -S "$source" -B "$scratch/absolute" -G "$generator" \
  -DCMAKE_INSTALL_PREFIX=/prefix -DCMAKE_INSTALL_LIBDIR=/libraries \
  >/dev/null
for package in haldgenp8 haldcore; do
  PKG_CONFIG_PATH=$scratch/absolute
  test "$(pkg-config --variable=libdir "$package")" = /libraries
  test "$(pkg-config --variable=includedir "$package")" = /prefix/include
done
