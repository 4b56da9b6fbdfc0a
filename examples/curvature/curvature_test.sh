#!/usr/bin/env bash
# curvature_test.sh PROGRAM GRID: the program on the carried grid, on the smallest and steepest ones and on bad files.
suffix=.asc pictures=(curvature)
source "$(dirname "$0")/../common/program_test.sh"

good "the carried grid" "331409 quadrics through 25 neighbours" <"$carried"
good "a level plain" "quadrics" < <(printf 'ncols 2\nnrows 2\ncellsize 1e-9\n5 5\n5 5\n')
good "needles" "quadrics" < <(printf 'ncols 4\nnrows 3\ncellsize 1\n0 0 0 0\n0 9 0 0\n0 0 0 0\n')
bad 5 'is not a number (row 2, column 1)' <<<'ncols 2\nnrows 2\ncellsize 1\n5 5\nx 5\n'
bad 3 '"cellsize" has to be in the unit of the heights' <<<'ncols 3\nnrows 2\ncellsize 0.0008\n100 200 300\n150 200 250\n'
finish
