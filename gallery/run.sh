#!/usr/bin/env bash
# Runs zkgallery headless (Xvfb + Wine) and turns the BMP pictures it writes
# into PNGs with ImageMagick.
#
#   gallery/run.sh [--docs] BUILD_DIR [OUT_DIR]
#
# BUILD_DIR is a Windows x86_64 build tree (zkgallery.exe in BUILD_DIR/bin);
# OUT_DIR defaults to BUILD_DIR/out/gallery and receives gallery.log and one
# PNG per window. --docs also copies the PNGs to docs/gallery/. Set
# ZK_GALLERY_NO_XVFB=1 when a display (a shared xvfb-run) is already there.
# Exit status: zkgallery's own (0 all steps passed, 1 a step failed, 2 it
# could not start), or 1 if it passed but a picture could not be converted.
set -u
root=$(cd "$(dirname "$0")/.." && pwd)
docs=0
if [ "${1:-}" = "--docs" ]; then
  docs=1
  shift
fi
[ $# -ge 1 ] || { echo "usage: $0 [--docs] BUILD_DIR [OUT_DIR]" >&2; exit 2; }
build=$(cd "$1" && pwd) || exit 2
out=${2:-$build/out/gallery}
mkdir -p "$out" && out=$(cd "$out" && pwd) || exit 2
[ -x "$build/bin/zkgallery.exe" ] || [ -f "$build/bin/zkgallery.exe" ] ||
  { echo "$build/bin/zkgallery.exe not found" >&2; exit 2; }
rm -f "$out"/*.bmp "$out"/*.png

export ZK_WINEPREFIX=${ZK_WINEPREFIX:-$build/wineprefix}
run=("$root/cmake/wine-run.sh" ./zkgallery.exe --headless --out "$out")
if [ "${ZK_GALLERY_NO_XVFB:-0}" != 1 ]; then
  run=(xvfb-run -a -s "-screen 0 1024x768x24" "${run[@]}")
fi
(cd "$build/bin" && "${run[@]}")
status=$?

# The real ImageMagick; /usr/local/bin/convert may be a stand-in.
convert=/usr/bin/convert
[ -x "$convert" ] || convert=$(command -v convert || true)
shopt -s nullglob
for bmp in "$out"/*.bmp; do
  png=${bmp%.bmp}.png
  # -strip: no time stamps, so an unchanged window gives an unchanged file
  if [ -n "$convert" ] && "$convert" "$bmp" -strip "$png"; then
    rm -f "$bmp"
    echo "picture: $png"
  else
    echo "cannot convert $bmp to PNG (is ImageMagick installed?)" >&2
    [ $status -eq 0 ] && status=1
  fi
done
if [ $docs -eq 1 ]; then
  mkdir -p "$root/docs/gallery"
  for png in "$out"/*.png; do
    cp "$png" "$root/docs/gallery/"
  done
fi
exit $status
