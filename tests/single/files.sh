#!/bin/sh
# files.sh CC FOLDER SUMS LIBRARY_SUMS
# The sums of the kernels in FOLDER are the library's where it has them, and no kernel has an
# instruction that multiplies and adds in one rounding, for a processor that has such.
set -eu
cc=$1 folder=$2 sums=$3 library=$4

cut -f 1 "$library" | sort >"$folder/names"
shared=$(cut -f 1 "$sums" | sort | comm -12 - "$folder/names" | wc -l)
same=$(grep -cxFf "$library" "$sums")
echo "$same of $shared sums are the library's"
[ "$same" -eq "$shared" ] && [ "$shared" -ge 10 ] || exit 1

case $("$cc" -dumpmachine) in
  x86_64-*) machine=-march=x86-64-v3 fused='^[[:space:]]*vfn?m' ;;
  aarch64-*) machine= fused='^[[:space:]]*fn?m(add|sub|l[as])' ;;
  *) exit 0 ;;
esac
for kernel in complex_35_64fc complex_8_32fc real-forward_15_64f; do
  # shellcheck disable=SC2086
  "$cc" -O2 $machine -S -o "$folder/$kernel.s" "$folder/$kernel.c"
  if grep -E "$fused" "$folder/$kernel.s"; then
    echo "$kernel has fused instructions"
    exit 1
  fi
done
