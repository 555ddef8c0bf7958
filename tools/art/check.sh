#!/usr/bin/env bash
# Detects drift between the art sources (res/art/*.txt) and the committed
# binaries that the resource script embeds: regenerates every image into a
# temporary folder and compares byte for byte. Exit 0 when all match.
set -u
root=$(cd "$(dirname "$0")/../.." && pwd)
python=${PYTHON:-python3}
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
"$python" "$root/tools/art/art2bmp.py" --out "$tmp" "$root"/res/art/*.txt "$root"/res/art/cursors/*.txt || exit 1
status=0
count=0
for made in "$tmp"/*; do
  name=$(basename "$made")
  count=$((count + 1))
  if ! cmp -s "$made" "$root/res/art/$name"; then
    echo "drift: res/art/$name differs from its source; run tools/art/art2bmp.py res/art/*.txt" >&2
    status=1
  fi
done
for committed in "$root"/res/art/*.bmp "$root"/res/art/*.ico "$root"/res/art/*.cur; do
  [ -e "$committed" ] || continue
  [ -e "$tmp/$(basename "$committed")" ] || { echo "orphan: res/art/$(basename "$committed") has no source" >&2; status=1; }
done
[ $status -eq 0 ] && echo "art: $count images match their sources"
exit $status
