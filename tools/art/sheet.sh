#!/usr/bin/env bash
# Contact sheet of the library's art, each image enlarged with hard pixel
# edges (icons over a checkerboard so their transparency shows), written to
# docs/gallery/art.png. Needs ImageMagick's convert and montage.
set -eu
shopt -s nullglob
root=$(cd "$(dirname "$0")/../.." && pwd)
art="$root/res/art"
out="${1:-$root/docs/gallery/art.png}"
convert=/usr/bin/convert
montage=/usr/bin/montage
[ -x "$convert" ] || convert=convert
[ -x "$montage" ] || montage=montage
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
size=192
tiles=()
for bmp in "$art"/*.bmp; do
  name=$(basename "$bmp" .bmp)
  "$convert" "$bmp" -filter point -resize ${size}x${size} -set label "$name" "$tmp/$name.png"
  tiles+=("$tmp/$name.png")
done
for ico in "$art"/*.ico; do
  name=$(basename "$ico" .ico)
  count=$("$convert" "$ico" -format '%n\n' info: | head -n 1)
  for ((i = 0; i < count; i++)); do
    geometry=$("$convert" "$ico[$i]" -format '%wx%h' info:)
    "$convert" -size ${size}x${size} pattern:checkerboard \
      \( "$ico[$i]" -filter point -resize ${size}x${size} \) -composite \
      -set label "$name $geometry" "$tmp/$name-$i.png"
    tiles+=("$tmp/$name-$i.png")
  done
done
mkdir -p "$(dirname "$out")"
"$montage" "${tiles[@]}" -tile 4x -geometry +12+12 -background '#F0F0F0' -font DejaVu-Sans -pointsize 16 -strip "$out"
echo "$out"
