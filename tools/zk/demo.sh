#!/usr/bin/env bash
# The main job: builds ZKLIB, zkhost and the gallery, runs the gallery's
# scripted scenario on the reference host under Wine. Headless by default
# (under Xvfb, pictures written); "--show" runs it on the current display.
set -u
top=$(cd "$(dirname "$0")/../.." && pwd)
cd "$top"
"$top/tools/zk/deps.sh" || exit 1
echo "== build"
"$top/tools/zk/build.sh" win64 ZKLIB zkhost zkgallery >"$top/build/win64.demo-build.log" 2>&1 \
  || { tail -50 "$top/build/win64.demo-build.log"; exit 1; }

out="$top/out/gallery"
rm -rf "$out"; mkdir -p "$out"
export ZK_WINEPREFIX="$top/build/win64/wineprefix"
"$top/cmake/wine-prefix.sh" "$ZK_WINEPREFIX" || exit 1
cd "$top/build/win64/bin"
if [ "${1:-}" = "--show" ] && [ -n "${DISPLAY:-}" ]; then
  "$top/cmake/wine-run.sh" ./zkgallery.exe --out "$(winepath_out="$out"; echo "Z:${out//\//\\}")"
  rc=$?
else
  xvfb-run -a -s "-screen 0 1024x768x24" "$top/cmake/wine-run.sh" ./zkgallery.exe --headless \
    --out "Z:${out//\//\\}"
  rc=$?
fi
# The gallery writes plain bitmaps; pictures for people are PNG.
for bmp in "$out"/*.bmp; do
  [ -f "$bmp" ] || continue
  /usr/bin/convert "$bmp" "${bmp%.bmp}.png" && rm -f "$bmp"
done
echo "== gallery: $out"
ls "$out"
exit $rc
