#!/usr/bin/env bash
# use_installed.sh PREFIX LIBDIR CMAKE CC CXX GENERATOR: builds and runs programs with the library that is installed there.
set -euo pipefail
prefix=$1 libdir=$2 cmake=$3 cc=$4 cxx=$5 generator=$6
here=$(cd "$(dirname "$0")" && pwd)
programs=$(mktemp -d)
trap 'rm -rf "$programs"' EXIT

for file in include/vokm include/vokm.h "$libdir"/lib{vokmm7,vokcore}.so{,.6.1}; do
    [ -e "$prefix/$file" ] || { echo "$file is not installed" >&2; exit 1; }
done

echo "with find_package"
"$cmake" -S "$here/project" -B "$programs/build" -G "$generator" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_C_COMPILER="$cc" \
    -DCMAKE_CXX_COMPILER="$cxx" >"$programs/log" 2>&1 && "$cmake" --build "$programs/build" >>"$programs/log" 2>&1 ||
    { cat "$programs/log" >&2; exit 1; }
"$programs/build/consumer_c"
"$programs/build/consumer_cpp"

echo "with pkg-config"
export PKG_CONFIG_PATH=$prefix/$libdir/pkgconfig LD_LIBRARY_PATH=$prefix/$libdir
[ "$(pkg-config --modversion vokm)" = 6.1 ]
strict="-Wall -Wextra -Wpedantic -Werror"
"$cc" -std=c99 $strict "$here/project/consumer.c" $(pkg-config --cflags --libs vokm) -o "$programs/consumer_c"
"$cxx" -std=c++11 $strict "$here/project/consumer.cpp" $(pkg-config --cflags --libs vokm) -o "$programs/consumer_cpp"
"$programs/consumer_c"
"$programs/consumer_cpp"
