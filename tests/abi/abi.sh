#!/bin/sh
# abi.sh check|update CC SOURCE_DIR BUILD_DIR
# Each shared library exports what the list of its name beside this file has, declared as it says there;
# the numbers that programs compile in are listed as well. Until the major version changes, lists get
# longer only.
set -eu
action=$1 cc=$2 source=$3 build=$4
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
include="-I $source/include -I $source/haldcore"

# The declarations of a library's exported functions in its header, as the compiler understands them:
#   functions LIBRARY HEADER
functions() {
  echo "#include <$2>" >"$scratch/header.c"
  # shellcheck disable=SC2086
  "$cc" -std=c11 $include -aux-info "$scratch/declared" -fsyntax-only "$scratch/header.c"
  nm --dynamic --defined-only --format=posix "$build/lib$1.so" | cut -d ' ' -f 1 |
    sort >"$scratch/exported"
  sed -n 's/^[^*]*\*[^*]*\*\/ extern \(.*[ *]\)\([A-Za-z_0-9]*\) \((.*);\).*/\2 \1\2\3/p' \
    "$scratch/declared" | sort >"$scratch/declarations"
  # An export without a declaration keeps its bare name.
  join -a 1 "$scratch/exported" "$scratch/declarations" | sed 's/^[^ ]* //'
}

# Sizes of types, and enumerations:
#   numbers HEADER TYPE...
numbers() {
  header=$1
  shift
  {
    printf '#include <stdio.h>\n#include <%s>\nint main(void) {\n' "$header"
    for type in "$@"; do
      printf '  printf("sizeof(%s) = %%zu\\n", sizeof(%s));\n' "$type" "$type"
    done
    sed -n 's/^ *\(hald[A-Z][A-Za-z]*\) = -*[0-9].*/  printf("\1 = %d\\n", (int)\1);/p' \
      "$source/include/$header"
    printf '  return 0;\n}\n'
  } >"$scratch/numbers.c"
  # shellcheck disable=SC2086
  "$cc" $include "$scratch/numbers.c" -o "$scratch/numbers"
  "$scratch/numbers"
}

list() {
  functions "$1" "$2"
  [ "$1" != haldgenp8 ] || numbers "$2" Cplx32 Cplx64 LibraryVersion
}

status=0
while read -r library header; do
  list "$library" "$header" >"$scratch/list"
  expected=$source/tests/abi/$library.txt
  if [ "$action" = update ]; then
    cp "$scratch/list" "$expected"
  else
    diff -u "$expected" "$scratch/list" || status=1
  fi
  echo "$library: $(wc -l <"$expected") lines"
done <<END
haldgenp8 haldgen.h
haldbatch haldbatch.h
haldcore haldcore.h
END
exit $status
