#!/usr/bin/env bash
# flyaround_test.sh PROGRAM GRID: the program on the carried grid, on a plain without room for trees and on a bad file.
suffix=.asc pictures=(flyaround frames)
source "$(dirname "$0")/../common/program_test.sh"

good "the carried grid" "trees of 36 corners in 48 frames" <"$carried"
good "a level plain" "48 frames" < <(printf 'ncols 2\nnrows 2\ncellsize 1\n5 5\n5 5\n')
bad 5 'is not a number (row 2, column 1)' <<<'ncols 2\nnrows 2\ncellsize 1\n5 5\nx 5\n'
finish
