#!/usr/bin/env bash
# pointcloud_test.sh PROGRAM GRID: the program on the carried grid, on clouds in each format and on bad files.
suffix=.ply pictures=(variation)
source "$(dirname "$0")/../common/program_test.sh"

good "the carried grid" "83145 points with 40 neighbours" .asc <"$carried"
good "XYZ with comments, more columns and other separators" "5 points with 5 neighbours" .xyz < <(
    printf '# x y z\n// %0200d\n0 0 0 255 10 10\r\n1,0,0.5\n\n0;1;.5 word\n 1\t1 1e0\n500000.5 4000000.25 1')
head='ply\nformat ascii 1.0\ncomment made by hand\n'
xyz='property float x\nproperty float y\nproperty float z\n'
good "ascii PLY with other elements and lists" "4 points" < <(printf "%b" "$head" \
    'element camera 2\nproperty list uchar int views\nproperty float f\nelement vertex 4\nproperty uchar red\n' "$xyz" \
    'element face 1\nproperty list uchar int vertex_indices\nend_header\n' '3 7 8 9 0.5\n0 1\n' \
    '9 0 0 0\n9 1 0 0\n9 0 1 0\n9 1 1 1\n3 0 1 2\n')
corner='\0\0\0\0' one='\0\0\x80\x3f'
binary='ply\nformat binary_little_endian 1.0\nelement vertex 4\nproperty list uchar short seen\n'"$xyz"'end_header\n'
good "binary PLY" "4 points" < <(printf '%b' "$binary" "\2\1\1\2\2$corner$corner$corner" "\0$one$corner$corner" \
    "\0$corner$one$corner" "\0$one$one$one")

bad 2 '"y" is not a number (y of a point)' .xyz <<<'1 2 3\n1 y 3\n'
bad 3 'a point has three numbers' .xyz <<<'1 2 3\n4 5 6\n7 8\n9 10 11\n'
bad 2 'out of range (z of a point)' .xyz <<<'1 2 3\n1 2 nan\n'
bad 2 'at least 4' .xyz <<<'1 2 3\n4 5 6\n'
bad 4 'all points are in one place' .xyz <<<'1 2 3\n1 2 3\n1 2 3\n1 2 3\n'
bad 2 'the format is "binary_big_endian"' <<<'ply\nformat binary_big_endian 1.0\n'
bad 3 '"elephant" is no statement' <<<'ply\nformat ascii 1.0\nelephant vertex 4\n'
bad 2 'no "format"' <<<'ply\nend_header\n'
bad 4 '"element" is not complete' <<<"${head}element vertex\n${xyz}end_header\n"
bad 4 '"-4" is no count' <<<"${head}element vertex -4\n${xyz}end_header\n"
bad 4 'too large' <<<"${head}element vertex 99999999\n${xyz}end_header\n"
bad 4 'a property of no element' <<<"${head}${xyz}end_header\n"
bad 5 '"real" is no type' <<<"${head}element vertex 4\nproperty real x\n"
bad 4 'the vertices have no z' <<<"${head}element vertex 1\nproperty float x\nproperty float y\nend_header\n1 2\n"
bad 4 'no "vertex" element' <<<"${head}end_header\n"
bad 5 'before "end_header"' <<<"${head}element vertex 1\nproperty float x\n"
bad 10 'vertex 2 has no z' <<<"${head}element vertex 4\n${xyz}end_header\n0 0 0\n1 0\n0 1 0\n1 1 1\n"
bad 9 '"5" stands before the line of vertex 2' <<<"${head}element vertex 4\n${xyz}end_header\n0 0 0 5\n1 0 0\n0 1 0\n1 1 1\n"
bad 10 'the file ends before vertex 3, x' <<<"${head}element vertex 4\n${xyz}end_header\n0 0 0\n1 0 0\n"
bad 3 'the file ends before the end of vertex 3' <<<"${binary//\\/\\}\0$one$one$one\0$one$one$corner\0$one"
bad 3 'vertex 1: x is out of range' <<<"$binary\0\0\0\xc0\x7f$one$one"
finish
