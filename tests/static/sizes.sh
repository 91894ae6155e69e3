#!/bin/sh
# sizes.sh SOURCE_DIR BUILD_DIR SCRATCH_DIR CC SIZE
# A program for each row of the table in docs/static.md: it makes the call of the row, runs, and is
# larger than an empty program by no more than the row says.
set -eu
source=$1 build=$2 scratch=$3 cc=$4 size=$5

rm -rf "$scratch"
mkdir -p "$scratch"
# Bytes of code and data that are in the file.
bytes_of() {
  "$cc" -O2 -I "$source/include" "$1.c" "$build/libhaldgenp8.a" "$build/libhaldcore.a" \
    -Wl,--gc-sections -o "$1"
  "$1" >&2
  "$size" "$1" | awk 'NR == 2 { print $1 + $2 }'
}

echo 'int main(void) { return 0; }' >"$scratch/empty.c"
empty=$(bytes_of "$scratch/empty")
sed -n '/<!-- table sizes -->/,/<!-- end of table sizes -->/s/^| `\(.*\)` | \([0-9]*\) |$/\2 \1/p' \
  "$source/docs/static.md" >"$scratch/rows"
status=0
while read -r most call; do
  cat >"$scratch/program.c" <<END
#include <haldgen.h>
#include <stddef.h>
static double source[2048], result[2048];
int main(void) {
  const void* const x = source;
  void* const y = result;
  Dct4State* state = NULL;
  (void)state;
  return $call;
}
END
  more=$(($(bytes_of "$scratch/program") - empty))
  echo "$more of $most bytes: $call"
  [ "$more" -le "$most" ] || status=1
done <"$scratch/rows"
test "$(wc -l <"$scratch/rows")" -ge 8
exit $status
