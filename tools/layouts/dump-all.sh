#!/bin/sh
# Writes the tables of all keyboard layouts in the tests of the key map.
set -eu
cd "$(dirname "$0")"
target=../../tests/commands/layouts

dump() {
    ./dump-layout.py "$2" "${3-}" > "$target/$1.tsv"
}

dump us us
dump us-dvorak us dvorak
dump fr fr
dump fr-oss fr oss
dump fr-afnor fr afnor
dump fr-bepo fr bepo
dump be be
dump ch-fr ch fr
dump ch-de ch
dump de de
dump ca ca
dump ru ru
dump gr gr
