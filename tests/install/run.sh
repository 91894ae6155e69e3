#!/bin/sh
# run.sh CMAKE BUILD_DIR SCRATCH_DIR CC GENERATOR
# Installs, moves the installed tree, and builds and runs the consumer by way of the CMake package
# and of pkg-config.
set -eu
cmake=$1 build=$2 scratch=$3 cc=$4 generator=$5
source=$(cd "$(dirname "$0")" && pwd)/consumer

rm -rf "$scratch"
"$cmake" --install "$build" --prefix "$scratch/made" >/dev/null
mv "$scratch/made" "$scratch/moved"

echo "CMake package:"
"$cmake" -S "$source" -B "$scratch/build" -G "$generator" -DCMAKE_C_COMPILER="$cc" \
  -DCMAKE_PREFIX_PATH="$scratch/moved" >/dev/null
"$cmake" --build "$scratch/build" >/dev/null
"$scratch/build/consumer"

echo "pkg-config:"
PKG_CONFIG_PATH=$(dirname "$(find "$scratch/moved" -name haldgenp8.pc)")
export PKG_CONFIG_PATH
libdir=$(pkg-config --variable=libdir haldgenp8)
# The flags are lists of words.
# shellcheck disable=SC2046
"$cc" -o "$scratch/consumer" "$source/consumer.c" \
  $(pkg-config --cflags --libs haldgenp8 haldcore) -lm -Wl,-rpath,"$libdir"
"$scratch/consumer"
test "$(pkg-config --modversion haldgenp8)" = 8.1.0
