#!/usr/bin/env bash
# Creates a Wine prefix once (guarded by a lock): fonts copied in, window
# manager hand-off disabled so destroying top-level windows costs nothing.
set -u
prefix=$1
[ -f "$prefix/.zk-ready" ] && exit 0
mkdir -p "$(dirname "$prefix")"
exec 9>"$prefix.lock"
flock 9
[ -f "$prefix/.zk-ready" ] && exit 0
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
server=$(command -v wineserver || echo /usr/lib/wine/wineserver64)
export WINEPREFIX="$prefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
# wineboot must not inherit a display-less server: run it, then wait for the server to go.
"$wine" wineboot -i >"$prefix.boot.log" 2>&1 </dev/null
"$server" -w
mkdir -p "$prefix/drive_c/windows/Fonts"
cp /usr/share/wine/fonts/*.ttf "$prefix/drive_c/windows/Fonts/" 2>/dev/null
cat >"$prefix.reg" <<'REG'
REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\X11 Driver]
"Managed"="N"
"Decorated"="Y"
REG
"$wine" regedit "$prefix.reg" >>"$prefix.boot.log" 2>&1 </dev/null
"$server" -w
touch "$prefix/.zk-ready"
