#!/bin/sh
# compile.sh refused|code SOURCE_DIR SCRATCH_DIR COMPILER [OBJDUMP]
#   refused  wrong programs: one error each, which says what is wrong
#   code     calls through the C++ header are the calls of C and nothing else
set -eu
what=$1 source=$2 scratch=$3 compiler=$4
tests=$source/tests/cpp
mkdir -p "$scratch"

refused() {
  flags="-std=c++20 -I$source/include -fsyntax-only -Werror=unused-result"
  awk '/^#.*if CASE == / { number = $NF; getline; sub(/ *\/\/ /, ""); print number, $0 }' \
    "$tests/refused.cc" >"$scratch/cases"
  while read -r number expected; do
    said=$scratch/$number
    # shellcheck disable=SC2086
    "$compiler" $flags -DCASE="$number" "$tests/refused.cc" 2>"$said" || true
    errors=$(grep -c ' error: ' "$said" || true)
    if [ "$expected" = nothing ]; then
      test "$errors" = 0 && continue
    elif [ "$errors" = 1 ] && grep ' error: ' "$said" | grep -qF "$expected"; then
      continue
    fi
    echo "case $number: \"$expected\" expected, but said was:"
    cat "$said"
    exit 1
  done <"$scratch/cases"
  test "$(wc -l <"$scratch/cases")" -gt 10
}

code() {
  objdump=$1
  for face in C CPP; do
    # One source of one name, so that the listings have the same lines.
    "$compiler" -std=c++20 -O2 -DNDEBUG -D"$face" -I"$source/include" -c "$tests/same_code.cc" \
      -o "$scratch/same_code.o"
    "$objdump" -dr --no-show-raw-insn "$scratch/same_code.o" >"$scratch/$face"
  done
  diff -u "$scratch/C" "$scratch/CPP"
  # Each of the functions ends in a jump and calls nothing.
  test "$(grep -c '^[0-9a-f]* <.*>:' "$scratch/CPP")" = 6
  test "$(grep -cE '[[:space:]](jmp|b|br)[[:space:]]' "$scratch/CPP")" = 6
  ! grep -E '[[:space:]](call|bl|blr)[[:space:]]' "$scratch/CPP"
}

shift 4
"$what" "$@"
