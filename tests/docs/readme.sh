#!/bin/sh
# readme.sh SOURCE_DIR
# The blocks of C, C++, Python, JavaScript and text on the first screen are the first program of the guide
# and what it prints.
set -eu
status=0
for block in c:c cpp:cpp python:py js:mjs text:txt; do
  file=$1/docs/guide/snippets/first.${block#*:}
  awk -v language="${block%:*}" '/^```/ { inside = $0 == "```" language; next } inside' "$1/README.md" |
    diff -u "$file" - || status=1
done
exit $status
