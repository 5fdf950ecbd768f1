#!/bin/sh
# Instructions Designer's start takes with and without the module, counted by callgrind over
# the creation of the core only: a measure that holds still where wall-clock times move with
# the machine's load. Hashing is seeded alike in every run so that runs compare.
# usage: designerstartinstructions.sh <start probe> <module>
set -e
probe=$1
module=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

count()
{
    QT_HASH_SEED=0 valgrind --tool=callgrind --toggle-collect='CcTest::designerCore*' \
        --callgrind-out-file="$work/callgrind.out" "$probe" "$@" 2>&1 >/dev/null \
        | sed -n 's/.*Collected : *\([0-9]*\).*/\1/p'
}

base=$(count)
with=$(count "$module")
added=$((with - base))
echo "Designer start, instructions of the core's creation (callgrind)"
echo "  no plug-in (baseline):  $base"
echo "  CommonControls module:  $with"
echo "  added for 44 classes:   $added ($((added / 44)) per class)"
