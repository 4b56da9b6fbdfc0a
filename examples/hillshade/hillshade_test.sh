#!/usr/bin/env bash
# hillshade_test.sh PROGRAM GRID: the program on the carried grid, on other good files and on bad ones.
suffix=.asc pictures=(map view)
source "$(dirname "$0")/../common/program_test.sh"

good "the carried grid" "87 x 61 heights from 94 to 195" <"$carried"
good "keys in any case and order, other ends of lines, rows broken anywhere" "3 x 2 heights from -1.5 to 600" < <(
    printf 'NROWS 2\r\nnCols 3\r\nXLLCENTER 0\r\nyllcorner -5e3\r\nCELLSIZE .5\r\n1 2\r\n\r\n3 +4 6e2\r\n-1.5')
good "a level plain" "from 5 to 5" < <(printf 'ncols 2\nnrows 2\ncellsize 1e-9\nnodata_value -9999\n5 5\n5 5\n')

h='ncols 3\nnrows 2\ncellsize 10\nNODATA_value -9999\n'
bad 4 'no "nrows"' <<<'ncols 3\ncellsize 10\n\n1 2 3\n4 5 6\n'
bad 3 'no "cellsize"' <<<'ncols 3\nnrows 2\n1 2 3\n4 5 6\n'
bad 1 'no "ncols"' <<<'1 2 3\n4 5 6\n'
bad 2 '"depth" is no key' <<<'ncols 3\ndepth 3\n'
bad 3 'a second "ncols"' <<<'ncols 3\nnrows 2\nNCOLS 3\n'
bad 1 '"ncols" has no value' <<<'ncols\nnrows 2\ncellsize 1\n1 2\n'
bad 2 '"two" is not a number' <<<'ncols 3\nnrows two\ncellsize 1\n'
bad 2 'whole number' <<<'ncols 3\nnrows 2.5\ncellsize 1\n1 2 3 4 5 6\n'
bad 1 'at least 2' <<<'ncols -3\nnrows 2\ncellsize 1\n1 2 3 4 5 6\n'
bad 3 'above 0' <<<'ncols 3\nnrows 2\ncellsize 0\n1 2 3 4 5 6\n'
bad 1 'too large' <<<'ncols 99999999999\nnrows 2\ncellsize 1\n1 2 3 4 5 6\n'
bad 2 'too large' <<<'ncols 20000\nnrows 20000\ncellsize 1\n1 2 3 4 5 6\n'
bad 6 'the file ends before row 2, column 3' <<<"${h}1 2 3\n4 5\n"
bad 7 '"7" stands behind the last of 6 heights' <<<"${h}1 2 3\n4 5 6\n7\n"
bad 6 '"4,5" is not a number (row 2, column 1)' <<<"${h}1 2 3\n4,5 5 6\n"
bad 5 '"2m" is not a number' <<<"${h}1 2m 3\n4 5 6\n"
bad 6 'out of range (row 2, column 2)' <<<"${h}1 2 3\n4 nan 6\n"
bad 6 'out of range (row 2, column 3)' <<<"${h}1 2 3\n4 5 1e999\n"
bad 6 'row 2, column 1 is a no-data cell' <<<"${h}1 2 3\n-9999 5 6\n"
bad 5 'is not a number' <<<"${h}$(printf '%0200d' 7)\n"

finish
