#!/usr/bin/env bash
# Runs one Windows program under wine64 in the build tree's private prefix.
# Wine's own output goes to a file that is streamed afterwards, so that no
# background Wine process holds the caller's pipe open.
set -u
here=$(cd "$(dirname "$0")" && pwd)
: "${ZK_WINEPREFIX:=${ZK_BUILD_DIR:-$PWD}/wineprefix}"
export WINEPREFIX="$ZK_WINEPREFIX" WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree,mshtml="
"$here/wine-prefix.sh" "$WINEPREFIX" || exit 70
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
log=$(mktemp "${TMPDIR:-/tmp}/zkwine.XXXXXX")
"$wine" "$@" >"$log" 2>&1 </dev/null
rc=$?
cat "$log"
rm -f "$log"
exit $rc
