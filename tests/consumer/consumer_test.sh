#!/usr/bin/env bash
# consumer_test.sh BUILD CMAKE CC CXX LIBDIR GENERATOR: installs BUILD, moves the tree, and builds and runs programs with it.
set -euo pipefail
build=$1 cmake=$2 cc=$3 cxx=$4 libdir=$5 generator=$6
here=$(cd "$(dirname "$0")" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

"$cmake" --install "$build" --prefix "$scratch/first" >/dev/null
prefix=$scratch/moved
mv "$scratch/first" "$prefix"
for file in include/vokm include/vokm.h "$libdir"/lib{vokmm7,vokcore}.so{,.6.1}; do
    [ -e "$prefix/$file" ] || { echo "$file is not installed" >&2; exit 1; }
done

echo "with find_package"
"$cmake" -S "$here/project" -B "$scratch/build" -G "$generator" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_C_COMPILER="$cc" \
    -DCMAKE_CXX_COMPILER="$cxx" >"$scratch/log" 2>&1 && "$cmake" --build "$scratch/build" >>"$scratch/log" 2>&1 ||
    { cat "$scratch/log" >&2; exit 1; }
"$scratch/build/consumer_c"
"$scratch/build/consumer_cpp"

echo "with pkg-config"
export PKG_CONFIG_PATH=$prefix/$libdir/pkgconfig LD_LIBRARY_PATH=$prefix/$libdir
[ "$(pkg-config --modversion vokm)" = 6.1 ]
strict="-Wall -Wextra -Wpedantic -Werror"
"$cc" -std=c99 $strict "$here/project/consumer.c" $(pkg-config --cflags --libs vokm) -o "$scratch/consumer_c"
"$cxx" -std=c++11 $strict "$here/project/consumer.cpp" $(pkg-config --cflags --libs vokm) -o "$scratch/consumer_cpp"
"$scratch/consumer_c"
"$scratch/consumer_cpp"
