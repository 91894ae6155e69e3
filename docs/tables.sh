#!/bin/sh
# tables.sh check|update NAME FILE TOOL
# Tables in the documents are the output of programs. `update` writes the table NAME between its
# markers in FILE, `check` fails and shows the difference if the table there is not what TOOL says.
#   functions how many functions each family has, from haldgen-framegen
#   complex   algorithm and counts of each complex kernel, from haldgen-generate
#   real      the same of the real kernels, both directions
#   hartley   and of the Hartley kernels
#   accuracy, real-accuracy, hartley-accuracy
#             rounding errors, from haldgen_accuracy
set -eu
action=$1 name=$2 file=$3 tool=$4

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
table=$scratch/table

# counts_table FAMILY TYPE [CONVERSIONS OF TYPE]
counts_table() {
  printf '| N | additions | multiplications | depth |%s algorithm |\n|--:|--:|--:|--:|%s---|\n' \
    "${3:+ conversions |}" "${3:+--:|}"
  awk -v family="$1" -v type="$2" -v conversions="${3:-}" '
    $1 == family && $3 == conversions { convert[$2] = $7 }
    $1 == family && $3 == type { rows[++count] = $2 " " $4 " " $5 " " $6 " "; size[count] = $2 }
    END {
      for (i = 1; i <= count; ++i) print rows[i] (conversions == "" ? "" : convert[size[i]])
    }' "$scratch/counts" >"$scratch/rows"
  while read -r length additions multiplications depth conversions; do
    recipe=$("$tool" recipe "$1" "$length" "$2")
    recipe=$(printf '%s' "$recipe" | sed 's/|/\\|/g')
    # The backquotes are Markdown's.
    # shellcheck disable=SC2016
    printf '| %s | %s | %s | %s |%s `%s` |\n' "$length" "$additions" "$multiplications" \
      "$depth" "${3:+ $conversions |}" "$recipe"
  done <"$scratch/rows"
}

complex_tables() {
  "$tool" counts >"$scratch/counts"
  printf '### 32fc\n\n'
  counts_table complex 32fc
  printf '\n### 64fc\n\n'
  counts_table complex 64fc
}

real_tables() {
  "$tool" counts >"$scratch/counts"
  printf '### Forward\n\n'
  counts_table real-forward 64f 32f
  printf '\n### Inverse\n\n'
  counts_table real-inverse 64f 32f
}

hartley_table() {
  "$tool" counts >"$scratch/counts"
  counts_table hartley 64f 32f
}

case $name in
  functions) "$tool" summary >"$table" ;;
  complex) complex_tables >"$table" ;;
  real) real_tables >"$table" ;;
  hartley) hartley_table >"$table" ;;
  accuracy) "$tool" complex >"$table" ;;
  real-accuracy) "$tool" real >"$table" ;;
  hartley-accuracy) "$tool" hartley >"$table" ;;
  *) echo "tables.sh: no table $name" >&2; exit 2 ;;
esac

awk -v name="$name" -v table="$table" '
  $0 == "<!-- end of table " name " -->" { inside = 0; ++ends }
  !inside { print }
  $0 == "<!-- table " name " -->" {
    inside = 1; ++begins
    print ""
    while ((getline line <table) > 0) print line
    print ""
  }
  END { if (begins != 1 || ends != 1) exit 1 }' "$file" >"$scratch/file" || {
  echo "tables.sh: $file has no place for the table $name" >&2
  exit 2
}

case $action in
  update) cat "$scratch/file" >"$file" ;;
  check)
    diff -u "$file" "$scratch/file" || {
      echo "$file is out of date; build the target update-docs" >&2
      exit 1
    } ;;
  *) echo "tables.sh: check or update" >&2; exit 2 ;;
esac
