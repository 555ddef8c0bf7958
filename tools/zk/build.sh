#!/usr/bin/env bash
# Configures and builds one of the project's build trees under build/.
#   build.sh native|win64|win32|fuzz [targets...]
set -u
top=$(cd "$(dirname "$0")/../.." && pwd)
kind=$1; shift
dir="$top/build/$kind"
case "$kind" in
  native) args=(-DCMAKE_BUILD_TYPE=RelWithDebInfo
                -DZK_WIN64_BIN="$top/build/win64/bin" -DZK_WIN32_BIN="$top/build/win32/bin") ;;
  win64)  args=(-DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE="$top/cmake/toolchain-x86_64.cmake") ;;
  win32)  args=(-DCMAKE_BUILD_TYPE=Release -DCMAKE_TOOLCHAIN_FILE="$top/cmake/toolchain-i686.cmake"
                -DZK_TESTS=OFF -DZK_BENCH=OFF) ;;
  fuzz)   args=(-DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_C_COMPILER=clang-14 -DCMAKE_CXX_COMPILER=clang++-14
                -DZK_FUZZ=ON -DZK_SANITIZE=OFF -DZK_TESTS=OFF -DZK_BENCH=OFF) ;;
  *) echo "unknown build $kind" >&2; exit 2 ;;
esac
mkdir -p "$top/build"
if [ ! -f "$dir/build.ninja" ]; then
  cmake -S "$top" -B "$dir" -G Ninja "${args[@]}" >"$dir.configure.log" 2>&1 \
    || { cat "$dir.configure.log"; exit 1; }
fi
if [ $# -gt 0 ]; then
  cmake --build "$dir" --target "$@"
else
  cmake --build "$dir"
fi
