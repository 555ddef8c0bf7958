#!/usr/bin/env bash
# The main job: builds ZKLIB, zkhost and the gallery, then runs the gallery's
# scripted scenario on the reference host under Wine. Headless by default
# (under Xvfb; log and PNG pictures in out/gallery/); "--show" runs it on the
# current display and leaves the form open until it is closed.
set -u
top=$(cd "$(dirname "$0")/../.." && pwd)
cd "$top"
"$top/tools/zk/deps.sh" || exit 1
echo "== build"
mkdir -p "$top/build"
"$top/tools/zk/build.sh" win64 ZKLIB zkhost zkgallery >"$top/build/win64.demo-build.log" 2>&1 \
  || { tail -50 "$top/build/win64.demo-build.log"; exit 1; }
export ZK_WINEPREFIX="$top/build/win64/wineprefix"
"$top/cmake/wine-prefix.sh" "$ZK_WINEPREFIX" || exit 1
if [ "${1:-}" = "--show" ] && [ -n "${DISPLAY:-}" ]; then
  cd "$top/build/win64/bin" && exec "$top/cmake/wine-run.sh" ./zkgallery.exe --out "$top/out/gallery"
fi
echo "== gallery"
"$top/gallery/run.sh" "$top/build/win64" "$top/out/gallery"
