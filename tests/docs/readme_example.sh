#!/bin/sh
# readme_example.sh SOURCE_DIR BUILD_DIR SCRATCH_DIR CC
# Compiles and runs the C example of the README; what it prints must be what the README shows.
set -eu
source=$1 build=$2 scratch=$3 cc=$4

# fence LANGUAGE: the first block of that kind.
fence() {
  awk -v open="\`\`\`$1" '$0 == open { inside = 1; next } /^```/ { if (inside) exit } inside' \
    "$source/README.md"
}
fence c >"$scratch/example.c"
fence text >"$scratch/expected.txt"
test -s "$scratch/example.c" && test -s "$scratch/expected.txt"

# LDFLAGS is a list of words.
# shellcheck disable=SC2086
"$cc" -Wall -Wextra -Werror -I"$source/include" -o "$scratch/example" "$scratch/example.c" \
  -L"$build" -lhaldgenp8 -Wl,-rpath,"$build" -Wl,-rpath-link,"$build" ${LDFLAGS:-}
"$scratch/example" >"$scratch/printed.txt"
diff -u "$scratch/expected.txt" "$scratch/printed.txt"
