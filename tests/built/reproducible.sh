#!/bin/sh
# reproducible.sh SOURCE BINARY SCRATCH
# Compiles some sources of the library in two folders of different names, with the commands of the
# build and for a debugger besides. The objects must be the same to the byte.
set -eu
source=$1 binary=$2 scratch=$3
export CCACHE_DISABLE=1

sample='/(complex_(12_32fc|35_64fc)|real-forward_15_32f|real-inverse_9_64f|hartley_13_64f|wht_9_32f|'
sample=$sample'dct4_fold_16_32f|execution|arena|load_step|version|general_entries_complex_32fc|entries|haldcore)'
rm -rf "$scratch"
mkdir -p "$scratch"
grep '"command": ' "$binary/compile_commands.json" | grep -vE -- " -c [^ ]*/(bench|tests)/" |
  grep -E -- " -c [^ ]*$sample\.(cc|S)\"" |
  sed -E 's/^ *"command": "(.*)",$/\1/; s/\\"/"/g' >"$scratch/commands"

for place in one another/place; do
  folder=$scratch/$place
  mkdir -p "$folder/source" "$folder/binary"
  # The build folder may lie in the source's.
  (cd "$source" && find . -path ./build -prune -o -name '*.[chS]' -print -o -name '*.cc' -print -o \
    -name '*.inc' -print | tar cf - -T -) | tar xf - -C "$folder/source"
  sed -E 's/.* -c //' "$scratch/commands" | grep "^$binary/" | sed "s|^$binary/||" |
    (cd "$binary" && tar cf - -T - frame/generated) | tar xf - -C "$folder/binary"
  # The folders of the build first, since the new ones may lie in them.
  sed "s|$binary|@binary@|g; s|$source|@source@|g; s|@binary@|$folder/binary|g; s|@source@|$folder/source|g" \
    "$scratch/commands" |
    while read -r command; do
      object=$(printf '%s\n' "$command" | sed -E 's/.* -o ([^ ]+) .*/\1/')
      mkdir -p "$folder/binary/$(dirname "$object")"
      (cd "$folder/binary" && sh -c "$command" && mv "$object" "$object.plain" && sh -c "$command -g")
    done
done

cd "$scratch/one/binary"
find . -name '*.o' -o -name '*.plain' | sort >"$scratch/objects"
while read -r object; do
  cmp "$object" "$scratch/another/place/binary/$object"
done <"$scratch/objects"
count=$(wc -l <"$scratch/objects")
echo "$count objects are the same in both folders"
[ "$count" -eq $((2 * $(wc -l <"$scratch/commands"))) ] && [ "$count" -ge 24 ]
