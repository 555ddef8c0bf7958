#!/usr/bin/env bash
# Builds every tree and runs every suite: native (sanitizers), Windows under
# Wine + Xvfb, the export tables of both cross builds, short fuzz runs.
set -u
top=$(cd "$(dirname "$0")/../.." && pwd)
cd "$top"
"$top/tools/zk/deps.sh" || exit 1

status=0
mkdir -p "$top/build"
for kind in win64 win32 native fuzz; do
  echo "== build $kind"
  "$top/tools/zk/build.sh" "$kind" >"$top/build/$kind.build.log" 2>&1 \
    || { tail -50 "$top/build/$kind.build.log"; echo "build $kind failed"; status=1; }
done
[ $status = 0 ] || { echo "0 passed, 1 failed"; exit 1; }

rm -rf build/native/results build/win64/results build/fuzz/results
mkdir -p build/native/results build/win64/results build/fuzz/results
run_ctest() { # dir
  (cd "$1" && ctest --output-on-failure --output-junit "$1/ctest-junit.xml" -j2 --timeout 900) || status=1
}

echo "== native suites"
run_ctest "$top/build/native"
echo "== fuzz runs"
run_ctest "$top/build/fuzz"

echo "== Windows suites under Wine"
prefix="$top/build/win64/wineprefix"
export ZK_WINEPREFIX="$prefix"
"$top/cmake/wine-prefix.sh" "$prefix" || { echo "could not make the Wine prefix"; status=1; }
xvfb-run -a -s "-screen 0 1024x768x24" bash -c '
  server=$(command -v wineserver || echo /usr/lib/wine/wineserver64)
  WINEPREFIX="$ZK_WINEPREFIX" "$server" -p >/dev/null 2>&1 </dev/null
  cd "$1" && ctest --output-on-failure --output-junit "$1/ctest-junit.xml" --timeout 900; rc=$?
  WINEPREFIX="$ZK_WINEPREFIX" "$server" -k >/dev/null 2>&1
  exit $rc' _ "$top/build/win64" || status=1

"$top/tools/zk/summary.sh" build/native build/fuzz build/win64 || status=1
exit $status
