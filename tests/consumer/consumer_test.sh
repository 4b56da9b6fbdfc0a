#!/usr/bin/env bash
# consumer_test.sh BUILD LIBDIR CMAKE CC CXX GENERATOR: installs BUILD, moves the tree, and uses it.
set -euo pipefail
build=$1 cmake=$3
shift
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$cmake" --install "$build" --prefix "$scratch/first" >/dev/null
mv "$scratch/first" "$scratch/moved"
"$(dirname "$0")/use_installed.sh" "$scratch/moved" "$@"
